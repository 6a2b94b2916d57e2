#pragma once

#include "platform/dwgx/HBXCADFileHelper.h"
#include "platform/dwgx/HBXCADIOperator.h"

#include <QDir>
#include <QString>
#include <QUuid>

#include <memory>

namespace slab {

/** A new folder below QDir::temp() for a drawing that is packed or unpacked. It goes with all that stands in it, unless it
 *  is left behind. */
class DrawingFolder
{
public:
    DrawingFolder() : m_folder(QDir::temp().filePath(QUuid::createUuid().toString()))
    {
        m_isMade = QDir().mkpath(m_folder.path()) && m_folder.exists();
    }
    ~DrawingFolder()
    {
        if (m_isMade && !m_isLeftBehind)
            m_folder.removeRecursively();
    }
    DrawingFolder(const DrawingFolder &) = delete;
    DrawingFolder &operator=(const DrawingFolder &) = delete;

    /** False when there is no such folder, as where the temporary one may not be written to. */
    bool isMade() const { return m_isMade; }
    const QDir &folder() const { return m_folder; }
    QString filePath(const QString &name) const { return m_folder.filePath(name); }
    void leaveBehind(bool leave = true) { m_isLeftBehind = leave; }

private:
    QDir m_folder;
    bool m_isMade = false;
    bool m_isLeftBehind = false;
};

/** Writes a drawing file with the host's operator. False where that fails, or where the host has none. */
inline bool writeDrawing(const dwgx::DWGXModel &drawing, const QString &path)
{
    const std::unique_ptr<HBXCADIOperator> drawings(HBXCADFileHelper::getInstance()->createCADIOperator());
    return drawings && drawings->write(path, &drawing, QString(), QString());
}

} // namespace slab

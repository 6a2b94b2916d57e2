#pragma once

#include "support/FuzzInput.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace fuzz {

/** An input as a file in a folder of its own, which goes with this object and all that was put beside the file. */
class FuzzFile
{
public:
    FuzzFile(const QString &name, const QByteArray &content) : m_path(m_folder.filePath(name))
    {
        QFile file(m_path);
        require(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(), "the input can be written");
    }

    QString path() const { return m_path; }
    /** Path of another file of the folder, which is not there. */
    QString beside(const QString &name) const { return m_folder.filePath(name); }
    /** A fresh folder inside. */
    QString subfolder(const QString &name) const
    {
        require(QDir(m_folder.path()).mkdir(name), "a folder can be made");
        return m_folder.filePath(name);
    }

private:
    QTemporaryDir m_folder;
    QString m_path;
};

} // namespace fuzz

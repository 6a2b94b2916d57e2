#include "drawing/ORVCADSubDrawingDataSet.h"

#include "drawing/DrawingKeys.h"

#include <QFileInfo>
#include <QJsonArray>

namespace key = drawing::key;

namespace {

/** The file's name without folder and last ending. */
QString baseName(const QString &path) { return QFileInfo(path).completeBaseName(); }

QJsonObject writeParent(const QString &parent, const QList<ORVCADSubDrawingInfo> &parts)
{
    QJsonArray names;
    for (const ORVCADSubDrawingInfo &part : parts)
        names.append(baseName(part.drawingPath));
    return {{key::parentDrawing, baseName(parent)}, {key::count, names.size()}, {key::subDrawing, names}};
}

} // namespace

void ORVCADSubDrawingDataSet::addSubDrawing(const QString &parent, const ORVCADSubDrawingInfo &info)
{
    if (m_subDrawings.contains(parent, info))
        return;
    m_subDrawings.insert(parent, info);
    ++m_count;
    m_pathsByName.clear();
}

QList<ORVCADSubDrawingInfo> ORVCADSubDrawingDataSet::getAllSubDrawingInfos() const { return m_subDrawings.values(); }

QStringList ORVCADSubDrawingDataSet::getAllSubDrawingNames() const
{
    QStringList paths;
    for (const ORVCADSubDrawingInfo &part : m_subDrawings)
        paths.append(part.drawingPath);
    return paths;
}

QString ORVCADSubDrawingDataSet::getSubDrawingCompletePath(const QString &name) const
{
    return name.isEmpty() ? QString() : pathsByName().value(name);
}

const QHash<QString, QString> &ORVCADSubDrawingDataSet::pathsByName() const
{
    if (m_pathsByName.isEmpty()) {
        for (const ORVCADSubDrawingInfo &part : m_subDrawings) {
            const QString name = baseName(part.drawingPath);
            if (!m_pathsByName.contains(name)) // the first of a name counts
                m_pathsByName.insert(name, part.drawingPath);
        }
    }
    return m_pathsByName;
}

QJsonObject ORVCADSubDrawingDataSet::toJson() const
{
    QJsonArray parents;
    const QList<QString> names = m_subDrawings.uniqueKeys();
    for (const QString &parent : names)
        parents.append(writeParent(parent, m_subDrawings.values(parent)));
    return {{key::savePath, m_savePath}, {key::drawingInfo, parents}};
}

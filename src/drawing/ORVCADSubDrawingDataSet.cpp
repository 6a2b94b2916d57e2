#include "drawing/ORVCADSubDrawingDataSet.h"

#include "drawing/DrawingKeys.h"

#include <QFileInfo>
#include <QJsonArray>

#include <algorithm>

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
    if (name.isEmpty())
        return QString();
    const auto part = std::find_if(m_subDrawings.begin(), m_subDrawings.end(), [&](const ORVCADSubDrawingInfo &info) {
        return baseName(info.drawingPath) == name;
    });
    return part == m_subDrawings.end() ? QString() : part->drawingPath;
}

QJsonObject ORVCADSubDrawingDataSet::toJson() const
{
    QJsonArray parents;
    const QList<QString> names = m_subDrawings.uniqueKeys();
    for (const QString &parent : names)
        parents.append(writeParent(parent, m_subDrawings.values(parent)));
    return {{key::savePath, m_savePath}, {key::drawingInfo, parents}};
}

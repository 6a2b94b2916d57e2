#include "drawing/ORVCADSubDrawingDataSet.h"

#include "drawing/DrawingKeys.h"

#include <QJsonArray>

namespace key = drawing::key;

namespace {

/** The file's name without folder and last ending, as QFileInfo::completeBaseName gives it. */
QString baseName(const QString &path)
{
    const int start = path.lastIndexOf(u'/') + 1;
    const int dot = path.lastIndexOf(u'.');
    return path.mid(start, dot < start ? -1 : dot - start);
}

/** @param names  of the parent's parts */
QJsonObject writeParent(const QString &parent, const QJsonArray &names)
{
    return {{key::count, names.size()}, {key::parentDrawing, baseName(parent)}, {key::subDrawing, names}};
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
    for (auto part = m_subDrawings.begin(); part != m_subDrawings.end();) {
        const QString &parent = part.key();
        QJsonArray names;
        for (; part != m_subDrawings.end() && part.key() == parent; ++part) // those of a parent stand together
            names.append(baseName(part.value().drawingPath));
        parents.append(writeParent(parent, names));
    }
    return {{key::drawingInfo, parents}, {key::savePath, m_savePath}};
}

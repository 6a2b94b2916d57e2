#include "drawing/ORVCADClassifiedLayersData.h"

#include "drawing/RecordSearch.h"
#include "encoding/RecordFields.h"

#include <algorithm>
#include <iterator>

ORVCADClassifiedLayersData::~ORVCADClassifiedLayersData() { qDeleteAll(m_groups); }

QList<ORVCADClassifiedLayers *> ORVCADClassifiedLayersData::getLayers(const QString &drawingName) const
{
    QList<ORVCADClassifiedLayers *> groups;
    std::copy_if(m_groups.begin(), m_groups.end(), std::back_inserter(groups),
                 [&](const ORVCADClassifiedLayers *group) { return group && group->getDrawingName() == drawingName; });
    return groups;
}

ORVCADClassifiedLayers *ORVCADClassifiedLayersData::getLayers(const QString &drawingName, int elementType) const
{
    // Meant: either match is enough.
    return drawing::firstRecord(m_groups, [&](const ORVCADClassifiedLayers &group) {
        return group.getDrawingName() == drawingName || group.getElementType() == elementType;
    });
}

QJsonValue ORVCADClassifiedLayersData::toJson() const
{
    return encoding::ValueKind<QList<ORVCADClassifiedLayers *>>::toValue(m_groups);
}

#include "drawing/ORVCADDrawingLocationDataItem.h"

#include "drawing/DrawingKeys.h"

#include <QJsonArray>

namespace key = drawing::key;

namespace {

QJsonObject writeAxis(const AxisInfo &axis)
{
    return {{key::bayNum, axis.bayNum}, {key::depthNum, axis.depthNum}, {key::point, QJsonArray{axis.x, axis.y}}};
}

} // namespace

QJsonObject ORVCADDrawingLocationDataItem::toJson() const
{
    QJsonArray axes;
    for (const AxisInfo &axis : m_axes)
        axes.append(writeAxis(axis));
    return {{key::lowerDrawingName, m_drawingName}, {key::axisInfo, axes}};
}

ORVCADDrawingLocationDataItem *ORVCADDrawingLocationDataItem::fromJson(const QJsonObject & /*json*/) { return nullptr; }

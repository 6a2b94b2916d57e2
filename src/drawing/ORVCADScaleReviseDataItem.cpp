#include "drawing/ORVCADScaleReviseDataItem.h"

#include "drawing/DrawingKeys.h"

namespace key = drawing::key;

QJsonObject ORVCADScaleReviseDataItem::toJson() const
{
    return {{key::lowerDrawingName, m_drawingName}, {key::originScale, m_originScale}, {key::newScale, m_newScale}};
}

ORVCADScaleReviseDataItem *ORVCADScaleReviseDataItem::fromJson(const QJsonObject & /*json*/) { return nullptr; }

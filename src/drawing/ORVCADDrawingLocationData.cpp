#include "drawing/ORVCADDrawingLocationData.h"

#include "encoding/RecordFields.h"

ORVCADDrawingLocationData::~ORVCADDrawingLocationData() { qDeleteAll(m_items); }

QJsonValue ORVCADDrawingLocationData::toJson() const
{
    return encoding::ValueKind<QList<ORVCADDrawingLocationDataItem *>>::toValue(m_items);
}

ORVCADDrawingLocationData *ORVCADDrawingLocationData::fromJson(const QJsonValue & /*json*/) { return nullptr; }

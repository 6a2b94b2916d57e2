#include "drawing/ORVCADScaleReviseData.h"

ORVCADScaleReviseData::~ORVCADScaleReviseData() { qDeleteAll(m_items.list()); }

ORVCADScaleReviseDataItem *ORVCADScaleReviseData::getScaleReviseDataItem(const QString &drawingName) const
{
    return m_items.first(drawingName);
}

QJsonValue ORVCADScaleReviseData::toJson() const { return encoding::ValueKind<Items>::toValue(m_items); }

ORVCADScaleReviseData *ORVCADScaleReviseData::fromJson(const QJsonValue & /*json*/) { return nullptr; }

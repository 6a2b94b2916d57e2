#include "drawing/ORVCADLayerClassifyItem.h"

#include "drawing/DrawingKeys.h"
#include "encoding/RecordFields.h"

#include <memory>

using namespace encoding;
namespace key = drawing::key;

struct ORVCADLayerClassifyItem::Fields
{
    static constexpr auto table =
        std::make_tuple(fieldRequired(key::drawingName, &ORVCADLayerClassifyItem::m_drawingName),
                        fieldRequired(key::elementType, &ORVCADLayerClassifyItem::m_elementType),
                        fieldRequired(key::classifiedJsonFilePath, &ORVCADLayerClassifyItem::m_classifiedJsonFilePath));
};

ORVCADLayerClassifyItem::ORVCADLayerClassifyItem(const QString &drawingName, int elementType)
    : m_drawingName(drawingName), m_elementType(elementType)
{}

QJsonObject ORVCADLayerClassifyItem::toJson() const
{
    QJsonObject json;
    writeFields(*this, Fields::table, json);
    return json;
}

ORVCADLayerClassifyItem *ORVCADLayerClassifyItem::fromJson(const QJsonObject &json)
{
    auto item = std::make_unique<ORVCADLayerClassifyItem>(QString(), 0);
    return readFields(json, Fields::table, *item) ? item.release() : nullptr;
}

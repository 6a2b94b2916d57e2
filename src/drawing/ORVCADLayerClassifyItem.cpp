#include "drawing/ORVCADLayerClassifyItem.h"

#include "drawing/DrawingFields.h"
#include "drawing/DrawingKeys.h"

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

QJsonObject ORVCADLayerClassifyItem::toJson() const { return writtenFields(*this, Fields::table); }

ORVCADLayerClassifyItem *ORVCADLayerClassifyItem::fromJson(const QJsonObject &json)
{
    return drawing::readOrNull(std::make_unique<ORVCADLayerClassifyItem>(QString(), 0), Fields::table, json);
}

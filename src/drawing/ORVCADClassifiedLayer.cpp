#include "drawing/ORVCADClassifiedLayer.h"

#include "drawing/DrawingFields.h"
#include "drawing/DrawingKeys.h"
#include "platform/services/dwgxCommonUtil.h"

#include <memory>

using namespace encoding;
namespace key = drawing::key;

struct ORVCADClassifiedLayer::Fields
{
    static constexpr auto table =
        std::make_tuple(fieldRequired(key::layerName, &ORVCADClassifiedLayer::m_layerName),
                        drawing::fieldRequiredAs<drawing::NarrowIds>(key::cadEdoIds, &ORVCADClassifiedLayer::m_edoIds));
};

QJsonObject ORVCADClassifiedLayer::toJson() const { return writtenFields(*this, Fields::table); }

ORVCADClassifiedLayer *ORVCADClassifiedLayer::fromJson(const QJsonObject &json)
{
    auto layer = std::make_unique<ORVCADClassifiedLayer>(QString());
    const bool isRead = readFields(json, Fields::table, *layer) && !layer->m_layerName.isEmpty();
    return isRead ? layer.release() : nullptr;
}

ORVCADClassifiedLayer *ORVCADClassifiedLayer::fromHBXJson(int elementType, const QJsonObject &json)
{
    const QJsonArray entries = json.value(key::edoIdList).toArray();
    const auto [name, color] = getCADLayerInfo(elementType, json.value(key::layerName).toString());
    if (name.isEmpty() || entries.isEmpty()) // so a missing key ends here as well
        return nullptr;
    auto layer = std::make_unique<ORVCADClassifiedLayer>(name);
    layer->setColor(color);
    layer->m_edoIds.reserve(entries.size());
    for (const QJsonValue entry : entries)
        layer->addEdoId(entry.toObject().value(key::edoId).toInt(-1));
    return layer.release();
}

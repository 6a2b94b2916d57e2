#include "drawing/ORVCADLayerClassifyResult.h"

#include "drawing/DrawingFields.h"
#include "drawing/DrawingKeys.h"

#include <memory>

using namespace encoding;
namespace key = drawing::key;

namespace {

using Items = QList<ORVCADLayerClassifyItem *>;

/** Meant: an item that is refused is kept as null, unlike in every other list. */
struct ItemsWithRefusedOnes
{
    static QJsonValue toValue(const Items &items) { return ValueKind<Items>::toValue(items); }
    static Items fromValue(const QJsonValue &json, const Items & /*fallback*/)
    {
        Items items;
        const QJsonArray array = json.toArray();
        items.reserve(array.size());
        for (const QJsonValue element : array)
            items.append(ORVCADLayerClassifyItem::fromJson(element.toObject()));
        return items;
    }
};

} // namespace

struct ORVCADLayerClassifyResult::Fields
{
    static constexpr auto table = std::make_tuple(
        drawing::fieldRequiredAs<ItemsWithRefusedOnes>(key::layerClassifyItems, &ORVCADLayerClassifyResult::m_items));
};

ORVCADLayerClassifyResult::~ORVCADLayerClassifyResult() { clear(); }

void ORVCADLayerClassifyResult::clear()
{
    qDeleteAll(m_items);
    m_items.clear();
}

QJsonObject ORVCADLayerClassifyResult::toJson() const { return writtenFields(*this, Fields::table); }

ORVCADLayerClassifyResult *ORVCADLayerClassifyResult::fromJson(const QJsonObject &json)
{
    return drawing::readOrNull(std::make_unique<ORVCADLayerClassifyResult>(), Fields::table, json);
}

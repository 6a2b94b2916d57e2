#include "platform/embedded/ExchangeContent.h"

#include "platform/embedded/ExchangeReferenceText.h"
#include "platform/embedded/HBXPropertyCatalogue.h"
#include "platform/embedded/HBXPropertyValue.h"

#include <algorithm>

namespace hbx::embedded {
namespace {

/** Calls visit with the decimal text of each id that a property holds. */
template <typename Visit> void forEachReference(PropertyRole role, const PropertyValue &value, Visit visit)
{
    if (std::holds_alternative<int>(value))
        return visit(textOf(value));
    ExchangeReferenceText(role, textOf(value)).mapped([&](const QString &id) {
        visit(id);
        return std::optional(id);
    });
}

} // namespace

ExchangeContent::ExchangeContent(const ProjectRecord &project) : m_project(project)
{
    sortElements(project);
    sortDrawObjs(project);
    giveKeys(project);
}

void ExchangeContent::sortElements(const ProjectRecord &project)
{
    for (const ElementRecord &element : project.elements) {
        m_elements.insert(element.id, &element);
        Elements &place = element.parentId ? m_unitsByElement[element.parentId] : m_elementsByFloor[element.floorId];
        place.push_back(&element);
    }
}

void ExchangeContent::sortDrawObjs(const ProjectRecord &project)
{
    for (const DrawObjRecord &drawObj : project.drawObjs) {
        m_drawObjs.insert(drawObj.id, &drawObj);
        DrawObjs &place = drawObj.owner ? m_childrenByOwner[drawObj.owner] : m_drawObjsByElement[drawObj.elementId];
        m_positions.insert(drawObj.id, static_cast<int>(place.size()));
        place.push_back(&drawObj);
    }
}

void ExchangeContent::giveKeys(const ProjectRecord &project)
{
    QHash<QString, qint64> taken;
    for (const DrawObjRecord &drawObj : project.drawObjs) {
        if (drawObj.key.isEmpty())
            continue;
        m_keys.insert(drawObj.id, drawObj.key);
        taken.insert(drawObj.key, drawObj.id);
    }
    for (const DrawObjRecord &drawObj : project.drawObjs)
        giveKeysTo(drawObj, taken);
}

void ExchangeContent::giveKeysTo(const DrawObjRecord &user, QHash<QString, qint64> &taken)
{
    const auto giveKey = [&](const QString &idText) {
        const DrawObjRecord *named = drawObj(idText.toLongLong());
        if (!named || m_keys.contains(named->id))
            return;
        QString key = QStringLiteral("object-") + idText;
        while (taken.contains(key))
            key += QLatin1Char('\'');
        taken.insert(key, named->id);
        m_keys.insert(named->id, key);
    };
    for (const auto &[name, value] : user.properties) {
        const PropertyEntry *entry = HBXPropertyCatalogue::instance().find(user.type, name, true);
        if (entry && entry->namesDrawObjs())
            forEachReference(entry->role, value, giveKey);
    }
}

std::vector<const FloorRecord *> ExchangeContent::floorsOf(qint64 regionId) const
{
    std::vector<const FloorRecord *> floors;
    for (const FloorRecord &floor : m_project.floors)
        if (floor.regionId == regionId)
            floors.push_back(&floor);
    return floors;
}

std::optional<QString> ExchangeContent::keyOfId(const QString &id) const
{
    const auto key = m_keys.constFind(id.toLongLong());
    return key == m_keys.constEnd() ? std::nullopt : std::optional(*key);
}

QHash<qint64, int> ExchangeContent::creationOrderOf(int floorId) const
{
    std::vector<qint64> ids; // in file order
    for (const ElementRecord *each : elementsOf(floorId))
        for (const DrawObjRecord *drawObj : drawObjsOf(each->id)) {
            ids.push_back(drawObj->id);
            for (const DrawObjRecord *child : childrenOf(drawObj->id))
                ids.push_back(child->id);
        }
    QHash<qint64, int> order;
    if (std::is_sorted(ids.begin(), ids.end()))
        return order;
    std::sort(ids.begin(), ids.end());
    for (std::size_t i = 0; i < ids.size(); ++i)
        order.insert(ids[i], static_cast<int>(i));
    return order;
}

} // namespace hbx::embedded

#include "ModelSerialization/SlabBarWriting.h"

#include "ModelSerialization/SlabHostKeys.h"
#include "ModelSerialization/SlabsOfBars.h"
#include "platform/host/IHBXCurState.h"
#include "platform/host/IHBXDrawObjStatus.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXFaceShape2D.h"
#include "platform/host/IHBXLineShape2D.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXProperties.h"
#include "platform/services/ValidateBarInfo.h"

#include <algorithm>

namespace slabhost {
namespace {

using Slabs = std::vector<IHBXElementDrawObj *>;
using Group = std::vector<SlabBarRecord>;

constexpr bool kBarFlag = true; // of every write to a bar
constexpr int kAnyLayerKind = -1;
constexpr int kNoSlab = -1;
constexpr int kStraddling = 1; // "Type"

/** Takes the links to a bar out of its slabs again, unless the bar stays. */
class SlabLinkGuard
{
public:
    explicit SlabLinkGuard(const Slabs &slabs)
    {
        QString links;
        for (IHBXElementDrawObj *slab : slabs)
            if (const IHBXProperties *properties = slab->properties())
                m_links.emplace_back(slab, properties->asString(links, property::reinforcementInfo));
    }
    ~SlabLinkGuard()
    {
        for (const auto &[slab, links] : m_links)
            restore(*slab, links);
    }
    SlabLinkGuard(const SlabLinkGuard &) = delete;
    SlabLinkGuard &operator=(const SlabLinkGuard &) = delete;

    void release() { m_links.clear(); }

private:
    static void restore(IHBXElementDrawObj &slab, const QString &links)
    {
        try {
            QString held;
            IHBXProperties *properties = slab.properties();
            if (properties && properties->asString(held, property::reinforcementInfo) != links)
                properties->setString(property::reinforcementInfo, links, kBarFlag);
        } catch (...) {
            // The host does not take back what it gave: the others are restored all the same.
        }
    }

    std::vector<std::pair<IHBXElementDrawObj *, QString>> m_links; // what the slabs had before
};

ElementRule ruleOf(const SlabBarKind &kind, const SlabBarRecord &record)
{
    const QString barInfo = record.barInfo;
    return {kind.type, kind.subType, record.name,
            [barInfo](const IHBXProperties &properties) {
                QString held;
                return properties.asString(held, property::barInfo) == barInfo;
            },
            [barInfo, straddles = kind.straddles](IHBXElement & /*element*/, IHBXProperties &properties) {
                properties.setString(property::barInfo, barInfo, kBarFlag);
                if (straddles)
                    properties.setInt(property::type, kStraddling, kBarFlag);
            }};
}

void writeProperties(const SlabBarKind &kind, const SlabBarRecord &record, IHBXElementDrawObj &bar)
{
    if (IHBXProperties *properties = bar.properties())
        for (const SlabBarProperty &property : kind.properties)
            property.write(record, *properties);
}

/** Names the first of its slabs at a bar: name[id]. */
void writeCatalog(IHBXElementDrawObj &bar, const Slabs &slabs)
{
    IHBXProperties *properties = bar.properties();
    if (slabs.empty() || !properties || !properties->hasProperty(property::catalog))
        return;
    QString name;
    if (const IHBXElement *element = slabs.front()->element())
        element->name(name);
    const QString id = QString::number(slabs.front()->id());
    properties->setString(property::catalog, QStringLiteral("%1[%2]").arg(name, id), kBarFlag);
}

// Both give false for a bar that may not stay.

bool enterAreaBar(const SlabBarTarget &target, const SlabBarKind &kind, const SlabBarRecord &record,
                  IHBXElementDrawObj &bar)
{
    writeProperties(kind, record, bar);
    if (auto *shape = dynamic_cast<IHBXFaceShape2D *>(bar.shape()))
        shape->setPolygon(record.area);
    target.floor.model.drawObjects()->addDrawObj(&bar);
    const Slabs slabs = findBoardEdosByPoly(target.slabs, record.area);
    SlabLinkGuard links(slabs);
    syncReinfInfo(&target.service, &bar, slabs);
    writeCatalog(bar, slabs);
    const bool stays = passesCheck(target.floor, bar);
    if (stays)
        links.release();
    return stays;
}

/** The slab that a line bar now depends on, as the host holds it. */
int dependOnSlab(const SlabBarTarget &target, const SlabBarRecord &record, IHBXElementDrawObj &bar)
{
    IHBXProperties *properties = bar.properties();
    const IHBXElementDrawObj *slab = findBoardByCurve(target.slabs, record.curve);
    if (properties)
        properties->setInt(property::dependSlabId, slab ? static_cast<int>(slab->id()) : kNoSlab, kBarFlag);
    target.floor.model.drawObjects()->addDrawObj(&bar);
    return properties ? properties->asInt(property::dependSlabId) : kNoSlab;
}

bool enterLineBar(const SlabBarTarget &target, const SlabBarKind &kind, const SlabBarRecord &record,
                  IHBXElementDrawObj &bar)
{
    if (IHBXCurState *state = target.floor.state)
        bar.status()->setLayer(state->currentLayer(kAnyLayerKind));
    writeProperties(kind, record, bar);
    if (auto *shape = dynamic_cast<IHBXLineShape2D *>(bar.shape()))
        shape->setLine(record.line);
    const int slabId = dependOnSlab(target, record, bar);
    // Meant: the bars of rafts, too, are compared with the negative bars of slabs.
    return checkBFJOverlap(&target.service, slabId, record.line, static_cast<int>(type::slabNegativeBar),
                           static_cast<int>(bar.id()));
}

using EnterBar = bool (*)(const SlabBarTarget &, const SlabBarKind &, const SlabBarRecord &, IHBXElementDrawObj &);

void writeBars(const SlabBarTarget &target, const SlabBarKind &kind, std::vector<SlabBarRecord> records, EnterBar enter)
{
    const auto isInvalid = [](const Group &group) { return !ValidateBarInfo(kSlabBarInfo, group.front().barInfo); };
    auto groups =
        grouped(std::move(records), [](const SlabBarRecord &record) { return std::pair(record.name, record.barInfo); });
    groups.erase(std::remove_if(groups.begin(), groups.end(), isInvalid), groups.end());
    writeGroups(
        target.floor, groups, [&kind](const Group &group) { return ruleOf(kind, group.front()); },
        [&](IHBXElement &element, const SlabBarRecord &record) {
            return writeDrawObj(target.floor, element,
                                [&](IHBXElementDrawObj &bar) { return enter(target, kind, record, bar); });
        });
}

} // namespace

void writeAreaBars(const SlabBarTarget &target, const SlabBarKind &kind, std::vector<SlabBarRecord> records)
{
    writeBars(target, kind, std::move(records), enterAreaBar);
}

void writeLineBars(const SlabBarTarget &target, const SlabBarKind &kind, std::vector<SlabBarRecord> records)
{
    writeBars(target, kind, std::move(records), enterLineBar);
}

} // namespace slabhost

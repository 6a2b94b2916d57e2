#include "ModelSerialization/HostBarRows.h"

#include "ModelSerialization/HostSlabValues.h"
#include "ModelSerialization/SlabHostKeys.h"
#include "platform/dwgx/DWGXBaseBoxTree.h"
#include "slab/SlabBarDirection.h"

#include <algorithm>
#include <deque>
#include <map>
#include <memory>
#include <set>
#include <tuple>
#include <utility>

namespace slabhost {
namespace {

/** Sorts a group by a key of its bars and adds them to the numbered ones. */
template <typename Bar, typename KeyOf>
void number(std::vector<Bar> &group, const KeyOf &keyOf, std::vector<NumberedBar> &out)
{
    std::stable_sort(group.begin(), group.end(), [&](const Bar &a, const Bar &b) { return keyOf(a) < keyOf(b); });
    int row = 0;
    for (const Bar &bar : group)
        out.push_back({bar.object, row++});
}

// ---- Area bars

struct AreaBar
{
    IHBXElementDrawObj *object;
    CurvePtr curve;
    QString barInfo;
};

using AreaGroups = std::vector<std::vector<AreaBar>>;
using SlabIds = std::set<qint64>;

constexpr int kFieldsOfLink = 2;

SlabIds slabsOf(const HostSlabValues &values)
{
    const HostSlabLinks links(values.text(property::reinforcementInfo));
    SlabIds ids;
    for (int i = 0; i < links.count(); ++i)
        if (links.fields(i).size() == kFieldsOfLink)
            ids.insert(links.id(i));
    return ids;
}

bool areParallel(const AreaBar &a, const AreaBar &b)
{
    if (!a.curve || !b.curve)
        return !a.curve && !b.curve;
    return isSameDirPi(a.curve->EndVt(), b.curve->EndVt());
}

void join(AreaGroups &groups, const AreaBar &bar)
{
    bool joined = false;
    for (std::vector<AreaBar> &group : groups) { // meant: all of them are tried, so a bar may stand in two
        if (areParallel(group.front(), bar)) {
            group.push_back(bar);
            joined = true;
        }
    }
    if (!joined)
        groups.push_back({bar});
}

// ---- Line bars

struct LineBar
{
    IHBXElementDrawObj *object;
    CurvePtr curve;
    BarReach reach;
    QString barInfo;
    int leftLabel;
    int rightLabel;
};

LineBar lineBar(IHBXElementDrawObj *object)
{
    const HostSlabValues values(*object);
    LineBar bar{object,
                planCurve(*object),
                BarReach::ToBoth,
                values.text(property::barInfo),
                values.integer(property::leftLabel),
                values.integer(property::rightLabel)};
    bar.reach = barReach(bar.curve, bar.leftLabel, bar.rightLabel);
    return bar;
}

/** Groups of bars on one line, found by the boxes of their first bars. */
class LineGroups
{
public:
    using Group = std::vector<LineBar>;

    void join(LineBar bar)
    {
        m_tree->getIntersectantData(bar.curve->Box(), m_hits);
        const auto hit = std::find_if(m_hits.begin(), m_hits.end(), [&bar](void *group) {
            const LineBar &leader = static_cast<Group *>(group)->front();
            return leader.reach == bar.reach && isSameLine(leader.curve, bar.curve);
        });
        if (hit == m_hits.end())
            lead(std::move(bar));
        else
            static_cast<Group *>(*hit)->push_back(std::move(bar));
    }
    std::deque<Group> &all() { return m_groups; }

private:
    void lead(LineBar bar)
    {
        const vks::CBox2<double> box = bar.curve->Box();
        m_groups.emplace_back().push_back(std::move(bar));
        m_tree->add(box, &m_groups.back());
    }

    std::unique_ptr<dwgx::DWGXBaseBoxTree> m_tree{dwgx::DWGXBaseBoxTree::createObject()};
    std::deque<Group> m_groups; // whose members stay where they are: the tree points to them
    std::vector<void *> m_hits;
};

} // namespace

std::vector<NumberedBar> areaBarRows(const QList<IHBXElementDrawObj *> &bars)
{
    std::map<std::pair<SlabIds, int>, AreaGroups> groupsOfPlace;
    for (IHBXElementDrawObj *object : bars) {
        const HostSlabValues values(*object);
        SlabIds slabs = slabsOf(values);
        if (!slabs.empty()) // meant: a bar of no slab has no row, and comes in nowhere
            join(groupsOfPlace[{std::move(slabs), values.integer(property::position)}],
                 {object, values.curve(property::curveData), values.text(property::barInfo)});
    }
    std::vector<NumberedBar> rows;
    for (auto &place : groupsOfPlace)
        for (std::vector<AreaBar> &group : place.second)
            number(
                group, [](const AreaBar &bar) -> const QString & { return bar.barInfo; }, rows);
    return rows;
}

std::vector<NumberedBar> lineBarRows(const QList<IHBXElementDrawObj *> &bars)
{
    LineGroups groups;
    for (IHBXElementDrawObj *object : bars)
        if (LineBar bar = lineBar(object); bar.curve)
            groups.join(std::move(bar));
    std::vector<NumberedBar> rows;
    for (LineGroups::Group &group : groups.all())
        number(
            group, [](const LineBar &bar) { return std::tie(bar.barInfo, bar.leftLabel, bar.rightLabel); }, rows);
    return rows;
}

} // namespace slabhost

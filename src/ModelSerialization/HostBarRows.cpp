#include "ModelSerialization/HostBarRows.h"

#include "ModelSerialization/HostSlabValues.h"
#include "ModelSerialization/SlabHostKeys.h"
#include "platform/dwgx/DWGXBaseBoxTree.h"
#include "slab/SlabBarDirection.h"

#include <QVarLengthArray>

#include <algorithm>
#include <deque>
#include <memory>
#include <tuple>
#include <utility>

namespace slabhost {
namespace {

/** Sorts a group of pointers by a key of its bars and adds them to the numbered ones. */
template <typename Bar, typename KeyOf>
void number(std::vector<Bar> &group, const KeyOf &keyOf, std::vector<NumberedBar> &out)
{
    std::stable_sort(group.begin(), group.end(), [&](const Bar &a, const Bar &b) { return keyOf(*a) < keyOf(*b); });
    int row = 0;
    for (const Bar &bar : group)
        out.push_back({bar->object, row++});
}

// ---- Area bars

constexpr int kFieldsOfLink = 2;

using SlabIds = QVarLengthArray<qint64, 4>; // ascending, each once

struct AreaBar
{
    IHBXElementDrawObj *object;
    SlabIds slabs;
    int position;
    CurvePtr curve;
    QString barInfo;
};

using AreaGroup = std::vector<const AreaBar *>;

SlabIds slabsOf(const HostSlabValues &values)
{
    const HostSlabLinks links(values.text(property::reinforcementInfo));
    SlabIds ids;
    for (int i = 0; i < links.count(); ++i)
        if (links.fieldCount(i) == kFieldsOfLink)
            ids.append(links.id(i));
    std::sort(ids.begin(), ids.end());
    ids.resize(static_cast<int>(std::unique(ids.begin(), ids.end()) - ids.begin()));
    return ids;
}

/** In the order in which they come. */
struct AreaBars
{
    std::vector<AreaBar> single;
    std::vector<AreaBar> straddling;
};

AreaBars areaBars(const QList<IHBXElementDrawObj *> &objects)
{
    AreaBars bars;
    for (IHBXElementDrawObj *object : objects) {
        const HostSlabValues values(*object);
        const SlabIds slabs = slabsOf(values);
        if (slabs.isEmpty()) // meant: a bar of no slab has no row, and comes in nowhere
            continue;
        const bool isSingle = values.integer(property::type) == 0;
        (isSingle ? bars.single : bars.straddling)
            .push_back({object, slabs, values.integer(property::position), values.curve(property::curveData),
                        values.text(property::barInfo)});
    }
    return bars;
}

bool hasEarlierPlace(const AreaBar *a, const AreaBar *b)
{
    if (a->slabs == b->slabs)
        return a->position < b->position;
    return std::lexicographical_compare(a->slabs.begin(), a->slabs.end(), b->slabs.begin(), b->slabs.end());
}

bool areParallel(const AreaBar &a, const AreaBar &b)
{
    if (!a.curve || !b.curve)
        return !a.curve && !b.curve;
    return isSameDirPi(a.curve->EndVt(), b.curve->EndVt());
}

void join(std::vector<AreaGroup> &groups, const AreaBar &bar)
{
    bool joined = false;
    for (AreaGroup &group : groups) { // meant: all of them are tried, so a bar may stand in two
        if (areParallel(*group.front(), bar)) {
            group.push_back(&bar);
            joined = true;
        }
    }
    if (!joined)
        groups.push_back({&bar});
}

std::vector<NumberedBar> rowsOf(const std::vector<AreaBar> &bars)
{
    std::vector<const AreaBar *> sorted;
    sorted.reserve(bars.size());
    for (const AreaBar &bar : bars)
        sorted.push_back(&bar);
    std::stable_sort(sorted.begin(), sorted.end(), hasEarlierPlace);

    std::vector<NumberedBar> rows;
    rows.reserve(bars.size());
    for (auto first = sorted.begin(); first != sorted.end();) {
        std::vector<AreaGroup> groups;
        const AreaBar *place = *first;
        for (; first != sorted.end() && !hasEarlierPlace(place, *first); ++first)
            join(groups, **first);
        for (AreaGroup &group : groups)
            number(
                group, [](const AreaBar &bar) -> const QString & { return bar.barInfo; }, rows);
    }
    return rows;
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
    using Group = std::vector<const LineBar *>;

    void join(LineBar one)
    {
        const LineBar &bar = m_bars.emplace_back(std::move(one));
        m_tree->getIntersectantData(bar.curve->Box(), m_hits);
        const auto hit = std::find_if(m_hits.begin(), m_hits.end(), [&bar](void *group) {
            const LineBar &leader = *static_cast<Group *>(group)->front();
            return leader.reach == bar.reach && isSameLine(leader.curve, bar.curve);
        });
        if (hit == m_hits.end())
            lead(bar);
        else
            static_cast<Group *>(*hit)->push_back(&bar);
    }
    std::deque<Group> &all() { return m_groups; }

private:
    void lead(const LineBar &bar)
    {
        m_groups.emplace_back().push_back(&bar);
        m_tree->add(bar.curve->Box(), &m_groups.back());
    }

    std::unique_ptr<dwgx::DWGXBaseBoxTree> m_tree{dwgx::DWGXBaseBoxTree::createObject()};
    // Members of these stay where they are: groups point to bars, and the tree to groups.
    std::deque<LineBar> m_bars;
    std::deque<Group> m_groups;
    std::vector<void *> m_hits;
};

} // namespace

AreaBarRows areaBarRows(const QList<IHBXElementDrawObj *> &objects)
{
    const AreaBars bars = areaBars(objects);
    return {rowsOf(bars.single), rowsOf(bars.straddling)};
}

std::vector<NumberedBar> lineBarRows(const QList<IHBXElementDrawObj *> &bars)
{
    LineGroups groups;
    for (IHBXElementDrawObj *object : bars)
        if (LineBar bar = lineBar(object); bar.curve)
            groups.join(std::move(bar));
    std::vector<NumberedBar> rows;
    rows.reserve(static_cast<std::size_t>(bars.size()));
    for (LineGroups::Group &group : groups.all())
        number(
            group, [](const LineBar &bar) { return std::tie(bar.barInfo, bar.leftLabel, bar.rightLabel); }, rows);
    return rows;
}

} // namespace slabhost

#include "cli/ProjectDifference.h"

#include "cli/ProjectPairs.h"
#include "cli/RecordFacts.h"
#include "cli/RecordIndex.h"
#include "platform/embedded/ExchangeFormat.h"
#include "platform/embedded/HBXModelStore.h"
#include "platform/embedded/HBXProject.h"

#include <optional>

using namespace hbx::embedded;

namespace orvcad {

namespace {

namespace key = exchange::key;

using State = ProjectDifference::State;
using Changes = ProjectDifference::Changes;

template <typename Record> State stateOf(const RecordPair<Record> &pair, const Changes &changes)
{
    if (!pair.isWhole())
        return pair.after ? State::Added : State::Gone;
    return changes.empty() ? State::Same : State::Changed;
}

class DifferenceMaker
{
public:
    DifferenceMaker(const ProjectRecord &before, const ProjectRecord &after)
        : m_pairs(pairsOf(before, after)), m_before(before), m_after(after)
    {
        m_result.isById = m_pairs.isById;
        m_result.compared = static_cast<int>(after.drawObjs.size());
        const ProjectSettings &settings = before;
        const ProjectSettings &later = after;
        m_result.changes = differencesBetween(factsOf(settings), factsOf(later));
    }

    ProjectDifference make()
    {
        for (const ProjectPairs::Region &pair : m_pairs.regions) {
            const auto region = regionOf(pair);
            if (!region.isSame())
                m_result.regions.push_back(region);
        }
        return m_result;
    }

private:
    ProjectDifference::Region regionOf(const ProjectPairs::Region &pair);
    ProjectDifference::Floor floorOf(const ProjectPairs::Floor &pair);
    ProjectDifference::Element elementOf(const ProjectPairs::Element &pair);
    ProjectDifference::Object objectOf(const ProjectPairs::Object &pair, const ProjectPairs::Element &element) const;
    template <typename Record> Changes changesOf(const RecordPair<Record> &pair) const;
    void appendLinks(const ProjectPairs::Object &pair, Changes &changes) const;

    const ProjectPairs m_pairs;
    const RecordIndex m_before;
    const RecordIndex m_after;
    ProjectDifference m_result;
};

/** Of records that name objects: those that both projects have are called alike. */
template <typename Record> Changes DifferenceMaker::changesOf(const RecordPair<Record> &pair) const
{
    using Name = std::optional<QString>;
    const auto earlier = [this](const QString &id) {
        return m_before.objects.contains(id.toLongLong()) ? Name(QStringLiteral("#%1").arg(id)) : std::nullopt;
    };
    const auto later = [this](const QString &id) {
        const qint64 earlierId = m_pairs.earlierIds.value(id.toLongLong());
        if (!m_after.objects.contains(id.toLongLong()))
            return Name();
        return Name(earlierId ? QStringLiteral("#%1").arg(earlierId) : QStringLiteral("new #%1").arg(id));
    };
    return differencesBetween(factsOf(*pair.before, earlier), factsOf(*pair.after, later));
}

ProjectDifference::Region DifferenceMaker::regionOf(const ProjectPairs::Region &pair)
{
    ProjectDifference::Region region{stateOf(pair, {}), pair.either().name, {}};
    for (const ProjectPairs::Floor &each : pair.floors) {
        const auto floor = floorOf(each);
        m_result.floors.emplace_back(floor.idBefore, floor.idAfter);
        if (!floor.isSame())
            region.floors.push_back(floor);
    }
    return region;
}

ProjectDifference::Floor DifferenceMaker::floorOf(const ProjectPairs::Floor &pair)
{
    ProjectDifference::Floor floor;
    floor.name = pair.either().name;
    floor.idBefore = pair.before ? pair.before->id : 0;
    floor.idAfter = pair.after ? pair.after->id : 0;
    if (pair.isWhole())
        floor.changes = differencesBetween(factsOf(*pair.before), factsOf(*pair.after));
    floor.state = stateOf(pair, floor.changes);
    m_result.floorCounts.add(floor.state);
    for (const ProjectPairs::Element &each : pair.elements) {
        const auto element = elementOf(each);
        if (!element.isSame())
            floor.elements.push_back(element);
    }
    return floor;
}

ProjectDifference::Element DifferenceMaker::elementOf(const ProjectPairs::Element &pair)
{
    ProjectDifference::Element element;
    element.name = pair.either().name;
    element.type = pair.either().type;
    element.idBefore = pair.before ? pair.before->id : 0;
    element.idAfter = pair.after ? pair.after->id : 0;
    if (pair.isWhole())
        element.changes = changesOf(pair);
    element.state = stateOf(pair, element.changes);
    m_result.elementCounts.add(element.state);
    for (const ProjectPairs::Object &each : pair.objects) {
        const auto object = objectOf(each, pair);
        m_result.objectCounts.add(object.state);
        if (object.state != State::Same)
            element.objects.push_back(object);
    }
    return element;
}

ProjectDifference::Object DifferenceMaker::objectOf(const ProjectPairs::Object &pair,
                                                    const ProjectPairs::Element &element) const
{
    ProjectDifference::Object object;
    object.idBefore = pair.before ? pair.before->id : 0;
    object.idAfter = pair.after ? pair.after->id : 0;
    if (pair.isWhole()) {
        if (!pair.isAlike || namesObjects(pair.after->properties, pair.after->type))
            object.changes = changesOf(pair);
        appendLinks(pair, object.changes);
        const ElementRecord *was = m_before.elements.value(pair.before->elementId);
        if (was != element.before)
            object.changes.push_back(
                {QStringLiteral("element"), {}, RecordIndex::words(was), RecordIndex::words(element.after)});
    }
    object.state = stateOf(pair, object.changes);
    return object;
}

/** Chain, owner and attachment, which are the same where they lead to the same object. */
void DifferenceMaker::appendLinks(const ProjectPairs::Object &pair, Changes &changes) const
{
    struct Link
    {
        QLatin1String key;
        qint64 DrawObjRecord::*id;
    };
    static const Link links[] = {{key::next, &DrawObjRecord::next},
                                 {QLatin1String("owner"), &DrawObjRecord::owner},
                                 {key::attachedTo, &DrawObjRecord::attachedTo}};
    for (const Link &link : links) {
        const qint64 before = pair.before->*link.id;
        const qint64 after = pair.after->*link.id;
        if (before == 0 ? after != 0 : m_pairs.laterIds.value(before) != after)
            changes.push_back({link.key, {link.key}, m_before.words(before), m_after.words(after)});
    }
}

} // namespace

void ProjectDifference::Counts::add(State state)
{
    added += state == State::Added ? 1 : 0;
    gone += state == State::Gone ? 1 : 0;
    changed += state == State::Changed ? 1 : 0;
}

ProjectDifference differenceBetween(const HBXProject &before, const HBXProject &after)
{
    const ProjectRecord one = before.store().snapshot();
    const ProjectRecord other = after.store().snapshot();
    return DifferenceMaker(one, other).make();
}

} // namespace orvcad

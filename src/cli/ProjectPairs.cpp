#include "cli/ProjectPairs.h"

#include "cli/RecordFacts.h"
#include "platform/embedded/ExchangeContent.h"
#include "platform/embedded/ExchangeFormat.h"

#include <QJsonDocument>
#include <QSet>

#include <algorithm>
#include <optional>
#include <tuple>
#include <type_traits>
#include <utility>

using namespace hbx::embedded;

namespace orvcad {

namespace {

template <typename Record> using Records = std::vector<const Record *>;

/** Makes pairs out of two lists, and keeps those that are left. */
template <typename Record> class Pairing
{
public:
    Pairing(Records<Record> before, Records<Record> after) : m_before(std::move(before)), m_after(std::move(after)) {}

    /** Pairs records of equal keys: those of one id first, the others in the order of their ids. */
    template <typename KeyOf> Pairing &pairBy(KeyOf keyOf)
    {
        const auto before = sorted(std::exchange(m_before, {}), keyOf);
        const auto after = sorted(std::exchange(m_after, {}), keyOf);
        auto one = before.begin();
        auto other = after.begin();
        while (one != before.end() || other != after.end()) {
            const bool isFirst = other == after.end() || (one != before.end() && !(other->key < one->key));
            const auto &key = isFirst ? one->key : other->key;
            const auto oneEnd = endOf(one, before.end(), key);
            const auto otherEnd = endOf(other, after.end(), key);
            pairAlike(one, oneEnd, other, otherEnd);
            one = oneEnd;
            other = otherEnd;
        }
        return *this;
    }

    const std::vector<RecordPair<Record>> &pairs() const { return m_pairs; }
    /** The pairs, and a pair of one for each record that is left. */
    std::vector<RecordPair<Record>> all() const
    {
        std::vector<RecordPair<Record>> all = m_pairs;
        for (const Record *record : m_before)
            all.push_back({record, nullptr});
        for (const Record *record : m_after)
            all.push_back({nullptr, record});
        return all;
    }
    const Records<Record> &leftBefore() const { return m_before; }
    const Records<Record> &leftAfter() const { return m_after; }

private:
    template <typename Key> struct Keyed
    {
        Key key;
        const Record *record;
    };

    template <typename KeyOf> static auto sorted(const Records<Record> &records, KeyOf keyOf)
    {
        using Key = std::decay_t<decltype(keyOf(*records.front()))>;
        std::vector<Keyed<Key>> list;
        list.reserve(records.size());
        for (const Record *record : records)
            list.push_back({keyOf(*record), record});
        std::sort(list.begin(), list.end(), [](const auto &a, const auto &b) {
            return std::tie(a.key, a.record->id) < std::tie(b.key, b.record->id);
        });
        return list;
    }
    template <typename Place, typename Key> static Place endOf(Place from, Place end, const Key &key)
    {
        return std::find_if(from, end, [&key](const auto &each) { return key < each.key; });
    }

    /** Both ranges have one key, and rising ids. */
    template <typename Place> void pairAlike(Place one, Place oneEnd, Place other, Place otherEnd)
    {
        Records<Record> before;
        Records<Record> after;
        while (one != oneEnd || other != otherEnd) {
            if (other == otherEnd || (one != oneEnd && one->record->id < other->record->id))
                before.push_back((one++)->record);
            else if (one == oneEnd || other->record->id < one->record->id)
                after.push_back((other++)->record);
            else
                m_pairs.push_back({(one++)->record, (other++)->record});
        }
        const std::size_t both = std::min(before.size(), after.size());
        for (std::size_t i = 0; i < both; ++i)
            m_pairs.push_back({before[i], after[i]});
        const auto rest = static_cast<std::ptrdiff_t>(both);
        m_before.insert(m_before.end(), before.begin() + rest, before.end());
        m_after.insert(m_after.end(), after.begin() + rest, after.end());
    }

    Records<Record> m_before;
    Records<Record> m_after;
    std::vector<RecordPair<Record>> m_pairs;
};

template <typename Record> Records<Record> pointersTo(const std::vector<Record> &records)
{
    Records<Record> pointers;
    pointers.reserve(records.size());
    for (const Record &record : records)
        pointers.push_back(&record);
    return pointers;
}

QByteArray textOf(const QJsonObject &facts) { return QJsonDocument(facts).toJson(QJsonDocument::Compact); }

std::optional<QString> noObject(const QString & /*id*/) { return std::nullopt; }

/** What an object holds, but for the objects that it names. */
QByteArray contentOf(const DrawObjRecord &object) { return textOf(factsOf(object, noObject)); }

QByteArray shapeOf(const DrawObjRecord &object)
{
    return textOf(factsOf(object, noObject)[exchange::key::shape].toObject());
}

auto typeAndName(const ElementRecord &element) { return std::make_tuple(element.type, element.name); }
auto typeAndId(const ElementRecord &element) { return std::make_tuple(element.type, element.id); }

/** One of the two projects. */
struct Side
{
    explicit Side(const ProjectRecord &project) : record(project), content(project)
    {
        for (const DrawObjRecord &object : project.drawObjs)
            objects[object.elementId].push_back(&object);
    }
    Records<FloorRecord> floorsOf(const RegionRecord *region) const
    {
        return region ? content.floorsOf(region->id) : Records<FloorRecord>();
    }
    Records<ElementRecord> elementsOf(const FloorRecord *floor) const
    {
        return floor ? content.elementsOf(floor->id) : Records<ElementRecord>();
    }
    Records<ElementRecord> unitsOf(const ElementRecord *element) const
    {
        return element ? content.unitsOf(element->id) : Records<ElementRecord>();
    }
    Records<DrawObjRecord> objectsOf(const ElementRecord *element) const
    {
        return element ? objects.value(element->id) : Records<DrawObjRecord>();
    }

    const ProjectRecord &record;
    ExchangeContent content;
    QHash<qint64, Records<DrawObjRecord>> objects; ///< by element, children too
};

class PairMaker
{
public:
    PairMaker(const ProjectRecord &before, const ProjectRecord &after) : m_before(before), m_after(after) {}

    ProjectPairs make()
    {
        pairRegions();
        m_pairs.isById = comeFromOne();
        forEachFloor([this](ProjectPairs::Floor &floor) { pairElements(floor); });
        pairObjectsByContent();
        if (m_pairs.isById)
            pairObjectsById();
        pairObjectsByShape();
        forEachFloor([this](ProjectPairs::Floor &floor) {
            for (ProjectPairs::Element &element : floor.elements)
                listObjects(element);
        });
        return std::move(m_pairs);
    }

private:
    template <typename Visit> void forEachFloor(Visit visit)
    {
        for (ProjectPairs::Region &region : m_pairs.regions)
            for (ProjectPairs::Floor &floor : region.floors)
                visit(floor);
    }
    template <typename Visit> void forEachElement(Visit visit)
    {
        forEachFloor([&visit](ProjectPairs::Floor &floor) {
            for (ProjectPairs::Element &element : floor.elements)
                visit(element);
        });
    }

    void pairRegions();
    bool comeFromOne();
    void pairElements(ProjectPairs::Floor &floor);
    void pairObjectsByContent();
    void pairObjectsById();
    void pairObjectsByShape();
    void listObjects(ProjectPairs::Element &element) const;
    Pairing<DrawObjRecord> leftObjects(const ProjectPairs::Element &element) const;
    void keep(const std::vector<RecordPair<DrawObjRecord>> &pairs);

    Side m_before;
    Side m_after;
    ProjectPairs m_pairs;
    QSet<qint64> m_alike; // later ids
};

void PairMaker::pairRegions()
{
    Pairing<RegionRecord> regions(pointersTo(m_before.record.regions), pointersTo(m_after.record.regions));
    regions.pairBy([](const RegionRecord &region) { return region.name; });
    for (const auto &pair : regions.all()) {
        Pairing<FloorRecord> floors(m_before.floorsOf(pair.before), m_after.floorsOf(pair.after));
        floors.pairBy([](const FloorRecord &floor) { return floor.name; });
        floors.pairBy([](const FloorRecord &floor) { return floor.code; });
        ProjectPairs::Region region{{pair}, {}};
        for (const auto &floor : floors.all())
            region.floors.push_back({{floor}, {}});
        std::stable_sort(region.floors.begin(), region.floors.end(), [](const auto &a, const auto &b) {
            return std::tie(a.either().bottomElev, a.either().id) < std::tie(b.either().bottomElev, b.either().id);
        });
        m_pairs.regions.push_back(region);
    }
}

/** Whether most elements that are called alike have one id. */
bool PairMaker::comeFromOne()
{
    std::size_t alike = 0;
    std::size_t ofOneId = 0;
    forEachFloor([&](const ProjectPairs::Floor &floor) {
        Pairing<ElementRecord> elements(m_before.elementsOf(floor.before), m_after.elementsOf(floor.after));
        for (const auto &pair : elements.pairBy(typeAndName).pairs()) {
            ++alike;
            ofOneId += pair.before->id == pair.after->id ? 1 : 0;
        }
    });
    return alike > 0 && 2 * ofOneId >= alike;
}

void PairMaker::pairElements(ProjectPairs::Floor &floor)
{
    Pairing<ElementRecord> elements(m_before.elementsOf(floor.before), m_after.elementsOf(floor.after));
    elements.pairBy(typeAndName);
    if (m_pairs.isById)
        elements.pairBy(typeAndId);
    auto pairs = elements.all();
    std::stable_sort(pairs.begin(), pairs.end(),
                     [](const auto &a, const auto &b) { return typeAndName(a.either()) < typeAndName(b.either()); });
    for (const auto &pair : pairs) {
        floor.elements.push_back({{pair}, {}});
        Pairing<ElementRecord> units(m_before.unitsOf(pair.before), m_after.unitsOf(pair.after));
        for (const auto &unit : units.pairBy(typeAndName).all())
            floor.elements.push_back({{unit}, {}});
    }
}

/** The objects of an element that have no partner yet. */
Pairing<DrawObjRecord> PairMaker::leftObjects(const ProjectPairs::Element &element) const
{
    const auto without = [](Records<DrawObjRecord> objects, const QHash<qint64, qint64> &partners) {
        objects.erase(std::remove_if(objects.begin(), objects.end(),
                                     [&partners](const auto *object) { return partners.contains(object->id); }),
                      objects.end());
        return objects;
    };
    return {without(m_before.objectsOf(element.before), m_pairs.laterIds),
            without(m_after.objectsOf(element.after), m_pairs.earlierIds)};
}

void PairMaker::keep(const std::vector<RecordPair<DrawObjRecord>> &pairs)
{
    for (const auto &pair : pairs) {
        m_pairs.laterIds.insert(pair.before->id, pair.after->id);
        m_pairs.earlierIds.insert(pair.after->id, pair.before->id);
    }
}

void PairMaker::pairObjectsByContent()
{
    forEachElement([this](const ProjectPairs::Element &element) {
        if (element.isWhole())
            keep(leftObjects(element).pairBy(contentOf).pairs());
    });
    for (auto id = m_pairs.earlierIds.keyBegin(); id != m_pairs.earlierIds.keyEnd(); ++id)
        m_alike.insert(*id);
}

void PairMaker::pairObjectsById()
{
    for (const DrawObjRecord &object : m_before.record.drawObjs) {
        const DrawObjRecord *later = m_after.content.drawObj(object.id);
        if (later && later->type == object.type && !m_pairs.laterIds.contains(object.id) &&
            !m_pairs.earlierIds.contains(object.id))
            keep({{&object, later}});
    }
}

void PairMaker::pairObjectsByShape()
{
    forEachElement([this](const ProjectPairs::Element &element) {
        if (element.isWhole())
            keep(leftObjects(element).pairBy(shapeOf).pairs());
    });
}

void PairMaker::listObjects(ProjectPairs::Element &element) const
{
    for (const DrawObjRecord *object : m_after.objectsOf(element.after))
        element.objects.push_back(
            {{m_before.content.drawObj(m_pairs.earlierIds.value(object->id)), object}, m_alike.contains(object->id)});
    for (const DrawObjRecord *object : m_before.objectsOf(element.before))
        if (!m_pairs.laterIds.contains(object->id))
            element.objects.push_back({{object, nullptr}});
    const auto idsOf = [](const ProjectPairs::Object &pair) {
        return std::make_tuple(pair.before ? pair.before->id : pair.after->id, pair.before == nullptr);
    };
    std::sort(element.objects.begin(), element.objects.end(),
              [&idsOf](const auto &a, const auto &b) { return idsOf(a) < idsOf(b); });
}

} // namespace

ProjectPairs pairsOf(const ProjectRecord &before, const ProjectRecord &after)
{
    return PairMaker(before, after).make();
}

} // namespace orvcad

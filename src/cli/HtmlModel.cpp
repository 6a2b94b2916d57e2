#include "cli/HtmlModel.h"

#include "cli/DifferenceReport.h"
#include "cli/RecordFacts.h"
#include "cli/TypeTitles.h"
#include "platform/embedded/ExchangeFormat.h"

#include <algorithm>
#include <optional>

using namespace hbx::embedded;

namespace orvcad {

namespace {

namespace key = exchange::key;

using State = ProjectDifference::State;

std::optional<QString> calledById(const QString &id) { return '#' + id; }

void tell(QJsonObject &entry, State state, const ProjectDifference::Changes &changes)
{
    entry.insert("state", DifferenceReport::wordFor(state));
    if (!changes.empty())
        entry.insert("changes", DifferenceReport::changesToJson(changes));
}

bool hasOtherShape(const ProjectDifference::Object &object)
{
    return std::any_of(object.changes.begin(), object.changes.end(),
                       [](const JsonDifference &change) { return change.place.startsWith(key::shape); });
}

QJsonArray arrayOf(const std::vector<QJsonObject> &entries)
{
    QJsonArray array;
    for (const QJsonObject &entry : entries)
        array.append(entry);
    return array;
}

} // namespace

HtmlModel::Side::Side(const ProjectRecord &project) : index(project)
{
    for (const ElementRecord &element : project.elements)
        elements[element.floorId].push_back(&element);
    for (const DrawObjRecord &object : project.drawObjs)
        objects[object.elementId].push_back(&object);
}

HtmlModel::HtmlModel(const ProjectRecord &project, const ProjectRecord *earlier, const ProjectDifference *difference)
    : m_side(project), m_difference(difference)
{
    if (earlier)
        m_earlier.emplace_back(*earlier);
}

void HtmlModel::addFloor(const QString &name, const QString &region, int idBefore, int idAfter)
{
    const std::size_t before = m_objects.size();
    m_floors.push_back({{"name", name}, {"region", region}});
    for (const ElementRecord *element : m_side.elements.value(idAfter)) {
        const int place = addElement(*element);
        m_elementPlaces.insert(element->id, place);
        for (const DrawObjRecord *object : m_side.objects.value(element->id))
            m_places.insert(object->id, addObject(m_side, *object, place));
    }
    if (m_difference)
        for (const ProjectDifference::Region &each : m_difference->regions)
            for (const ProjectDifference::Floor &floor : each.floors)
                if (floor.idBefore == idBefore && floor.idAfter == idAfter)
                    addFloorDifference(floor);
    if (m_objects.size() - before > m_mostObjects) {
        m_mostObjects = m_objects.size() - before;
        m_first = static_cast<int>(m_floors.size()) - 1;
    }
}

int HtmlModel::addElement(const ElementRecord &element)
{
    QJsonObject facts = factsOf(element, calledById);
    facts.remove(key::name);
    m_elements.push_back({{"name", element.name},
                          {"type", element.type},
                          {"title", typeTitle(element.type)},
                          {"floor", static_cast<int>(m_floors.size()) - 1},
                          {"facts", facts}});
    m_placed.emplace_back();
    return static_cast<int>(m_elements.size()) - 1;
}

int HtmlModel::addObject(const Side &side, const DrawObjRecord &object, int element)
{
    QJsonObject facts = factsOf(object, calledById);
    const std::pair<QLatin1String, qint64> links[] = {
        {key::attachedTo, object.attachedTo}, {key::next, object.next}, {QLatin1String("owner"), object.owner}};
    for (const auto &[name, id] : links)
        if (id != 0)
            facts.insert(name, side.index.words(id));
    m_objects.push_back({{"id", object.id}, {"element", element}, {"facts", facts}});
    const int place = static_cast<int>(m_objects.size()) - 1;
    m_placed[static_cast<std::size_t>(element)].append(place);
    return place;
}

void HtmlModel::addFloorDifference(const ProjectDifference::Floor &difference)
{
    tell(m_floors.back(), difference.state, difference.changes);
    if (difference.state != State::Same)
        m_floors.back().insert("note", DifferenceReport::wordFor(difference.state));
    for (const ProjectDifference::Element &element : difference.elements)
        addElementDifference(element);
}

void HtmlModel::addElementDifference(const ProjectDifference::Element &difference)
{
    const int place = difference.idAfter ? m_elementPlaces.value(difference.idAfter)
                                         : addElement(*m_earlier.front().index.elements.value(difference.idBefore));
    tell(m_elements[static_cast<std::size_t>(place)], difference.state, difference.changes);
    if (difference.state == State::Changed) // whatever is placed of it changed with it
        for (const DrawObjRecord *object : m_side.objects.value(difference.idAfter))
            m_states.insert(object->id, DifferenceReport::wordFor(difference.state));
    for (const ProjectDifference::Object &object : difference.objects)
        addObjectDifference(object, place);
}

void HtmlModel::addObjectDifference(const ProjectDifference::Object &difference, int element)
{
    const Side &earlier = m_earlier.front();
    const int place = difference.idAfter
                          ? m_places.value(difference.idAfter)
                          : addObject(earlier, *earlier.index.objects.value(difference.idBefore), element);
    tell(m_objects[static_cast<std::size_t>(place)], difference.state, difference.changes);
    if (difference.idAfter)
        m_states.insert(difference.idAfter, DifferenceReport::wordFor(difference.state));
    const bool isGone = difference.state == State::Gone;
    if (isGone || (difference.state == State::Changed && hasOtherShape(difference))) {
        m_earlierPlaces.insert(difference.idBefore, place);
        m_earlierStates.insert(difference.idBefore, isGone ? QStringLiteral("gone") : QStringLiteral("was"));
    }
}

QJsonObject HtmlModel::json(const QList<qint64> &types) const
{
    QJsonArray layers;
    for (const qint64 type : types)
        layers.append(QJsonObject{{"type", type}, {"title", typeTitle(type)}});
    QJsonArray elements;
    for (std::size_t i = 0; i < m_elements.size(); ++i) {
        QJsonObject element = m_elements[i];
        element.insert("objects", m_placed[i]);
        elements.append(element);
    }
    return {{"differences", m_difference != nullptr},
            {"first", m_first},
            {"floors", arrayOf(m_floors)},
            {"types", layers},
            {"elements", elements},
            {"objects", arrayOf(m_objects)}};
}

} // namespace orvcad

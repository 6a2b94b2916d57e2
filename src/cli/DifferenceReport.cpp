#include "cli/DifferenceReport.h"

#include "cli/Counted.h"
#include "cli/Message.h"
#include "cli/ShownValue.h"
#include "cli/TypeTitles.h"

#include <QStringList>

namespace orvcad {

namespace {

using State = ProjectDifference::State;
using Changes = ProjectDifference::Changes;

struct StateWords
{
    State state;
    const char *word;
    char sign;
};
constexpr StateWords kStates[] = {{State::Same, "same", ' '},
                                  {State::Added, "added", '+'},
                                  {State::Gone, "gone", '-'},
                                  {State::Changed, "changed", '~'}};

const StateWords &wordsOf(State state) { return kStates[static_cast<std::size_t>(state)]; }

/** "elements: 2 added, 1 changed"; nothing where all are the same. */
QStringList countText(const QString &what, const ProjectDifference::Counts &counts)
{
    const std::pair<int, const char *> parts[] = {{counts.added, QT_TRANSLATE_NOOP("orvcad", "%1 added")},
                                                  {counts.gone, QT_TRANSLATE_NOOP("orvcad", "%1 gone")},
                                                  {counts.changed, QT_TRANSLATE_NOOP("orvcad", "%1 changed")}};
    QStringList words;
    for (const auto &[number, told] : parts)
        if (number > 0)
            words.append(Message::tr(told).arg(number));
    return words.isEmpty() ? QStringList()
                           : QStringList(QStringLiteral("%1: %2").arg(what, words.join(QStringLiteral(", "))));
}

QJsonObject countsToJson(const ProjectDifference::Counts &counts)
{
    return {{"added", counts.added}, {"gone", counts.gone}, {"changed", counts.changed}};
}

template <typename Entry> QJsonArray listOf(const std::vector<Entry> &entries, QJsonObject (*toJson)(const Entry &))
{
    QJsonArray json;
    for (const Entry &entry : entries)
        json.append(toJson(entry));
    return json;
}

QJsonObject objectToJson(const ProjectDifference::Object &object)
{
    QJsonObject json{{"state", DifferenceReport::wordFor(object.state)},
                     {"changes", DifferenceReport::changesToJson(object.changes)}};
    if (object.idBefore)
        json.insert("idBefore", object.idBefore);
    if (object.idAfter)
        json.insert("idAfter", object.idAfter);
    return json;
}

QJsonObject elementToJson(const ProjectDifference::Element &element)
{
    return {{"name", element.name},
            {"type", element.type},
            {"title", typeTitle(element.type)},
            {"state", DifferenceReport::wordFor(element.state)},
            {"changes", DifferenceReport::changesToJson(element.changes)},
            {"drawObjects", listOf(element.objects, objectToJson)}};
}

QJsonObject floorToJson(const ProjectDifference::Floor &floor)
{
    return {{"name", floor.name},
            {"state", DifferenceReport::wordFor(floor.state)},
            {"changes", DifferenceReport::changesToJson(floor.changes)},
            {"elements", listOf(floor.elements, elementToJson)}};
}

QJsonObject regionToJson(const ProjectDifference::Region &region)
{
    return {{"name", region.name},
            {"state", DifferenceReport::wordFor(region.state)},
            {"floors", listOf(region.floors, floorToJson)}};
}

/** Lines of the listing, each as deep as what it is about. */
class Listing
{
public:
    void addChanges(int depth, const Changes &changes)
    {
        for (const JsonDifference &change : changes)
            add(depth, State::Same,
                QStringLiteral("%1: %2 -> %3").arg(change.place, shownValue(change.before), shownValue(change.after)));
    }
    void addRegion(const ProjectDifference::Region &region)
    {
        add(0, region.state, Message::tr("region %1").arg(region.name));
        for (const ProjectDifference::Floor &floor : region.floors)
            addFloor(floor);
    }
    QString text() const { return m_lines.join('\n'); }

private:
    void add(int depth, State state, const QString &text)
    {
        m_lines.append(QStringLiteral("%1%2 %3").arg(QString(2 * depth, ' '), QChar(wordsOf(state).sign), text));
    }
    void addFloor(const ProjectDifference::Floor &floor)
    {
        add(1, floor.state, Message::tr("floor %1").arg(floor.name));
        addChanges(2, floor.changes);
        for (const ProjectDifference::Element &element : floor.elements)
            addElement(element);
    }
    void addElement(const ProjectDifference::Element &element)
    {
        add(2, element.state, QStringLiteral("%1 %2").arg(shownTypeTitle(element.type), element.name));
        addChanges(3, element.changes);
        for (const ProjectDifference::Object &object : element.objects) {
            add(3, object.state, Message::tr("object %1").arg(object.idAfter ? object.idAfter : object.idBefore));
            addChanges(4, object.changes);
        }
    }

    QStringList m_lines;
};

} // namespace

QString DifferenceReport::wordFor(State state) { return QString::fromLatin1(wordsOf(state).word); }

QJsonArray DifferenceReport::changesToJson(const Changes &changes)
{
    QJsonArray json;
    for (const JsonDifference &change : changes) {
        QJsonObject entry{{"place", change.place}};
        if (!change.before.isUndefined())
            entry.insert("before", change.before);
        if (!change.after.isUndefined())
            entry.insert("after", change.after);
        json.append(entry);
    }
    return json;
}

QString DifferenceReport::headline() const
{
    if (m_difference.isSame())
        return Message::tr("The same: %1 compared").arg(counted(m_difference.compared, Message::tr("placed object")));
    QStringList parts = countText(Message::tr("floors"), m_difference.floorCounts) +
                        countText(Message::tr("elements"), m_difference.elementCounts) +
                        countText(Message::tr("placed objects"), m_difference.objectCounts);
    if (!m_difference.changes.empty())
        parts.prepend(Message::tr("the project itself"));
    const QString headline = m_difference.isById ? Message::tr("Different (matched by id): %1")
                                                 : Message::tr("Different (matched by name and shape): %1");
    return headline.arg(parts.join(QStringLiteral("; ")));
}

QString DifferenceReport::listing() const
{
    Listing listing;
    listing.addChanges(0, m_difference.changes);
    for (const ProjectDifference::Region &region : m_difference.regions)
        listing.addRegion(region);
    return listing.text();
}

QJsonObject DifferenceReport::json() const
{
    return {{"same", m_difference.isSame()},
            {"matchedBy", m_difference.isById ? "id" : "name"},
            {"compared", m_difference.compared},
            {"counts", QJsonObject{{"floors", countsToJson(m_difference.floorCounts)},
                                   {"elements", countsToJson(m_difference.elementCounts)},
                                   {"drawObjects", countsToJson(m_difference.objectCounts)}}},
            {"changes", changesToJson(m_difference.changes)},
            {"regions", listOf(m_difference.regions, regionToJson)}};
}

} // namespace orvcad

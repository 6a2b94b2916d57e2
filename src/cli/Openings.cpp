#include "cli/Openings.h"

#include "cli/Applied.h"
#include "cli/Command.h"
#include "cli/Counted.h"
#include "cli/ElementRemoval.h"
#include "cli/FloorLookup.h"
#include "cli/Message.h"
#include "cli/OpeningTypes.h"
#include "cli/Progress.h"
#include "doorwindow/DoorWindowKeys.h"
#include "doorwindow/JsonDoorWin2HBX.h"
#include "doorwindow/ORVCADWindoorDataOutputModel.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/HBXBatch.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXElements.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXService.h"

using namespace doorwindow;
using hbx::embedded::HBXProject;

namespace orvcad {

namespace {

const QSet<qint64> &openingTypes()
{
    static const QSet<qint64> types(std::begin(kOpeningTypes), std::end(kOpeningTypes));
    return types;
}

/** Writes members one by one, so that what the host says is about one of them, and keeps account. */
class OpeningWriter
{
public:
    OpeningWriter(HBXProject &project, OpeningOutcome &outcome)
        : m_project(project), m_model(*project.service()->model()), m_outcome(outcome)
    {}

    void write(int index, const QJsonObject &member)
    {
        const std::size_t journalBefore = m_project.journal().entries().size();
        const int elementsBefore = m_model.elements()->count();
        const int drawObjsBefore = m_model.drawObjects()->count();
        const QJsonObject alone{{key::elementsAndEdos, QJsonArray{member}}};
        jsonDoorWin2HBX(m_project.service(), {{key::reply, alone}});
        const int made = m_model.elements()->count() - elementsBefore;
        const int placed = m_model.drawObjects()->count() - drawObjsBefore;
        m_outcome.made.elements += made;
        m_outcome.made.placed += placed;
        if (placed > 0 && m_model.drawObjects()->at(drawObjsBefore)->parent())
            ++m_outcome.made.attached;
        const bool isMade = made + placed > 0;
        const QStringList refused = refusedSince(m_project, journalBefore);
        for (const QString &reason : refused)
            leaveOut(index, member, Message::tr("a value was refused: %1").arg(reason), false);
        if (!isMade)
            leaveOut(index, member, Message::tr("the host did not make it"), true);
    }

private:
    void leaveOut(int index, const QJsonObject &member, const QString &reason, bool isWhole)
    {
        const QString name = member[member.contains(key::elementId) ? key::name : key::elementName].toString();
        m_outcome.leftOut.push_back(
            OpeningReplyCheck::leftOut(index, {OpeningReplyCheck::placeOf(index), name, reason, isWhole}));
    }

    HBXProject &m_project;
    IHBXModel &m_model;
    OpeningOutcome &m_outcome;
};

} // namespace

QString OpeningOutcome::text() const
{
    const QString text =
        Message::tr("%1 read: %2 made, %3 placed (%4 in a wall, %5 in none), %6")
            .arg(counted(members, Message::tr("member")), counted(made.elements, Message::tr("element")),
                 counted(made.placed, Message::tr("opening")))
            .arg(made.attached)
            .arg(made.placed - made.attached)
            .arg(leftOutCount(leftOut));
    QStringList lines;
    for (const auto &member : leftOut)
        lines.append(Message::tr("left out: %1").arg(member.text()));
    return text + cutLines(lines);
}

QJsonObject OpeningOutcome::toJson() const
{
    QJsonArray leftOutJson;
    for (const auto &member : leftOut)
        leftOutJson.append(member.toJson());
    return {{"members", members},
            {"elementsMade", made.elements},
            {"placed", made.placed},
            {"attached", made.attached},
            {"unattached", made.placed - made.attached},
            {"leftOut", leftOutJson}};
}

QJsonObject openingReply(IHBXModel &model, const std::vector<IHBXFloor *> &floors, OpeningCounts &counts)
{
    const QSet<qint64> floorIds = idsOf(floors);
    QList<IHBXElement *> elements;
    model.elements()->queryElements(elements, floorIds, openingTypes(), true);
    QList<IHBXElementDrawObj *> openings;
    model.drawObjects()->queryDrawObjs(openings, floorIds, openingTypes(), true);

    ORVCADWindoorDataOutputModel output;
    for (IHBXElement *element : qAsConst(elements))
        output.elements.emplace_back().loadFromHBX(element);
    for (IHBXElementDrawObj *opening : qAsConst(openings)) {
        output.edos.emplace_back().loadFromEdo(opening);
        counts.attached += opening->parent() ? 1 : 0;
    }
    counts.elements = elements.size();
    counts.placed = openings.size();

    QJsonObject reply;
    output.saveToJson(key::elementsAndEdos, &reply);
    return {{key::reply, reply}};
}

QJsonArray openingMembers(const QJsonObject &reply, const QString &file)
{
    const QJsonValue openings = reply[key::reply];
    if (!openings.isObject())
        throw CommandFailure(kBadInput, file, key::reply, Message::tr("no object of that key: no reply of openings"));
    const QJsonValue members = openings.toObject()[key::elementsAndEdos];
    if (!members.isArray())
        throw CommandFailure(kBadInput, file, QStringLiteral("%1.%2").arg(key::reply, key::elementsAndEdos),
                             Message::tr("is no array"));
    return members.toArray();
}

OpeningOutcome applyOpenings(HBXProject &project, const QJsonArray &members)
{
    IHBXModel &model = *project.service()->model();
    const OpeningReplyCheck check(model, members);
    OpeningOutcome outcome;
    outcome.members = check.memberCount();
    outcome.leftOut = check.leftOut();

    const HBXBatch batch(model, "orvcad opening apply");
    OpeningWriter writer(project, outcome);
    Progress progress(Message::tr("members"), check.sound().size());
    for (int i = 0; i < check.sound().size(); ++i) {
        writer.write(check.soundPlaces()[static_cast<std::size_t>(i)], check.sound().at(i).toObject());
        progress.step();
    }
    return outcome;
}

std::vector<IHBXElementDrawObj *> placedOpenings(IHBXFloor &floor)
{
    QList<IHBXElementDrawObj *> openings;
    floor.drawObjsOfTypes(openings, openingTypes(), true);
    return {openings.cbegin(), openings.cend()};
}

int removeOpenings(HBXProject &project)
{
    return removeElements(*project.service()->model(), idsOf(pickFloors(project, QString(), QString())), openingTypes(),
                          "orvcad remove openings");
}

} // namespace orvcad

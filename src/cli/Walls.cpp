#include "cli/Walls.h"

#include "IdentifyInputModel/Wall/WallKeys.h"
#include "cli/Counted.h"
#include "cli/ElementRemoval.h"
#include "cli/Message.h"
#include "cli/Progress.h"
#include "cli/WallReplyCheck.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/HBXBatch.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXElements.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXService.h"

#include <QJsonArray>

#include <algorithm>
#include <map>
#include <numeric>

using hbx::embedded::HBXProject;
using hbx::embedded::JournalEntry;

namespace orvcad {

namespace {

/** A reply with one wall. */
QJsonObject replyOf(const WallKind &kind, const WallReplyCheck::Member &member)
{
    return kind.replyOf({{wallElementKey(0), member.element}, {wallPiecesKey(0), member.pieces}});
}

/** Writes walls one by one, so that what the host says is about one of them, and keeps account. */
class WallWriter
{
public:
    WallWriter(HBXProject &project, const WallKind &kind, WallOutcome &outcome)
        : m_project(project), m_model(*project.service()->model()), m_kind(kind), m_outcome(outcome)
    {}

    void write(const WallReplyCheck::Member &member)
    {
        const std::size_t journalBefore = m_project.journal().entries().size();
        const int elementsBefore = m_model.elements()->count();
        const int drawObjsBefore = m_model.drawObjects()->count();
        m_kind.write(m_project.service(), replyOf(m_kind, member));
        noteRefusals(member, journalBefore, placesOf(member, drawObjsBefore));
        if (m_model.elements()->count() > elementsBefore)
            noteWall(member, *m_model.elements()->at(elementsBefore), drawObjsBefore);
        else
            leaveOut(member, member.place, Message::tr("the host made no element"), true);
    }

private:
    using Places = std::map<qint64, QString>; // in the reply, by draw object

    /** Which piece each of the new draw objects is; nothing when not all were made. */
    Places placesOf(const WallReplyCheck::Member &member, int drawObjsBefore) const
    {
        Places places;
        const int made = m_model.drawObjects()->count() - drawObjsBefore;
        for (int i = 0; i < made && made == member.pieces.size(); ++i)
            places[m_model.drawObjects()->at(drawObjsBefore + i)->id()] = member.piecePlaces.at(i);
        return places;
    }
    void noteRefusals(const WallReplyCheck::Member &member, std::size_t journalBefore, const Places &places)
    {
        const auto &entries = m_project.journal().entries();
        for (std::size_t i = journalBefore; i < entries.size(); ++i)
            if (entries[i].kind == JournalEntry::kWriteThrew) {
                const auto piece = places.find(entries[i].objectId);
                leaveOut(member, piece == places.end() ? member.place : piece->second,
                         Message::tr("a value was refused: %1").arg(entries[i].reason), false);
            }
    }
    void noteWall(const WallReplyCheck::Member &member, const IHBXElement &element, int drawObjsBefore)
    {
        WallOutcome::Wall wall;
        wall.place = member.place;
        wall.wanted = member.text(wall::key::entName);
        element.name(wall.name);
        wall.floor = member.text(wall::key::floorCode);
        if (wall.name != wall.wanted)
            leaveOut(member, member.place + u'.' + wall::key::entName,
                     Message::tr("the floor has that name already: made as \"%1\"").arg(wall.name), false);
        wall.placed = m_model.drawObjects()->count() - drawObjsBefore;
        wall.leftOut = member.leftOut + member.pieces.size() - wall.placed;
        wall.doubled = doubledSince(m_model, drawObjsBefore);
        m_outcome.walls.push_back(wall);
        if (wall.placed < member.pieces.size())
            leaveOut(member, member.place,
                     Message::tr("the host made %1 of its %2")
                         .arg(wall.placed)
                         .arg(counted(member.pieces.size(), Message::tr("piece"))),
                     false);
    }
    void leaveOut(const WallReplyCheck::Member &member, const QString &place, const QString &reason, bool isWhole)
    {
        m_outcome.leftOut.push_back({place, member.text(wall::key::entName), reason, isWhole});
    }

    HBXProject &m_project;
    IHBXModel &m_model;
    const WallKind &m_kind;
    WallOutcome &m_outcome;
};

} // namespace

QString WallOutcome::Wall::text() const
{
    const QString made = name == wanted ? Message::tr("made") : Message::tr("made as %1").arg(name);
    const QString left = leftOut ? Message::tr(", %1 left out").arg(leftOut) : QString();
    return Message::tr("%1 on floor %2: %3, %4 placed%5")
        .arg(wanted, floor, made, counted(placed, Message::tr("piece")), left);
}

QJsonObject WallOutcome::Wall::toJson() const
{
    return {{"place", place},   {"name", wanted},     {"madeAs", name},    {"floor", floor},
            {"placed", placed}, {"leftOut", leftOut}, {"doubled", doubled}};
}

int WallOutcome::placed() const
{
    return std::accumulate(walls.begin(), walls.end(), 0, [](int sum, const Wall &wall) { return sum + wall.placed; });
}

int WallOutcome::renamed() const
{
    return static_cast<int>(
        std::count_if(walls.begin(), walls.end(), [](const Wall &wall) { return wall.name != wall.wanted; }));
}

int WallOutcome::doubled() const
{
    return std::accumulate(walls.begin(), walls.end(), 0, [](int sum, const Wall &wall) { return sum + wall.doubled; });
}

QString WallOutcome::headline() const
{
    return Message::tr("%1 read: %2 made (%3 under another name), %4 placed, %5")
        .arg(counted(members, title), counted(static_cast<int>(walls.size()), Message::tr("element")))
        .arg(renamed())
        .arg(counted(placed(), Message::tr("piece")), leftOutCount(leftOut));
}

QString WallOutcome::text() const
{
    QStringList lines;
    for (const Wall &wall : walls)
        lines.append(wall.text());
    return headline() + cutLines(lines) + leftOutLines(leftOut) + doubledLine(doubled());
}

QJsonObject WallOutcome::toJson() const
{
    QJsonArray list;
    for (const Wall &wall : walls)
        list.append(wall.toJson());
    return {{"kind", kind},
            {"members", members},
            {"elementsMade", list.size()},
            {"renamed", renamed()},
            {"placed", placed()},
            {"doubled", doubled()},
            {"walls", list},
            {"leftOut", orvcad::toJson(leftOut)}};
}

WallOutcome applyWalls(HBXProject &project, const WallKind &kind, const QJsonObject &reply, const QString &file)
{
    IHBXModel &model = *project.service()->model();
    const WallReplyCheck check(model, kind, reply, file);
    WallOutcome outcome;
    outcome.kind = QString::fromLatin1(kind.word);
    outcome.title = Message::tr(kind.title);
    outcome.members = check.memberCount();
    outcome.leftOut = check.leftOut();
    const HBXBatch batch(model, "orvcad wall apply");
    WallWriter writer(project, kind, outcome);
    Progress progress(Message::tr("walls"), static_cast<int>(check.sound().size()));
    for (const WallReplyCheck::Member &member : check.sound()) {
        writer.write(member);
        progress.step();
    }
    return outcome;
}

int removeWalls(HBXProject &project, const WallKind &kind, const IHBXFloor &floor)
{
    return removeElements(*project.service()->model(), {floor.id()}, {kind.elementType}, "orvcad remove walls");
}

} // namespace orvcad

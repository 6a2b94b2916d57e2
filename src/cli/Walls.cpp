#include "cli/Walls.h"

#include "IdentifyInputModel/Wall/WallKeys.h"
#include "cli/ProjectInfo.h"
#include "cli/WallReplyCheck.h"
#include "platform/host/HBXBatch.h"
#include "platform/host/HBXCheckError.h"
#include "platform/host/IHBXCheck.h"
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
    const QJsonObject map{{"key_0", member.element}, {"value_0", member.pieces}};
    const QJsonObject document{{kind.document, map}};
    return {{kind.reply, QJsonObject{{wall::reply::elementsAndEdos, document}}}};
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
        noteObjects(member, drawObjsBefore);
        noteRefusals(member, journalBefore);
        if (m_model.elements()->count() > elementsBefore)
            noteWall(member, *m_model.elements()->at(elementsBefore), m_model.drawObjects()->count() - drawObjsBefore);
        else
            leaveOut(member, member.place, QStringLiteral("the host made no element"));
    }

private:
    void noteWall(const WallReplyCheck::Member &member, const IHBXElement &element, int placed)
    {
        WallOutcome::Wall wall;
        wall.place = member.place;
        wall.wanted = member.text(wall::key::entName);
        element.name(wall.name);
        wall.floor = member.text(wall::key::floorCode);
        wall.placed = placed;
        wall.leftOut = member.leftOut + member.pieces.size() - placed;
        wall.doubled = m_doubled;
        m_outcome.walls.push_back(wall);
        if (placed < member.pieces.size())
            leaveOut(member, member.place,
                     QStringLiteral("the host made %1 of its %2")
                         .arg(placed)
                         .arg(counted(member.pieces.size(), QStringLiteral("piece"))));
    }
    /** Has the host check the new objects, and notes which piece each of them is, if all were made. */
    void noteObjects(const WallReplyCheck::Member &member, int drawObjsBefore)
    {
        m_doubled = 0;
        m_pieceOf.clear();
        const int made = m_model.drawObjects()->count() - drawObjsBefore;
        for (int i = 0; i < made; ++i) {
            IHBXElementDrawObj *object = m_model.drawObjects()->at(drawObjsBefore + i);
            if (made == member.pieces.size())
                m_pieceOf[object->id()] = member.piecePlaces.at(i);
            HBXCheckError error;
            std::map<qint64, QString> collisions;
            m_model.checker()->checkDrawObj(object, error, collisions);
            m_doubled += collisions.empty() ? 0 : 1;
        }
    }
    void noteRefusals(const WallReplyCheck::Member &member, std::size_t journalBefore)
    {
        const auto &entries = m_project.journal().entries();
        for (std::size_t i = journalBefore; i < entries.size(); ++i)
            if (entries[i].kind == JournalEntry::kWriteThrew) {
                const auto piece = m_pieceOf.find(entries[i].objectId);
                leaveOut(member, piece == m_pieceOf.end() ? member.place : piece->second,
                         QStringLiteral("a value was refused: ") + entries[i].reason);
            }
    }
    void leaveOut(const WallReplyCheck::Member &member, const QString &place, const QString &reason)
    {
        m_outcome.leftOut.push_back({place, member.text(wall::key::entName), reason});
    }

    HBXProject &m_project;
    IHBXModel &m_model;
    const WallKind &m_kind;
    WallOutcome &m_outcome;
    std::map<qint64, QString> m_pieceOf; // of the wall at hand: place in the reply by draw object
    int m_doubled = 0;                   // likewise
};

} // namespace

QString WallOutcome::Wall::text() const
{
    const QString made = name == wanted ? QStringLiteral("made") : QStringLiteral("made as %1").arg(name);
    const QString left = leftOut ? QStringLiteral(", %1 left out").arg(leftOut) : QString();
    return QStringLiteral("%1 on floor %2: %3, %4 placed%5")
        .arg(wanted, floor, made, counted(placed, QStringLiteral("piece")), left);
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
    return QStringLiteral("%1 read: %2 made (%3 under another name), %4 placed, %5 left out")
        .arg(counted(members, kind + QStringLiteral(" wall")),
             counted(static_cast<int>(walls.size()), QStringLiteral("element")))
        .arg(renamed())
        .arg(counted(placed(), QStringLiteral("piece")))
        .arg(leftOut.size());
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
    outcome.members = check.memberCount();
    outcome.leftOut = check.leftOut();
    const HBXBatch batch(model, "orvcad wall apply");
    WallWriter writer(project, kind, outcome);
    for (const WallReplyCheck::Member &member : check.sound())
        writer.write(member);
    return outcome;
}

int removeWalls(HBXProject &project, const WallKind &kind, const IHBXFloor &floor)
{
    IHBXModel &model = *project.service()->model();
    const HBXBatch batch(model, "orvcad remove walls");
    QList<IHBXElement *> elements;
    model.elements()->queryElementsOnFloor(elements, floor.id(), kind.elementType, true);
    for (IHBXElement *element : qAsConst(elements))
        element->remove();
    return elements.size();
}

} // namespace orvcad

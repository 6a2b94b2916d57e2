#include "cli/BeamSeats.h"

#include "ModelSerialization/ORVCADBeamLocalModel2HBXService.h"
#include "beam/BeamIdentifyInput.h"
#include "beam/BeamKeys.h"
#include "cli/ArrivedValues.h"
#include "cli/Counted.h"
#include "cli/FloorLookup.h"
#include "cli/Message.h"
#include "cli/ReplyWriting.h"
#include "cli/SeatReplyCheck.h"
#include "cli/TypeTitles.h"
#include "platform/embedded/HBXProject.h"
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

using namespace beam;
using hbx::embedded::HBXProject;

namespace orvcad {

namespace {

using Service = ORVCADBeamLocalModel2HBXService;
using Seat = ORVBeamSDCSeatInfoModel;

/** How a kind of seat is made. */
bool reconstruct(Service &service, const std::shared_ptr<Seat> &seat)
{
    if (seat->seatElementType == type::pile)
        return service.reconstructPile(seat);
    return seat->seatElementType == type::tieBeam ? service.reconstructTieBeam(seat)
                                                  : service.reconstructFoundation(seat);
}

bool isUnit(const IHBXElement &element) { return element.parent() != nullptr; }

/** Objects that stand by themselves: units have children of other objects. */
int placedSince(IHBXModel &model, int before)
{
    int placed = 0;
    for (int i = before; i < model.drawObjects()->count(); ++i)
        placed += model.drawObjects()->at(i)->parent() ? 0 : 1;
    return placed;
}

/** What of a seat is asked of the host again, by its kind. */
const QStringList &askedKeys(qint64 elementType)
{
    static const QStringList foundation{key::worldPoly, key::height, key::edoTopElev, key::edoBtmElev};
    static const QStringList pile{key::elementSubType, key::type, key::worldPoly, key::height, key::edoTopElev};
    static const QStringList tieBeam{key::centerLine, key::sectionWidth, key::sectinoHeight,
                                     key::axisOffset, key::edoTopElev,   key::edoBtmElev};
    if (elementType == type::tieBeam)
        return tieBeam;
    return elementType == type::pile ? pile : foundation;
}

/** All seats of some floors, by their draw objects. */
std::map<qint64, QJsonObject> seatsInHost(IHBXModel &model, const QSet<qint64> &floors)
{
    ORVCADBeamSDCIdentifyInputModel input(false);
    getBeamSeatInfo(input, &model, floors);
    std::map<qint64, QJsonObject> seats;
    for (const Seat *seat : qAsConst(input.beamSeatInfos))
        seats[seat->nEDOID] = seat->toJson();
    return seats;
}

/** Writes seats one by one and keeps account. */
class SeatWriter
{
public:
    SeatWriter(HBXProject &project, SeatOutcome &outcome)
        : m_project(project), m_model(*project.service()->model()), m_service(project.service()), m_outcome(outcome)
    {}

    void write(const SeatReplyCheck::Member &member)
    {
        const std::size_t journalBefore = m_project.journal().entries().size();
        const int elementsBefore = m_model.elements()->count();
        const int drawObjsBefore = m_model.drawObjects()->count();
        const bool isMade = reconstruct(m_service, member.seat);
        if (IHBXElementDrawObj *object = placedObject(drawObjsBefore)) {
            m_floors.insert(object->floor()->id());
            m_placed[object->id()] = &member;
        }
        SeatOutcome::Kind &kind = kindOf(member.seat->seatElementType);
        int elements = 0;
        for (int i = elementsBefore; i < m_model.elements()->count(); ++i)
            ++(isUnit(*m_model.elements()->at(i)) ? kind.units : elements);
        kind.elements += elements;
        kind.reused += elements == 0 ? 1 : 0;
        const int placed = placedSince(m_model, drawObjsBefore);
        kind.placed += placed;
        const QStringList refused = refusedSince(m_project, journalBefore);
        for (const QString &reason : refused)
            leaveOut(member, Message::tr("a value was refused: %1").arg(reason), false);
        if (placed == 0)
            leaveOut(member, Message::tr("the host placed nothing"), true);
        else if (!isMade && refused.isEmpty())
            leaveOut(member, Message::tr("the host did not take it whole"), false);
    }

    /** Tells what seats have become of each other: those of one element share its units and sizes. */
    void finish()
    {
        const std::map<qint64, QJsonObject> seats = seatsInHost(m_model, m_floors);
        for (const auto &[id, member] : m_placed) {
            const auto seat = seats.find(id);
            if (seat == seats.end())
                leaveOut(*member, Message::tr("the host tells no outline of it"), false);
            else
                leaveOutChanged(member->json, seat->second, askedKeys(member->seat->seatElementType), member->place,
                                member->seat->EntName, m_outcome.leftOut);
        }
    }

private:
    /** The first object made that stands by itself; null for none. */
    IHBXElementDrawObj *placedObject(int before) const
    {
        for (int i = before; i < m_model.drawObjects()->count(); ++i)
            if (!m_model.drawObjects()->at(i)->parent())
                return m_model.drawObjects()->at(i);
        return nullptr;
    }
    SeatOutcome::Kind &kindOf(qint64 elementType)
    {
        auto &kinds = m_outcome.kinds;
        const auto known = std::find_if(kinds.begin(), kinds.end(),
                                        [&](const SeatOutcome::Kind &kind) { return kind.type == elementType; });
        if (known != kinds.end())
            return *known;
        kinds.emplace_back();
        kinds.back().type = elementType;
        return kinds.back();
    }
    void leaveOut(const SeatReplyCheck::Member &member, const QString &reason, bool isWhole)
    {
        m_outcome.leftOut.push_back({member.place, member.seat->EntName, reason, isWhole});
    }

    HBXProject &m_project;
    IHBXModel &m_model;
    Service m_service;
    SeatOutcome &m_outcome;
    QSet<qint64> m_floors; // with seats that were made
    std::map<qint64, const SeatReplyCheck::Member *> m_placed;
};

} // namespace

QString SeatOutcome::Kind::text() const
{
    const QString below = units ? Message::tr(", %1 below").arg(counted(units, Message::tr("unit"))) : QString();
    return Message::tr("%1: %2 made (%3 times reused)%4, %5 placed")
        .arg(shownTypeTitle(type), counted(elements, Message::tr("element")))
        .arg(reused)
        .arg(below)
        .arg(placed);
}

QJsonObject SeatOutcome::Kind::toJson() const
{
    return {{"type", type},     {"title", typeTitle(type)}, {"elementsMade", elements},
            {"reused", reused}, {"unitsMade", units},       {"placed", placed}};
}

QString SeatOutcome::text() const
{
    QString text = Message::tr("%1 read, %2").arg(counted(members, Message::tr("seat")), leftOutCount(leftOut));
    for (const Kind &kind : kinds)
        text += QStringLiteral("\n  ") + kind.text();
    return text + leftOutLines(leftOut) + doubledLine(doubled);
}

QJsonObject SeatOutcome::toJson() const
{
    QJsonArray list;
    for (const Kind &kind : kinds)
        list.append(kind.toJson());
    return {{"members", members}, {"doubled", doubled}, {"kinds", list}, {"leftOut", orvcad::toJson(leftOut)}};
}

QJsonObject seatDocument(const HBXProject &project, const std::vector<IHBXFloor *> &floors,
                         std::vector<SeatOutcome::Kind> &counts)
{
    ORVCADBeamSDCIdentifyInputModel input(false);
    getBeamSeatInfo(input, project.service()->model(), idsOf(floors));
    QJsonObject document = input.beamSeatInfoToJsonObj();
    for (const ReplyArray &array : seatArrays()) {
        counts.emplace_back();
        counts.back().type = array.elementType;
        counts.back().placed = document.value(array.key).toArray().size();
    }
    return document;
}

SeatOutcome applySeats(HBXProject &project, const QJsonObject &reply, const QString &file)
{
    const SeatReplyCheck check(*project.service()->model(), reply, file);
    return writeSound<SeatOutcome, SeatWriter>(project, check, "orvcad beam seats apply");
}

} // namespace orvcad

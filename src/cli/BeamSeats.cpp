#include "cli/BeamSeats.h"

#include "ModelSerialization/ORVCADBeamLocalModel2HBXService.h"
#include "beam/BeamIdentifyInput.h"
#include "beam/BeamKeys.h"
#include "cli/BeamReplyCheck.h"
#include "cli/MemberKinds.h"
#include "cli/ProjectInfo.h"
#include "platform/geometry/KernelTolerance.h"
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

using namespace beam;
using hbx::embedded::HBXProject;

namespace orvcad {

namespace {

using Service = ORVCADBeamLocalModel2HBXService;
using Seat = ORVBeamSDCSeatInfoModel;

const QStringList kSeatWhole{key::elementType, key::elementSubType, key::sectionWidth, key::sectinoHeight, key::height};
const QStringList kSeatRequired{key::entName, key::elementType, key::floorName, key::regionName};

/** How a kind of seat is made. */
bool reconstruct(Service &service, const std::shared_ptr<Seat> &seat)
{
    if (seat->seatElementType == type::pile)
        return service.reconstructPile(seat);
    return seat->seatElementType == type::tieBeam ? service.reconstructTieBeam(seat)
                                                  : service.reconstructFoundation(seat);
}

/** A seat stands where its outline is, a tie beam where its centre line is. */
QString whyNotPlace(const Seat &seat)
{
    if (seat.seatElementType != type::tieBeam)
        return seat.ipWorldPoly ? QString() : QStringLiteral("WorldPoly is no outline");
    if (!seat.ipCenterLine)
        return QStringLiteral("CenterLine is no curve");
    return seat.ipCenterLine->Length() > vks::g_DistEpsilon ? QString() : QStringLiteral("CenterLine has no length");
}

QString whyNotType(int elementType, const SeatKind &kind)
{
    return elementType == kind.elementType
               ? QString()
               : QStringLiteral("type %1 is no %2").arg(elementType).arg(typeTitle(kind.elementType));
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
        SeatOutcome::Kind &kind = kindOf(member.seat->seatElementType);
        int elements = 0;
        for (int i = elementsBefore; i < m_model.elements()->count(); ++i)
            ++(isUnit(*m_model.elements()->at(i)) ? kind.units : elements);
        kind.elements += elements;
        kind.reused += elements == 0 ? 1 : 0;
        kind.placed += placedSince(m_model, drawObjsBefore);
        const QStringList refused = refusedSince(m_project, journalBefore);
        for (const QString &reason : refused)
            leaveOut(member, QStringLiteral("a value was refused: ") + reason);
        if (!isMade && refused.isEmpty())
            leaveOut(member, QStringLiteral("the host did not take it whole"));
    }

private:
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
    void leaveOut(const SeatReplyCheck::Member &member, const QString &reason)
    {
        m_outcome.leftOut.push_back({member.place, member.seat->EntName, reason});
    }

    HBXProject &m_project;
    IHBXModel &m_model;
    Service m_service;
    SeatOutcome &m_outcome;
};

} // namespace

const std::vector<SeatKind> &seatKinds()
{
    static const std::vector<SeatKind> kinds{{key::isolatedFoundations, type::isolatedFoundation},
                                             {key::pileCaps, type::pileCap},
                                             {key::piles, type::pile},
                                             {key::tieBeams, type::tieBeam}};
    return kinds;
}

SeatReplyCheck::SeatReplyCheck(IHBXModel &model, const QJsonObject &reply, const QString &file) : m_model(model)
{
    const auto isThere = [&](const SeatKind &kind) { return reply.contains(kind.key); };
    if (std::none_of(seatKinds().begin(), seatKinds().end(), isThere))
        throw CommandFailure(kBadInput, file, {},
                             QStringLiteral("has none of the keys \"etIsolatedFD\", \"etPileCap\", \"etPile\" and "
                                            "\"etTieBeam\": no document of seats"));
    for (const SeatKind &kind : seatKinds()) {
        const QJsonValue members = reply.value(kind.key);
        if (isThere(kind) && !members.isArray())
            throw CommandFailure(kBadInput, file, kind.key, QStringLiteral("is no array"));
        for (int i = 0; i < members.toArray().size(); ++i) {
            ++m_memberCount;
            const QJsonValue member = members.toArray().at(i);
            const QString place = QStringLiteral("%1[%2]").arg(kind.key).arg(i);
            const QString reason = whyNot(member, kind);
            if (!reason.isEmpty()) {
                m_leftOut.push_back({place, member.toObject().value(key::entName).toString(), reason});
                continue;
            }
            m_sound.push_back({place, std::make_shared<Seat>()});
            m_sound.back().seat->fromJson(member.toObject());
        }
    }
}

QString SeatReplyCheck::whyNot(const QJsonValue &value, const SeatKind &kind) const
{
    const QJsonObject member = value.toObject();
    if (!value.isObject())
        return QStringLiteral("is no object");
    static const QJsonObject pattern = Seat().toJson();
    QString reason = wrongKey(member, pattern, kSeatWhole, kSeatRequired);
    if (reason.isEmpty())
        reason = whyNotType(member.value(key::elementType).toInt(), kind);
    if (reason.isEmpty() && member.value(key::entName).toString().isEmpty())
        reason = QStringLiteral("has no name");
    if (reason.isEmpty())
        floorOfNames(m_model, member.value(key::regionName).toString(), member.value(key::floorName).toString(),
                     reason);
    if (!reason.isEmpty())
        return reason;
    Seat seat;
    seat.fromJson(member);
    return whyNotPlace(seat);
}

QString SeatOutcome::Kind::text() const
{
    const QString below = units ? QStringLiteral(", %1 below").arg(counted(units, QStringLiteral("unit"))) : QString();
    return QStringLiteral("%1: %2 made (%3 times reused)%4, %5 placed")
        .arg(typeTitle(type), counted(elements, QStringLiteral("element")))
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
    QString text =
        QStringLiteral("%1 read, %2 left out").arg(counted(members, QStringLiteral("seat"))).arg(leftOut.size());
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
    QSet<qint64> floorIds;
    for (const IHBXFloor *floor : floors)
        floorIds.insert(floor->id());
    ORVCADBeamSDCIdentifyInputModel input(false);
    getBeamSeatInfo(input, project.service()->model(), floorIds);
    QJsonObject document = input.beamSeatInfoToJsonObj();
    for (const SeatKind &kind : seatKinds()) {
        counts.emplace_back();
        counts.back().type = kind.elementType;
        counts.back().placed = document.value(kind.key).toArray().size();
    }
    return document;
}

SeatOutcome applySeats(HBXProject &project, const QJsonObject &reply, const QString &file)
{
    IHBXModel &model = *project.service()->model();
    const SeatReplyCheck check(model, reply, file);
    SeatOutcome outcome;
    outcome.members = check.memberCount();
    outcome.leftOut = check.leftOut();
    const int drawObjsBefore = model.drawObjects()->count();
    const HBXBatch batch(model, "orvcad beam seats apply");
    SeatWriter writer(project, outcome);
    for (const SeatReplyCheck::Member &member : check.sound())
        writer.write(member);
    outcome.doubled = doubledSince(model, drawObjsBefore);
    return outcome;
}

} // namespace orvcad

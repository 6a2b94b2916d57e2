#include "cli/SeatReplyCheck.h"

#include "beam/BeamIdentifyInput.h"
#include "beam/BeamKeys.h"
#include "cli/FloorLookup.h"
#include "cli/MemberKinds.h"
#include "cli/Message.h"
#include "cli/TypeTitles.h"
#include "platform/geometry/KernelTolerance.h"

using namespace beam;

namespace orvcad {

namespace {

using Seat = ORVBeamSDCSeatInfoModel;

const QStringList kSeatWhole{key::elementType, key::elementSubType, key::sectionWidth, key::sectinoHeight, key::height};
const QStringList kSeatRequired{key::entName, key::elementType, key::floorName, key::regionName};

const QJsonObject &pattern()
{
    static const QJsonObject fresh = Seat().toJson();
    return fresh;
}

/** A seat stands where its outline is, a tie beam where its centre line is. */
QString whyNotPlace(const Seat &seat, const QJsonObject &member)
{
    if (seat.seatElementType != type::tieBeam)
        return whyNotOutline(key::worldPoly, member.value(key::worldPoly).toString());
    if (!seat.ipCenterLine)
        return Message::tr("%1 is no curve").arg(key::centerLine);
    return seat.ipCenterLine->Length() > vks::g_DistEpsilon ? QString()
                                                            : Message::tr("%1 has no length").arg(key::centerLine);
}

/** Sizes of what is made of them. */
QString whyNotSize(const QJsonObject &member)
{
    for (const QLatin1String size : {key::sectionWidth, key::sectinoHeight, key::height})
        if (member.value(size).toInt() < 0)
            return Message::tr("%1 is below 0").arg(size);
    return {};
}

QString whyNotType(int elementType, const ReplyArray &array)
{
    return elementType == array.elementType
               ? QString()
               : Message::tr("type %1 is no %2").arg(elementType).arg(shownTypeTitle(array.elementType));
}

} // namespace

const std::vector<ReplyArray> &seatArrays()
{
    static const std::vector<ReplyArray> arrays{{key::isolatedFoundations, type::isolatedFoundation},
                                                {key::pileCaps, type::pileCap},
                                                {key::piles, type::pile},
                                                {key::tieBeams, type::tieBeam}};
    return arrays;
}

SeatReplyCheck::SeatReplyCheck(IHBXModel &model, const QJsonObject &reply, const QString &file) : ArrayReplyCheck(model)
{
    lookThrough(
        reply, file, seatArrays(), Message::tr("document of seats"),
        [&](const ReplyArray &array, const QString &place, const QJsonValue &member) { look(place, member, array); });
}

void SeatReplyCheck::look(const QString &place, const QJsonValue &value, const ReplyArray &array)
{
    const QJsonObject member = value.toObject();
    const QString name = member.value(key::entName).toString();
    const QString reason = whyNot(value, array);
    if (!reason.isEmpty())
        return leaveOut(place, name, reason);
    leaveOutUnread(member, pattern().keys(), place, name, m_leftOut);
    m_sound.push_back({place, std::make_shared<Seat>(), member});
    m_sound.back().seat->fromJson(member);
}

QString SeatReplyCheck::whyNot(const QJsonValue &value, const ReplyArray &array) const
{
    const QJsonObject member = value.toObject();
    if (!value.isObject())
        return Message::tr("is no object");
    QString reason = wrongKey(member, pattern(), kSeatWhole, kSeatRequired);
    if (reason.isEmpty())
        reason = whyNotType(member.value(key::elementType).toInt(), array);
    if (reason.isEmpty() && member.value(key::entName).toString().isEmpty())
        reason = Message::tr("has no name");
    if (reason.isEmpty())
        floorOfNames(m_model, member.value(key::regionName).toString(), member.value(key::floorName).toString(),
                     reason);
    if (reason.isEmpty())
        reason = whyNotSize(member);
    if (!reason.isEmpty())
        return reason;
    Seat seat;
    seat.fromJson(member);
    return whyNotPlace(seat, member);
}

} // namespace orvcad

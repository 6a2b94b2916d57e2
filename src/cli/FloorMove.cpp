#include "cli/FloorMove.h"

#include "IdentifyInputModel/Wall/WallKeys.h"
#include "beam/BeamKeys.h"
#include "cli/Message.h"
#include "doorwindow/DoorWindowKeys.h"
#include "platform/embedded/HBXElevationText.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXRegion.h"
#include "slab/SlabKeys.h"

#include <QJsonArray>

#include <cmath>
#include <utility>

using hbx::embedded::HBXElevationText;

namespace orvcad {

namespace {

/** Members that name a floor, by what they name. */
struct NameKey
{
    QLatin1String key;
    QString FloorPlace::*name;
};
const NameKey kNameKeys[] = {
    {beam::key::regionName, &FloorPlace::region},
    {beam::key::floorName, &FloorPlace::name},
    {doorwindow::key::regionName, &FloorPlace::region},
    {doorwindow::key::floorName, &FloorPlace::code}, // meant: openings name the code so
    {wall::key::region, &FloorPlace::region},
    {wall::key::floorCode, &FloorPlace::code},
};

const QLatin1String kElevationKeys[] = {
    slab::key::elev,          slab::key::topElev,        slab::key::bottomElev,   beam::key::startTopElev,
    beam::key::endTopElev,    beam::key::startPtTopElev, beam::key::endPtTopElev, beam::key::startElev,
    beam::key::endElev,       beam::key::topElev,        beam::key::btmElev,      beam::key::edoTopElev,
    beam::key::edoBtmElev,    wall::key::startTopElev,   wall::key::endTopElev,   wall::key::startBottomElev,
    wall::key::endBottomElev,
};

constexpr double kMicrometresPerMetre = 1e6;

} // namespace

QString FloorPlace::text() const { return Message::tr("%1 of %2").arg(name, region); }

QJsonObject FloorPlace::toJson() const { return {{"region", region}, {"floor", name}}; }

FloorPlace placeOf(const IHBXFloor &floor)
{
    FloorPlace place;
    place.region = floor.region()->name();
    place.name = floor.name();
    floor.code(place.code);
    place.bottom = floor.bottomElev();
    place.top = floor.topElev();
    return place;
}

FloorMove::FloorMove(FloorPlace from, FloorPlace to) : m_from(std::move(from)), m_to(std::move(to)) {}

QJsonObject FloorMove::moved(const QJsonObject &document) const { return movedValue(document).toObject(); }

QJsonValue FloorMove::movedValue(const QJsonValue &value) const
{
    if (value.isArray()) {
        QJsonArray members = value.toArray();
        for (QJsonValueRef member : members)
            member = movedValue(member);
        return members;
    }
    if (!value.isObject())
        return value;
    QJsonObject members = value.toObject();
    for (auto member = members.begin(); member != members.end(); ++member)
        *member = movedMember(member.key(), *member);
    return members;
}

QJsonValue FloorMove::movedMember(const QString &key, const QJsonValue &value) const
{
    for (const NameKey &named : kNameKeys)
        if (key == named.key)
            return value == m_from.*named.name ? QJsonValue(m_to.*named.name) : value;
    for (const QLatin1String &elevation : kElevationKeys)
        if (key == elevation)
            return movedElevation(value);
    return movedValue(value);
}

QJsonValue FloorMove::movedElevation(const QJsonValue &value) const
{
    if (value.isDouble())
        return movedElevation(value.toDouble());
    const auto elevation = HBXElevationText::parse(value.toString());
    if (!elevation || elevation->base() != HBXElevationText::kZero)
        return value;
    const double metres = movedElevation(elevation->metres());
    // The text stays as it was written where nothing moves.
    return metres == elevation->metres() ? value : QJsonValue(QString::number(metres, 'g', 12));
}

double FloorMove::movedElevation(double metres) const
{
    const bool belongsToTop = std::abs(metres - m_from.top) < std::abs(metres - m_from.bottom);
    const double shift = belongsToTop ? m_to.top - m_from.top : m_to.bottom - m_from.bottom;
    return shift == 0.0 ? metres : std::round((metres + shift) * kMicrometresPerMetre) / kMicrometresPerMetre;
}

} // namespace orvcad

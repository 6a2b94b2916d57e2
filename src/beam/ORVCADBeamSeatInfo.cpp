#include "beam/ORVCADBeamSeatInfo.h"

#include "beam/BeamKeys.h"
#include "encoding/RecordKinds.h"

using namespace beam;
using encoding::fieldAsOr;
using encoding::fieldOr;

struct ORVCADBeamSeatInfo::Fields
{
    using Record = ORVCADBeamSeatInfo;
    static constexpr auto table = std::make_tuple(
        fieldOr(key::seatIdType, &Record::eSeatIDType),
        fieldAsOr<encoding::NarrowInt64>(key::seatId, &Record::nSeatID), // meant: written with 64 bits, read with 32
        fieldOr(key::seatSegmentId, &Record::nBeamSegmentInfoID));
};

QJsonObject ORVCADBeamSeatInfo::toJson() const
{
    QJsonObject json;
    encoding::writeFields(*this, Fields::table, json);
    return json;
}

void ORVCADBeamSeatInfo::fromJson(ORVCADBeamSeatInfo *target, const QJsonObject &json)
{
    if (target)
        encoding::readFields(json, Fields::table, *target);
}

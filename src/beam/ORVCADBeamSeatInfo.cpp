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

QJsonObject ORVCADBeamSeatInfo::toJson() const { return encoding::writtenFields(*this, Fields::table); }

void ORVCADBeamSeatInfo::fromJson(ORVCADBeamSeatInfo *target, const QJsonObject &json)
{
    encoding::readFieldsInto(target, Fields::table, json);
}

#include "beam/ORVCADBeamSegmentInfo.h"

#include "beam/BeamKeys.h"
#include "encoding/GeometryFields.h"
#include "encoding/RecordKinds.h"

using namespace beam;
using encoding::fieldOr;

struct ORVCADBeamSegmentInfo::Fields
{
    using Record = ORVCADBeamSegmentInfo;
    static constexpr auto table = std::make_tuple(
        fieldOr(key::line, &Record::ipLine), fieldOr(key::offset, &Record::dOffset), fieldOr(key::id, &Record::id));
};

QJsonObject ORVCADBeamSegmentInfo::toJson() const { return encoding::writtenFields(*this, Fields::table); }

void ORVCADBeamSegmentInfo::fromJson(ORVCADBeamSegmentInfo *target, const QJsonObject &json)
{
    encoding::readFieldsInto(target, Fields::table, json);
}

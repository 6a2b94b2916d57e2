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

QJsonObject ORVCADBeamSegmentInfo::toJson() const
{
    QJsonObject json;
    encoding::writeFields(*this, Fields::table, json);
    return json;
}

void ORVCADBeamSegmentInfo::fromJson(ORVCADBeamSegmentInfo *target, const QJsonObject &json)
{
    if (target)
        encoding::readFields(json, Fields::table, *target);
}

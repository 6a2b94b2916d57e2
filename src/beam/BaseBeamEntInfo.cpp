#include "beam/BaseBeamEntInfo.h"

#include "beam/BeamKeys.h"
#include "encoding/RecordKinds.h"

using namespace beam;
using encoding::fieldAsOr;
using encoding::fieldOr;
using encoding::NarrowInt64;

struct BaseBeamEntInfo::Fields
{
    using Record = BaseBeamEntInfo;
    static constexpr auto table = std::make_tuple(
        fieldOr(key::name, &Record::Name),
        fieldAsOr<NarrowInt64>(key::elementType, &Record::ElementType),       // meant: written with 64 bits
        fieldAsOr<NarrowInt64>(key::elementSubType, &Record::ElementSubType), // meant: likewise
        fieldOr(key::sectionWidth, &Record::SectionWidth), fieldOr(key::sectionHeight, &Record::SectionHeight),
        fieldOr(key::sectionPoly, &Record::SectionPoly), fieldOr(key::startTopElev, &Record::StartTopElev),
        fieldOr(key::endTopElev, &Record::EndTopElev), fieldOr(key::floorName, &Record::FloorName),
        fieldOr(key::regionName, &Record::RegionName), fieldOr(key::hoopBar, &Record::HoopBar),
        fieldOr(key::limbCount, &Record::LimbCount), fieldOr(key::tieBar, &Record::TieBar),
        fieldOr(key::axisOffset, &Record::AxisOffset));
};

BaseBeamEntInfo::~BaseBeamEntInfo() = default;

void BaseBeamEntInfo::fromJson(const QJsonObject &json) { encoding::readFields(json, Fields::table, *this); }

QJsonObject BaseBeamEntInfo::toJsonObj() const { return encoding::writtenFields(*this, Fields::table); }

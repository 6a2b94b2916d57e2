#include "beam/ORVBeamSDCSeatInfoModel.h"

#include "beam/BeamKeys.h"
#include "encoding/GeometryFields.h"
#include "encoding/RecordKinds.h"

using namespace beam;
using encoding::fieldAsOr;
using encoding::fieldOr;
using encoding::KernelText;

struct ORVBeamSDCSeatInfoModel::Fields
{
    using Record = ORVBeamSDCSeatInfoModel;
    static constexpr auto table = std::make_tuple(
        fieldOr(key::elementType, &Record::seatElementType), fieldOr(key::elementSubType, &Record::nElementSubType),
        fieldAsOr<KernelText>(key::worldPoly, &Record::ipWorldPoly),
        fieldAsOr<KernelText>(key::centerLine, &Record::ipCenterLine), fieldOr(key::floorName, &Record::FloorName),
        fieldOr(key::regionName, &Record::RegionName), fieldOr(key::entName, &Record::EntName),
        fieldOr(key::type, &Record::Type), fieldAsOr<KernelText>(key::sectionPoly, &Record::SectionPoly),
        fieldOr(key::sectionWidth, &Record::SectionWidth), fieldOr(key::sectinoHeight, &Record::SectionHeight),
        fieldOr(key::topElev, &Record::TopElev), fieldOr(key::btmElev, &Record::BtmElev),
        fieldAsOr<encoding::DoubleReadAsInt>(key::height, &Record::Height), // meant: a fraction reads as 0
        fieldOr(key::axisOffset, &Record::AxisOffset), fieldOr(key::mirror, &Record::Mirror),
        fieldOr(key::angle, &Record::Angle), fieldOr(key::edoTopElev, &Record::EDOTopElev),
        fieldOr(key::edoBtmElev, &Record::EDOBtmElev));
};

QJsonObject ORVBeamSDCSeatInfoModel::toJson() const { return encoding::writtenFields(*this, Fields::table); }

void ORVBeamSDCSeatInfoModel::fromJson(const QJsonObject &json) { encoding::readFields(json, Fields::table, *this); }

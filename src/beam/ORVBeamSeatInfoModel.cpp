#include "beam/ORVBeamSeatInfoModel.h"

#include "beam/BeamBoxText.h"
#include "beam/BeamKeys.h"
#include "encoding/GeometryFields.h"

using namespace beam;
using encoding::fieldAs;
using encoding::fieldOr;

struct ORVBeamSeatInfoModel::Fields
{
    using Record = ORVBeamSeatInfoModel;
    static constexpr auto table = std::make_tuple(
        fieldOr(key::lineShapeClass, &Record::eLineShapeClass), fieldOr(key::seatElementType, &Record::seatElementType),
        fieldOr(key::seatElementSubType, &Record::nElementSubType),
        fieldOr(key::hasWallThickness, &Record::bHasWallThicknessProperty),
        fieldOr(key::wallThickness, &Record::dWallThickness), fieldOr(key::seatWorldPoly, &Record::ipWorldPoly),
        fieldOr(key::offsetDist, &Record::dOffsetDist), fieldOr(key::edoId, &Record::nEDOID),
        fieldOr(key::isAColumn, &Record::bIsAColumn), fieldOr(key::isColumn, &Record::bIsColumn),
        fieldOr(key::isLineShape, &Record::bLineShape), fieldOr(key::seatCenterLine, &Record::ipCenterLine),
        fieldOr(key::wallLine, &Record::ipWallLine), fieldOr(key::seatLine, &Record::ipSeatLine),
        fieldOr(key::worldLine, &Record::ipWorldLine), fieldAs<BeamBoxText>(key::box, &Record::box));
};

QJsonObject ORVBeamSeatInfoModel::toJson() const { return encoding::writtenFields(*this, Fields::table); }

void ORVBeamSeatInfoModel::fromJson(ORVBeamSeatInfoModel *target, const QJsonObject &json)
{
    encoding::readFieldsInto(target, Fields::table, json);
}

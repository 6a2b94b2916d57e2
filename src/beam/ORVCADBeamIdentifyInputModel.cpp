#include "beam/ORVCADBeamIdentifyInputModel.h"

#include "beam/BeamKeys.h"
#include "encoding/GeometryFields.h"
#include "encoding/RecordKinds.h"

using namespace beam;
using encoding::fieldAppended;
using encoding::fieldAsOr;
using encoding::fieldOr;

struct ORVCADBeamIdentifyInputModel::Fields
{
    using Record = ORVCADBeamIdentifyInputModel;
    static constexpr auto table = std::make_tuple(
        fieldOr(key::curFloorHeight, &Record::curFloorHeight), fieldOr(key::isCurFloorFD, &Record::bIsCurFloorFD),
        fieldOr(key::curFloorBtmElev, &Record::curFloorBtmElev),
        fieldAsOr<encoding::LooseInt64>(key::curFloorId, &Record::nCurFloorID),
        fieldAppended(key::rawBeamCodes, &Record::strRawBeamCodes), fieldOr(key::is11or16G, &Record::bIs11or16G),
        fieldAppended(key::beamSeats, &Record::beamSeatInfos), fieldAppended(key::axisLines, &Record::axisLines),
        fieldOr(key::beamLineLayer, &Record::strBeamLineLayerName),
        fieldOr(key::beamBorderLayer, &Record::strBeamBorderLayerName),
        fieldOr(key::beamJZBZLayer, &Record::strBeamJZBZLayerName),
        fieldOr(key::beamYWBZLayer, &Record::strBeamYWBZLayerName));
};

QJsonObject ORVCADBeamIdentifyInputModel::toJson() const { return encoding::writtenFields(*this, Fields::table); }

void ORVCADBeamIdentifyInputModel::fromJson(ORVCADBeamIdentifyInputModel *target, const QJsonObject &json)
{
    encoding::readFieldsInto(target, Fields::table, json);
}

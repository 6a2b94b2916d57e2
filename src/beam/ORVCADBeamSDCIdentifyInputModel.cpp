#include "beam/ORVCADBeamSDCIdentifyInputModel.h"

#include "beam/BeamSeatType.h"

#include <QJsonArray>

namespace {

QJsonArray seatsOfType(const QList<ORVBeamSDCSeatInfoModel *> &seats, qint64 type)
{
    QJsonArray array;
    for (const ORVBeamSDCSeatInfoModel *seat : seats)
        if (seat && seat->seatElementType == type)
            array.append(seat->toJson());
    return array;
}

} // namespace

ORVCADBeamSDCIdentifyInputModel::ORVCADBeamSDCIdentifyInputModel(bool withContext)
    : hasContext(withContext), context(withContext ? std::make_shared<BeamIdentifyContextData>() : nullptr)
{}

QJsonObject ORVCADBeamSDCIdentifyInputModel::beamSeatInfoToJsonObj() const
{
    QJsonObject json;
    for (const beam::BeamSeatType &type : beam::kSeatTypes)
        if (type.isRebuilt())
            json.insert(type.arrayKey, seatsOfType(beamSeatInfos, type.number));
    return json;
}

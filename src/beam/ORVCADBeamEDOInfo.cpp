#include "beam/ORVCADBeamEDOInfo.h"

#include "beam/BeamKeys.h"
#include "encoding/RecordKinds.h"

using namespace beam;
using encoding::fieldAppended;
using encoding::fieldOr;

struct ORVCADBeamEDOInfo::Fields
{
    using Record = ORVCADBeamEDOInfo;
    static constexpr auto table = std::make_tuple(
        fieldOr(key::spanNum, &Record::nSpanNum), fieldOr(key::width, &Record::nWidth),
        fieldOr(key::runStartElev, &Record::strStartElev), fieldOr(key::runEndElev, &Record::strEndElev),
        fieldOr(key::startElevType, &Record::enStartElevType), fieldOr(key::endElevType, &Record::enEndElevType),
        fieldAppended(key::segments, &Record::vecSegmentInfo));
};

QJsonObject ORVCADBeamEDOInfo::toJson() const { return encoding::writtenFields(*this, Fields::table); }

void ORVCADBeamEDOInfo::fromJson(ORVCADBeamEDOInfo *target, const QJsonObject &json)
{
    encoding::readFieldsInto(target, Fields::table, json);
}

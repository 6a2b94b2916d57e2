#include "beam/ORVCADBeamEdoInfoTmp.h"

#include "beam/BeamKeys.h"
#include "encoding/RecordKinds.h"

using namespace beam;
using encoding::fieldAppended;
using encoding::fieldOr;

struct ORVCADBeamEdoInfoTmp::Fields
{
    using Record = ORVCADBeamEdoInfoTmp;
    static constexpr auto table = std::make_tuple(
        fieldOr(key::labelName, &Record::strName), fieldOr(key::labelElementType, &Record::nElementType),
        fieldOr(key::beamType, &Record::nBeamType), fieldOr(key::spanDesc, &Record::strSpanDesc),
        fieldOr(key::labelSection, &Record::strSection), fieldOr(key::labelHoopBar, &Record::strHoopBar),
        fieldOr(key::labelTopThroughBar, &Record::strTopThroughBar),
        fieldOr(key::labelBottomThroughBar, &Record::strBottomThroughBar),
        fieldOr(key::labelSideBar, &Record::strSideBar), fieldOr(key::cantileverType, &Record::eCantileverType),
        fieldAppended(key::runs, &Record::edoInfos), fieldAppended(key::seats, &Record::seatEdoIDList));
};

QJsonObject ORVCADBeamEdoInfoTmp::toJson() const { return encoding::writtenFields(*this, Fields::table); }

void ORVCADBeamEdoInfoTmp::fromJson(ORVCADBeamEdoInfoTmp *target, const QJsonObject &json)
{
    encoding::readFieldsInto(target, Fields::table, json);
}

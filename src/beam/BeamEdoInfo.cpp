#include "beam/BeamEdoInfo.h"

#include "beam/BeamKeys.h"
#include "encoding/RecordKinds.h"

using namespace beam;
using encoding::fieldAppended;

struct BeamEdoInfo::Fields
{
    static constexpr auto table = std::make_tuple(fieldAppended(key::segmentInfos, &BeamEdoInfo::segments),
                                                  fieldAppended(key::spanInfos, &BeamEdoInfo::spans));
};

void BeamEdoInfo::fromJson(const QJsonObject &json) { encoding::readFields(json, Fields::table, *this); }

QJsonObject BeamEdoInfo::toJsonObj() const { return encoding::writtenFields(*this, Fields::table); }

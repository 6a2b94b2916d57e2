#include "beam/BeamSegmentInfo.h"

#include "beam/BeamKeys.h"
#include "encoding/RecordFields.h"

using namespace beam;
using encoding::fieldOr;

struct BeamSegmentInfo::Fields
{
    using Record = BeamSegmentInfo;
    static constexpr auto table = std::make_tuple(
        fieldOr(key::index, &Record::Index), fieldOr(key::wordLine, &Record::WordLine),
        fieldOr(key::lineWidth, &Record::LineWidth), fieldOr(key::axisOffset, &Record::AxisOffset),
        fieldOr(key::startPtTopElev, &Record::StartPtTopElev), fieldOr(key::endPtTopElev, &Record::EndPtTopElev));
};

void BeamSegmentInfo::fromJson(const QJsonObject &json) { encoding::readFields(json, Fields::table, *this); }

QJsonObject BeamSegmentInfo::toJsonObj() const { return encoding::writtenFields(*this, Fields::table); }

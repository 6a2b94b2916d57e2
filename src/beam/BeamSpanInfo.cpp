#include "beam/BeamSpanInfo.h"

#include "beam/BeamKeys.h"
#include "encoding/RecordFields.h"

using namespace beam;
using encoding::fieldOr;

struct BeamSpanInfo::Fields
{
    using Record = BeamSpanInfo;
    static constexpr auto table = std::make_tuple(
        fieldOr(key::spanIndex, &Record::SpanIndex), fieldOr(key::startElev, &Record::StartElev),
        fieldOr(key::endElev, &Record::EndElev), fieldOr(key::spanA1A4, &Record::SpanA1_A4),
        fieldOr(key::spanLength, &Record::SpanLength), fieldOr(key::section, &Record::Section),
        fieldOr(key::axisOffset, &Record::AxisOffset), fieldOr(key::topThroughBar, &Record::TopThroughBar),
        fieldOr(key::leftSupportBar, &Record::LeftSupportBar), fieldOr(key::spanBar, &Record::SpanBar),
        fieldOr(key::rightSupportBar, &Record::RightSupportBar),
        fieldOr(key::bottomThroughBar, &Record::BottomThroughBar), fieldOr(key::bottomBar, &Record::BottomBar),
        fieldOr(key::sideBar, &Record::SideBar), fieldOr(key::sideLabelBar, &Record::SideLabelBar),
        fieldOr(key::tieBar, &Record::TieBar), fieldOr(key::hoopBar, &Record::HoopBar),
        fieldOr(key::hoopBarLimbCount, &Record::HoopBarLimbCount), fieldOr(key::secBeamWidth, &Record::SecBeamWidth),
        fieldOr(key::secBeamAddBar, &Record::SecBeamAddBar), fieldOr(key::hangBar, &Record::HangBar),
        fieldOr(key::hangBarAnchor, &Record::HangBarAnchor), fieldOr(key::denseLength, &Record::DenseLength),
        fieldOr(key::haunchingLength, &Record::HaunchingLength),
        fieldOr(key::haunchingHeight, &Record::HaunchingHeight),
        fieldOr(key::haunchingBarInfo, &Record::HaunchingBarInfo), fieldOr(key::otherHoopBars, &Record::OtherHoopBars));
};

void BeamSpanInfo::fromJson(const QJsonObject &json) { encoding::readFields(json, Fields::table, *this); }

QJsonObject BeamSpanInfo::toJsonObj() const { return encoding::writtenFields(*this, Fields::table); }

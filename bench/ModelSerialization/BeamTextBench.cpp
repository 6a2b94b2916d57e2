#include "BeamRecords.h"
#include "support/RatioBench.h"

#include "beam/BeamKeys.h"

// The records of beams against what nobody can avoid who writes and reads this JSON with Qt.

namespace {

using namespace beam;

QJsonObject byHand(const BeamEdoInfo &placed);
QJsonObject byHand(const BeamModelDataInfo &beam);

QJsonObject byHand(const BeamSpanInfo &span)
{
    return {{key::spanIndex, span.SpanIndex},
            {key::startElev, span.StartElev},
            {key::endElev, span.EndElev},
            {key::spanA1A4, span.SpanA1_A4},
            {key::spanLength, span.SpanLength},
            {key::section, span.Section},
            {key::axisOffset, span.AxisOffset},
            {key::topThroughBar, span.TopThroughBar},
            {key::leftSupportBar, span.LeftSupportBar},
            {key::spanBar, span.SpanBar},
            {key::rightSupportBar, span.RightSupportBar},
            {key::bottomThroughBar, span.BottomThroughBar},
            {key::bottomBar, span.BottomBar},
            {key::sideBar, span.SideBar},
            {key::sideLabelBar, span.SideLabelBar},
            {key::tieBar, span.TieBar},
            {key::hoopBar, span.HoopBar},
            {key::hoopBarLimbCount, span.HoopBarLimbCount},
            {key::secBeamWidth, span.SecBeamWidth},
            {key::secBeamAddBar, span.SecBeamAddBar},
            {key::hangBar, span.HangBar},
            {key::hangBarAnchor, span.HangBarAnchor},
            {key::denseLength, span.DenseLength},
            {key::haunchingLength, span.HaunchingLength},
            {key::haunchingHeight, span.HaunchingHeight},
            {key::haunchingBarInfo, span.HaunchingBarInfo},
            {key::otherHoopBars, span.OtherHoopBars}};
}

QJsonObject byHand(const BeamSegmentInfo &segment)
{
    return {{key::index, segment.Index},
            {key::wordLine, segment.WordLine},
            {key::lineWidth, segment.LineWidth},
            {key::axisOffset, segment.AxisOffset},
            {key::startPtTopElev, segment.StartPtTopElev},
            {key::endPtTopElev, segment.EndPtTopElev}};
}

QJsonObject byHand(const BeamEntInfo &element)
{
    return {{key::name, element.Name},
            {key::elementType, element.ElementType},
            {key::elementSubType, element.ElementSubType},
            {key::sectionWidth, element.SectionWidth},
            {key::sectionHeight, element.SectionHeight},
            {key::sectionPoly, element.SectionPoly},
            {key::startTopElev, element.StartTopElev},
            {key::endTopElev, element.EndTopElev},
            {key::floorName, element.FloorName},
            {key::regionName, element.RegionName},
            {key::hoopBar, element.HoopBar},
            {key::limbCount, element.LimbCount},
            {key::tieBar, element.TieBar},
            {key::axisOffset, element.AxisOffset},
            {key::spanCount, element.SpanCount},
            {key::topThroughBar, element.TopThroughBar},
            {key::bottomThroughBar, element.BottomThroughBar},
            {key::sideBar, element.SideBar},
            {key::type, element.Type}};
}

template <typename Record> QJsonArray allByHand(const std::vector<std::shared_ptr<Record>> &records)
{
    QJsonArray array;
    for (const auto &record : records)
        array.append(byHand(*record));
    return array;
}

QJsonObject byHand(const BeamEdoInfo &placed)
{
    return {{key::segmentInfos, allByHand(placed.segments)}, {key::spanInfos, allByHand(placed.spans)}};
}

QJsonObject byHand(const BeamModelDataInfo &beam)
{
    return {{key::elementInfo, byHand(static_cast<const BeamEntInfo &>(*beam.elementInfo))},
            {key::edoInfos, allByHand(beam.edoInfos)}};
}

QByteArray textByHand(const ORVCADBeamCollectDataModel::Beams &beams)
{
    const QJsonObject document{
        {key::beams, allByHand(beams)}, {key::linkBeams, QJsonArray()}, {key::foundationBeams, QJsonArray()}};
    return QJsonDocument(document).toJson();
}

/** Looks at every value: texts and numbers are fetched as a reader fetches them. */
double walked(const QJsonValue &value)
{
    double sum = 0.0;
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (auto member = object.begin(); member != object.end(); ++member)
            sum += walked(member.value()) + member.key().size();
    } else if (value.isArray()) {
        for (const QJsonValue entry : value.toArray())
            sum += walked(entry);
    } else {
        sum = value.isString() ? value.toString().size() : value.toDouble();
    }
    return sum;
}

} // namespace

int main()
{
    constexpr int kBeams = 1000;
    constexpr double kCeiling = 1.25;
    const auto beams = bench::beamRecords(kBeams);
    const QByteArray text = bench::beamText(beams);
    if (text != textByHand(beams) || bench::beamText(bench::beamsOf(text)) != text)
        return 1;

    bench::RatioTable table("Beams as text");
    table.row(
        "records to bytes / objects by hand", kBeams, [&] { bench::keep(bench::beamText(beams)); },
        [&] { bench::keep(textByHand(beams)); }, kCeiling);
    table.row(
        "bytes to records / parsed and walked", kBeams, [&] { bench::keep(bench::beamsOf(text)); },
        [&] { bench::keep(walked(QJsonDocument::fromJson(text).object())); }, kCeiling);
    return table.print();
}

#include "BeamRecords.h"
#include "suite/Families.h"
#include "suite/PayloadBounds.h"
#include "support/JsonWalk.h"

#include "beam/BeamKeys.h"

// The records of beams against what nobody can avoid who writes and reads this JSON with Qt.

namespace {

using namespace beam;
using Beams = ORVCADBeamCollectDataModel::Beams;

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

QByteArray textByHand(const Beams &beams)
{
    const QJsonObject document{
        {key::beams, allByHand(beams)}, {key::linkBeams, QJsonArray()}, {key::foundationBeams, QJsonArray()}};
    return QJsonDocument(document).toJson();
}

/** The items are the objects of the document; a beam is nine: itself, its element, a placed one, its pieces and spans. */
int beamsOf(const bench::Load &load) { return static_cast<int>(load.size / 9); }

bench::Sides writing(const bench::Load &load)
{
    const auto beams = std::make_shared<const Beams>(bench::beamRecords(beamsOf(load)));
    const QByteArray text = bench::beamText(*beams);
    const auto wrong = [beams, text] {
        return text == textByHand(*beams) ? QString() : QStringLiteral("by hand it is another text");
    };
    return {[beams] { bench::keep(bench::beamText(*beams)); }, [beams] { bench::keep(textByHand(*beams)); },
            static_cast<double>(load.items()), static_cast<double>(text.size()), wrong};
}

bench::Sides reading(const bench::Load &load)
{
    const QByteArray text = bench::beamText(bench::beamRecords(beamsOf(load)));
    const auto beams = std::make_shared<Beams>();
    const auto read = [text, beams] { *beams = bench::beamsOf(text); };
    const auto wrong = [text, beams, read] {
        read();
        return bench::beamText(*beams) == text ? QString() : QStringLiteral("what was read is written as another text");
    };
    return {bench::Work([beams] { beams->clear(); }, read),
            [text] { bench::keep(bench::walked(QJsonDocument::fromJson(text).object())); },
            static_cast<double>(load.items()), static_cast<double>(text.size()), wrong};
}

} // namespace

bench::Roads bench::beamTextRoads()
{
    return {{"beams written", "objects by hand", kPayloadSizes, kPayloadWritten, &writing},
            {"beams read", "fromJson and a walk", kPayloadSizes, kPayloadRead, &reading}};
}

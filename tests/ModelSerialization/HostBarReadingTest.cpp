#include "ModelSerialization/HostBarReading.h"

#include "ModelSerialization/SlabReaderFixture.h"
#include "beam/SeatHost.h"

#include <algorithm>
#include <vector>

namespace {

using hbx::embedded::curveOf;
using hbx::embedded::polygonOf;

class HostBarReadingTest : public SlabReaderFixture
{
protected:
    /** Reads a bar that stands alone in the host with that number in a property, and gives a field of it back. */
    template <typename Element> int fieldFor(const wchar_t *property, int value, qint32 Element::*field)
    {
        Element bar;
        setNumbers(object, {{property, value}});
        slabhost::read(model(), *object, bar);
        return bar.*field;
    }
    template <typename Element>
    std::vector<int> fieldsFor(const wchar_t *property, const std::vector<int> &values, qint32 Element::*field)
    {
        std::vector<int> out(values.size());
        std::transform(values.begin(), values.end(), out.begin(),
                       [&](int value) { return fieldFor(property, value, field); });
        return out;
    }
    template <typename Element> Element told()
    {
        Element bar;
        slabhost::read(model(), *object, bar);
        return bar;
    }

    IHBXElementDrawObj *object = nullptr;
};

using Ints = std::vector<int>;

// ---- Area bars

TEST_F(HostBarReadingTest, workingBarTakesAllOfItsProperties)
{
    areaBar(22, "SLJ");
    object = drawObjs().at(0);
    setTexts(object, {{L"BarInfo", "C10@200"}, {L"Remark", "note"}, {L"LeftHook", "120"}, {L"RightHook", "90"}});
    setNumbers(object, {{L"Type", 0}, {L"Position", 1}});
    ASSERT_TRUE(read());
    const Model::ForcedBar &bar = only(local.forcedBars());
    EXPECT_EQ(bar.name, "SLJ");
    EXPECT_EQ(bar.stateDescript, "note");
    EXPECT_EQ(bar.barInfo, "C10@200");
    EXPECT_EQ(bar.forcedType, 1);
    EXPECT_EQ(bar.rowNumber, 0);
    EXPECT_EQ(bar.leftHookLength, 120);
    EXPECT_EQ(bar.rightHookLength, 90);
    EXPECT_EQ(bar.direction, Point(1, 0));
    EXPECT_TRUE(bar.refPointValid);
    EXPECT_DOUBLE_EQ(bar.surface->Area(), 24e6);
}

TEST_F(HostBarReadingTest, everyTypeButNoughtIsAStraddlingBar)
{
    for (int type : {0, 1, 2, -1})
        setNumbers(areaBar(22, QByteArray::number(type)), {{L"Type", type}});
    ASSERT_TRUE(read(Service::BoardBars));
    EXPECT_EQ(rows(local.forcedBars()), QStringList{"0 0"});
    EXPECT_EQ(rows(local.straddleForcedBars()), (QStringList{"1 0", "2 1", "-1 2"}));
}

TEST_F(HostBarReadingTest, barsOfBothTypesAreNumberedApart)
{
    setNumbers(areaBar(49, "single"), {{L"Type", 0}});
    setNumbers(areaBar(49, "straddling"), {{L"Type", 1}});
    ASSERT_TRUE(read(Service::RaftBars));
    EXPECT_EQ(rows(local.raftMainForcedBars()), QStringList{"single 0"});
    EXPECT_EQ(rows(local.raftMainStraddleForcedBars()), QStringList{"straddling 0"});
}

TEST_F(HostBarReadingTest, positionOfASlabsBarIsOneTwoThreeOrNought)
{
    object = areaBar(22, "SLJ");
    EXPECT_EQ(fieldsFor(L"Position", {0, 1, 2, 3, 4, -1}, &Model::ForcedBar::forcedType), (Ints{0, 1, 2, 3, 0, 0}));
}

TEST_F(HostBarReadingTest, positionOfARaftsBarIsOneTwoOrNought)
{
    object = areaBar(49, "FBZJ");
    EXPECT_EQ(fieldsFor(L"Position", {0, 1, 2, 3, 4, -1}, &Model::RaftMainForcedBar::forcedType),
              (Ints{0, 1, 2, 0, 0, 0}));
}

TEST_F(HostBarReadingTest, outlineIsCleaned)
{
    object = areaBar(22, "SLJ");
    as<IHBXFaceShape2D>(object)->setPolygon(polygonOf(
        "POLYGON((0 0, 0 4000, 3000 4000, 6000 4000, 6000 0, 5999.6 0, 0 0))")); // clockwise, two needless points
    const auto bar = told<Model::ForcedBar>();
    EXPECT_EQ(bar.surface->LoopCount(), 1);
    std::vector<vks::CCurve2d *> sides;
    bar.surface->GetCurves(sides);
    EXPECT_EQ(sides.size(), 4U);
    EXPECT_NEAR(bar.surface->Area(), 24e6, 1e4);
    const Point along = sides[0]->EndPoint() - sides[0]->StartPoint();
    EXPECT_GT(along.Cross(sides[1]->EndPoint() - sides[1]->StartPoint()), 0.0); // counter-clockwise now
}

TEST_F(HostBarReadingTest, outlineLosesStepsBelowAMillimetreAndBendsBelowAThousandthOfARadian)
{
    object = areaBar(22, "SLJ");
    const auto sidesWith = [this](const char *southern) {
        as<IHBXFaceShape2D>(object)->setPolygon(
            polygonOf(QString("POLYGON((0 0, %1, 6000 4000, 0 4000, 0 0))").arg(southern).toUtf8().constData()));
        std::vector<vks::CCurve2d *> sides;
        told<Model::ForcedBar>().surface->GetCurves(sides);
        return sides.size();
    };
    EXPECT_EQ(sidesWith("3000 0, 3000 0.8, 6000 0.8"), 4U);
    EXPECT_EQ(sidesWith("3000 0, 3000 1.2, 6000 1.2"), 6U);
    EXPECT_EQ(sidesWith("3000 -0.9, 6000 0"), 4U); // a bend of 0.0006 rad
    EXPECT_EQ(sidesWith("500 -0.9, 6000 0"), 5U);  // and of 0.002 rad
}

TEST_F(HostBarReadingTest, outlineOfATurnedFrameComesInWorldGeometry)
{
    object = areaBar(22, "SLJ");
    object->shape()->setCoordinates({{10000, 0, 0}, {0, 1, 0}, {-1, 0, 0}});
    hbx::embedded::expectBox(told<Model::ForcedBar>().surface->Box(), 6000, 0, 10000, 6000);
}

TEST_F(HostBarReadingTest, barWithoutAnOutlineHasNoSurface)
{
    object = areaBar(22, "SLJ");
    as<IHBXFaceShape2D>(object)->setPolygon(nullptr);
    EXPECT_FALSE(told<Model::ForcedBar>().surface);
}

TEST_F(HostBarReadingTest, directionAndReferencePointAreThoseOfTheCurvesEnd)
{
    object = areaBar(22, "SLJ", kLinks, "LINESTRING(1000 2000, 1000 5000)");
    const auto bar = told<Model::ForcedBar>();
    EXPECT_EQ(bar.direction, Point(0, 1));
    EXPECT_EQ(bar.refPoint, Point(1000, 5000));
    EXPECT_TRUE(bar.refPointValid);
}

TEST_F(HostBarReadingTest, directionOfAnArcIsThatOfItsEnd)
{
    object = areaBar(22, "SLJ", kLinks, "CIRCULARSTRING(1000 0, 707.1067811865476 707.1067811865476, 0 1000)");
    const auto bar = told<Model::ForcedBar>();
    EXPECT_NEAR(bar.direction.x, -1.0, 1e-9);
    EXPECT_NEAR(bar.direction.y, 0.0, 1e-9);
}

TEST_F(HostBarReadingTest, curveThatEndsAtTheOriginHasNoValidReferencePoint)
{
    object = areaBar(22, "SLJ", kLinks, "LINESTRING(1000 2000, 0 0)");
    EXPECT_FALSE(told<Model::ForcedBar>().refPointValid);
}

TEST_F(HostBarReadingTest, curveThatStartsAtTheOriginHasAValidReferencePoint)
{
    object = areaBar(22, "SLJ", kLinks, "LINESTRING(0 0, 1000 2000)");
    EXPECT_TRUE(told<Model::ForcedBar>().refPointValid);
}

TEST_F(HostBarReadingTest, referencePointIsValidBeyondTheEpsilonOfDoubles)
{
    object = areaBar(22, "SLJ", kLinks, "LINESTRING(0 0, 2e-16 0)");
    EXPECT_FALSE(told<Model::ForcedBar>().refPointValid);
    setDrawn(object, "LINESTRING(0 0, 3e-16 0)");
    EXPECT_TRUE(told<Model::ForcedBar>().refPointValid);
}

TEST_F(HostBarReadingTest, barWithoutACurveHasNeitherDirectionNorReferencePoint)
{
    object = areaBar(22, "SLJ");
    object->properties()->setCurve(L"CurveData", nullptr, true);
    const auto bar = told<Model::ForcedBar>();
    EXPECT_EQ(bar.direction, Point());
    EXPECT_FALSE(bar.refPointValid);
}

TEST_F(HostBarReadingTest, hooksAreNumbersInTextWithoutTheirFraction)
{
    object = areaBar(22, "SLJ");
    const std::pair<const char *, int> hooks[] = {{"90", 90},     {"90.9", 90},          {"-12.7", -12}, {"", 0},
                                                  {"15d", 0},     {"1e12", 2147483647},  {"nan", 0},     {" 7 ", 7},
                                                  {"1.5e2", 150}, {"-1e12", -2147483648}};
    for (const auto &[written, expected] : hooks) {
        setTexts(object, {{L"LeftHook", written}, {L"RightHook", "1"}});
        EXPECT_EQ(told<Model::ForcedBar>().leftHookLength, expected) << written;
        EXPECT_EQ(told<Model::ForcedBar>().rightHookLength, 1);
        setTexts(object, {{L"RightHook", written}});
        EXPECT_EQ(told<Model::RaftMainForcedBar>().rightHookLength, expected) << written;
    }
}

TEST_F(HostBarReadingTest, straddlingBarOfSlabsTakesAllOfItsProperties)
{
    object = areaBar(22, "KBSLJ", kLinks, "LINESTRING(4000 3000, 6000 3000)");
    setTexts(object, {{L"BarInfo", "C8@150"},
                      {L"Remark", "note"},
                      {L"LeftHook", "100"},
                      {L"RightHook", "120"},
                      {L"DistributedBar", "A6@250"},
                      {L"SaddleBarLineCount", "2*2"}});
    setNumbers(object, {{L"Type", 1}, {L"LeftLabel", 1000}, {L"RightLabel", 1100}, {L"LabelPosition", 3}});
    ASSERT_TRUE(read());
    const Model::StraddleForcedBar &bar = only(local.straddleForcedBars());
    EXPECT_EQ(bar.name, "KBSLJ");
    EXPECT_EQ(bar.stateDescript, "note");
    EXPECT_EQ(bar.barInfo, "C8@150");
    EXPECT_EQ(bar.leftHookLength, 100);
    EXPECT_EQ(bar.rightHookLength, 120);
    EXPECT_EQ(bar.distributeBarInfo, "A6@250");
    EXPECT_EQ(bar.saddleBarlineCount, "2*2");
    EXPECT_DOUBLE_EQ(bar.leftStretchLength, 1000.0);
    EXPECT_DOUBLE_EQ(bar.rightStretchLength, 1100.0);
    EXPECT_EQ(bar.labelPosition, 3);
    EXPECT_EQ(bar.direction, Point(1, 0));
    EXPECT_EQ(bar.refPoint, Point(6000, 3000));
}

TEST_F(HostBarReadingTest, straddlingBarOfRaftsTakesAllOfItsProperties)
{
    object = areaBar(49, "KFBZJ", kLinks, "LINESTRING(4000 3000, 6000 3000)");
    setTexts(object, {{L"BarInfo", "C12@200"}, {L"Remark", "note"}, {L"LeftHook", "10"}, {L"RightHook", "20"}});
    setNumbers(object, {{L"Type", 1}, {L"LeftLabel", 1000}, {L"RightLabel", 1100}, {L"LabelPosition", 1}});
    ASSERT_TRUE(read());
    const Model::RaftMainStraddleForcedBar &bar = only(local.raftMainStraddleForcedBars());
    EXPECT_EQ(bar.barInfo, "C12@200");
    EXPECT_EQ(bar.stateDescript, "note");
    EXPECT_EQ(bar.leftHookLength, 10);
    EXPECT_EQ(bar.rightHookLength, 20);
    EXPECT_DOUBLE_EQ(bar.leftStretchLength, 1000.0);
    EXPECT_DOUBLE_EQ(bar.rightStretchLength, 1100.0);
    EXPECT_EQ(bar.labelPosition, 1);
    EXPECT_EQ(bar.refPoint, Point(6000, 3000));
}

TEST_F(HostBarReadingTest, labelOfAStraddlingBarIsNoughtOneThreeOrTwo)
{
    object = areaBar(22, "KBSLJ");
    EXPECT_EQ(fieldsFor(L"LabelPosition", {0, 1, 2, 3, 4, 5, -1}, &Model::StraddleForcedBar::labelPosition),
              (Ints{0, 1, 2, 3, 2, 2, 2}));
    object = areaBar(49, "KFBZJ");
    EXPECT_EQ(fieldsFor(L"LabelPosition", {0, 1, 2, 3, 4, 5, -1}, &Model::RaftMainStraddleForcedBar::labelPosition),
              (Ints{0, 1, 2, 3, 2, 2, 2}));
}

// ---- The slabs of bars

TEST_F(HostBarReadingTest, workingBarHoldsTheOutlineOfItsFirstSlab)
{
    const auto *first = plate(19, "one", "POLYGON((0 0, 100 0, 100 100, 0 100, 0 0))");
    const auto *second = plate(19, "other", "POLYGON((100 0, 200 0, 200 100, 100 100, 100 0))");
    object = areaBar(22, "SLJ", linkTo(first) + linkTo(second));
    EXPECT_EQ(text(told<Model::ForcedBar>().supportPoly), "POLYGON((0 0, 100 0, 100 100, 0 100, 0 0))");
}

TEST_F(HostBarReadingTest, straddlingBarHoldsTheOutlinesOfItsSlabs)
{
    const auto *first = plate(19, "one", "POLYGON((0 0, 100 0, 100 100, 0 100, 0 0))");
    const auto *second = plate(19, "other", "POLYGON((100 0, 200 0, 200 100, 100 100, 100 0))");
    object = areaBar(22, "KBSLJ", linkTo(second) + linkTo(first));
    const auto bar = told<Model::StraddleForcedBar>();
    ASSERT_EQ(bar.supportPolys.size(), 2U);
    EXPECT_EQ(text(bar.supportPolys[0]), "POLYGON((100 0, 200 0, 200 100, 100 100, 100 0))");
    EXPECT_EQ(text(bar.supportPolys[1]), "POLYGON((0 0, 100 0, 100 100, 0 100, 0 0))");
}

TEST_F(HostBarReadingTest, lastItemOfAStraddlingBarNeverCounts)
{
    const auto *first = plate(19, "one");
    const auto *second = plate(19, "other");
    object = areaBar(22, "KBSLJ", linkTo(first) + QString::number(second->id()) + ",1");
    EXPECT_EQ(told<Model::StraddleForcedBar>().supportPolys.size(), 1U);
}

TEST_F(HostBarReadingTest, unknownSlabsAreNotHeld)
{
    const auto *slab = plate(19, "one");
    object = areaBar(22, "SLJ", "4711,1;" + linkTo(slab));
    EXPECT_FALSE(told<Model::ForcedBar>().supportPoly);
    EXPECT_EQ(told<Model::StraddleForcedBar>().supportPolys.size(), 1U);
}

TEST_F(HostBarReadingTest, raftsBarHoldsNoOutline)
{
    const auto *raft = plate(48, "raft");
    object = areaBar(49, "FBZJ", linkTo(raft));
    EXPECT_FALSE(told<Model::RaftMainForcedBar>().supportPoly);
}

TEST_F(HostBarReadingTest, barOfNoSlabGivesNoElement)
{
    areaBar(22, "slab, no link", "");
    areaBar(22, "slab, no usable link", "4711;");
    areaBar(49, "raft, no link", "");
    setNumbers(areaBar(49, "raft, straddling, no link", ""), {{L"Type", 1}});
    ASSERT_TRUE(read());
    EXPECT_TRUE(local.objects().empty());
}

// ---- Line bars

TEST_F(HostBarReadingTest, topBarOfASlabTakesAllOfItsProperties)
{
    object = lineBar(23, "FJ", 800, 900);
    setTexts(object, {{L"BarInfo", "C8@150"},
                      {L"Remark", "note"},
                      {L"LeftHook", "90"},
                      {L"RightHook", "100"},
                      {L"DistributedBar", "A6@250"},
                      {L"SaddleBarLineCount", "2*2"}});
    ASSERT_TRUE(read());
    const Model::NegativeForcedBar &bar = only(local.negativeForcedBars());
    EXPECT_EQ(bar.name, "FJ");
    EXPECT_EQ(text(bar.line), "LINESTRING(5000 1000, 5000 7000)");
    EXPECT_EQ(bar.barInfo, "C8@150");
    EXPECT_EQ(bar.stateDescript, "note");
    EXPECT_EQ(bar.leftHookLength, 90);
    EXPECT_EQ(bar.rightHookLength, 100);
    EXPECT_EQ(bar.distributeBarInfo, "A6@250");
    EXPECT_EQ(bar.saddleBarlineCount, "2*2");
    EXPECT_DOUBLE_EQ(bar.leftStretchLength, 800.0);
    EXPECT_DOUBLE_EQ(bar.rightStretchLength, 900.0);
    EXPECT_EQ(bar.rowNumber, 0);
    EXPECT_TRUE(bar.refPointValid);
    EXPECT_EQ(bar.refPoint, Point(5000, 4000));
}

TEST_F(HostBarReadingTest, topBarOfARaftTakesAllOfItsProperties)
{
    object = lineBar(50, "FBFJ", 800, 900);
    setTexts(object, {{L"BarInfo", "C12@200"}, {L"Remark", "note"}, {L"LeftHook", "90"}, {L"RightHook", "100"}});
    ASSERT_TRUE(read());
    const Model::RaftNegativeForcedBar &bar = only(local.raftNegativeForcedBars());
    EXPECT_EQ(bar.name, "FBFJ");
    EXPECT_EQ(text(bar.line), "LINESTRING(5000 1000, 5000 7000)");
    EXPECT_EQ(bar.barInfo, "C12@200");
    EXPECT_EQ(bar.stateDescript, "note");
    EXPECT_EQ(bar.leftHookLength, 90);
    EXPECT_EQ(bar.rightHookLength, 100);
    EXPECT_DOUBLE_EQ(bar.leftStretchLength, 800.0);
    EXPECT_DOUBLE_EQ(bar.rightStretchLength, 900.0);
    EXPECT_EQ(bar.refPoint, Point(5000, 4000));
}

TEST_F(HostBarReadingTest, rowsOfTopBarsComeIn)
{
    setTexts(lineBar(23, "later"), {{L"BarInfo", "B"}});
    setTexts(lineBar(23, "earlier"), {{L"BarInfo", "A"}});
    ASSERT_TRUE(read());
    EXPECT_EQ(rows(local.negativeForcedBars()), (QStringList{"earlier 0", "later 1"}));
}

TEST_F(HostBarReadingTest, labelPlaceIsTheHostsWhereALabelIsNought)
{
    for (const auto &[left, right] : {std::pair(0, 900), std::pair(900, 0), std::pair(0, 0)}) {
        object = lineBar(23, "", left, right);
        setNumbers(object, {{L"IncludeSupport", 2}});
        EXPECT_EQ(fieldsFor(L"LabelPosition", {0, 1, 2, 3, 4, 5, -1}, &Model::NegativeForcedBar::labelPosition),
                  (Ints{0, 1, 2, 3, 4, 2, 2}));
    }
}

TEST_F(HostBarReadingTest, labelPlaceGoesBySupportsWhereBothLabelsAreTold)
{
    object = lineBar(23, "FJ", 800, 900);
    setNumbers(object, {{L"LabelPosition", 1}});
    EXPECT_EQ(fieldsFor(L"IncludeSupport", {0, 1, 2, 3, -1}, &Model::NegativeForcedBar::labelPosition),
              (Ints{2, 2, 5, 2, 2}));
}

TEST_F(HostBarReadingTest, labelPlaceOfARaftsTopBarIsAlwaysTheHosts)
{
    object = lineBar(50, "FBFJ", 800, 900);
    setNumbers(object, {{L"IncludeSupport", 2}});
    EXPECT_EQ(fieldsFor(L"LabelPosition", {0, 1, 2, 3, 4, 5, -1}, &Model::RaftNegativeForcedBar::labelPosition),
              (Ints{0, 1, 2, 3, 4, 2, 2}));
}

constexpr char kUp[] = "LINESTRING(5000 1000, 5000 7000)";
constexpr char kDown[] = "LINESTRING(5000 7000, 5000 1000)";

struct TurnCase
{
    const char *why;
    int left;
    int right;
    const char *drawn;
    const char *line;
};

const TurnCase kTurns[] = {
    {"starts to the left", 800, 900, "LINESTRING(4200 4000, 5900 4000)", kUp},
    {"starts to the right", 800, 900, "LINESTRING(5800 4000, 4100 4000)", kDown},
    {"starts on the line", 0, 900, "LINESTRING(5000 4000, 5900 4000)", kDown},
    {"labels a millimetre apart", 900, 901, "LINESTRING(5900 4000, 4100 4000)", kDown},
    {"equal labels", 900, 900, "LINESTRING(5900 4000, 4100 4000)", kUp},
};

TEST_F(HostBarReadingTest, lineIsTurnedUntilTheDrawnBarStartsToItsLeft)
{
    for (const TurnCase &turn : kTurns) {
        object = lineBar(23, "", turn.left, turn.right, kUp, turn.drawn);
        EXPECT_EQ(text(told<Model::NegativeForcedBar>().line), turn.line) << turn.why;
        object = lineBar(50, "", turn.left, turn.right, kUp, turn.drawn);
        EXPECT_EQ(text(told<Model::RaftNegativeForcedBar>().line), turn.line) << turn.why;
    }
}

TEST_F(HostBarReadingTest, turningALineLeavesTheHostsAsItIs)
{
    object = lineBar(23, "FJ", 800, 900, kUp, "LINESTRING(5800 4000, 4100 4000)");
    ASSERT_EQ(text(told<Model::NegativeForcedBar>().line), kDown);
    CurvePtr kept;
    EXPECT_EQ(text(as<IHBXLineShape2D>(object)->curve(kept)), kUp);
}

TEST_F(HostBarReadingTest, turningALineWithoutAFrameLeavesTheHostsAsItIs)
{
    seathost::PlanLine shape;
    shape.own = curveOf(kUp);
    shape.frame = vks::CCoord3<double>::Absent();
    seathost::DrawObj ofFake;
    ofFake.placed = &shape;
    Model::NegativeForcedBar bar;
    slabhost::read(model(), ofFake, bar);
    EXPECT_EQ(text(bar.line), kUp);
    bar.line->Reverse();
    EXPECT_EQ(text(shape.own), kUp);
}

TEST_F(HostBarReadingTest, referencePointOfALineBarIsTheFirstAlongTheDrawnBar)
{
    object = lineBar(23, "FJ", 900, 900, "CIRCULARSTRING(1000 0, 0 1000, -1000 0)", "LINESTRING(2000 0, 3000 0)");
    const auto bar = told<Model::NegativeForcedBar>();
    EXPECT_TRUE(bar.refPointValid);
    EXPECT_NEAR(bar.refPoint.x, -1000.0, 1e-6); // before the other one at x = 1000, along the drawn bar
    EXPECT_NEAR(bar.refPoint.y, 0.0, 1e-6);
}

TEST_F(HostBarReadingTest, drawnBarIsLengthenedUntilItMeetsTheLine)
{
    object = lineBar(23, "FJ", 900, 0, kUp, "LINESTRING(4100 4000, 4200 4000)");
    EXPECT_EQ(told<Model::NegativeForcedBar>().refPoint, Point(5000, 4000));
}

TEST_F(HostBarReadingTest, drawnBarThatMissesTheLineHasNoReferencePoint)
{
    object = lineBar(23, "FJ", 900, 900, kUp, "LINESTRING(4100 8000, 5900 8000)");
    EXPECT_FALSE(told<Model::NegativeForcedBar>().refPointValid);
    object = lineBar(50, "FBFJ", 900, 900, kUp, "LINESTRING(4100 1000, 4100 7000)");
    EXPECT_FALSE(told<Model::RaftNegativeForcedBar>().refPointValid);
}

TEST_F(HostBarReadingTest, lineBarWithoutADrawnBarKeepsItsLineAndHasNoReferencePoint)
{
    object = lineBar(23, "FJ", 900, 0);
    object->properties()->setCurve(L"CurveData", nullptr, true);
    const auto bar = told<Model::NegativeForcedBar>();
    EXPECT_EQ(text(bar.line), kUp);
    EXPECT_FALSE(bar.refPointValid);
}

TEST_F(HostBarReadingTest, lineOfATurnedFrameComesIntoThePlan)
{
    object = lineBar(23, "FJ", 900, 900, "LINESTRING(0 0, 3000 0)", "LINESTRING(9000 500, 11000 500)");
    object->shape()->setCoordinates({{10000, 0, 0}, {0, 1, 0}, {-1, 0, 0}});
    const auto bar = told<Model::NegativeForcedBar>();
    EXPECT_EQ(text(bar.line), "LINESTRING(10000 0, 10000 3000)");
    EXPECT_EQ(bar.refPoint, Point(10000, 500));
}

TEST_F(HostBarReadingTest, lineBarWithoutAPlaceInThePlanGivesNoElement)
{
    lineBar(23, "FJ")->shape()->setCoordinates({{0, 0, 0}, {1, 0, 0}, {0, 0, 1}});
    lineBar(50, "FBFJ")->shape()->setCoordinates({{0, 0, 0}, {1, 0, 0}, {0, 0, 1}});
    ASSERT_TRUE(read());
    EXPECT_TRUE(local.objects().empty());
}

} // namespace

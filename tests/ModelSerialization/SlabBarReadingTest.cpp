#include "ModelSerialization/SlabBarReading.h"

#include "ModelSerialization/SlabWriterFixture.h"

namespace {

/** What bars of the local model become, seen in the host that they are read for. */
class SlabBarReadingTest : public SlabWriterFixture
{
protected:
    static PolygonPtr area() { return shapes::rectangle(0, 0, 4000, 3000); }
    /** The drawn curve of the only bar of a type. */
    std::string drawn(qint64 type)
    {
        write();
        IHBXElementDrawObj *bar = only(type);
        return bar ? curveIn(bar) : "no bar";
    }
    /** Length along y of the drawn curve of the only bar of a type, which runs along x. */
    double height(qint64 type)
    {
        write();
        CurvePtr curve;
        only(type)->properties()->asCurve(curve, std::wstring(L"CurveData"));
        return curve->MidPoint().y;
    }
};

// ---- Names and texts

TEST_F(SlabBarReadingTest, barWithoutANameIsCalledByItsTextInUpperCase)
{
    addBar<Model::ForcedBar>(area())->barInfo = "c12@150";
    write();
    IHBXElementDrawObj *bar = only(22);
    ASSERT_TRUE(bar);
    EXPECT_EQ(elementName(bar), "SLJ-C12-150");
    EXPECT_EQ(textOf(bar, L"BarInfo"), "C12@150");
    EXPECT_EQ(textIn(bar->element()->properties(), L"BarInfo"), "C12@150");
}

TEST_F(SlabBarReadingTest, barKeepsItsName)
{
    addBar<Model::ForcedBar>(area())->name = "K1@2";
    write();
    EXPECT_EQ(elementName(only(22)), "K1@2");
}

TEST_F(SlabBarReadingTest, everyKindHasItsPrefix)
{
    addBar<Model::ForcedBar>(area());
    addBar<Model::StraddleForcedBar>(area());
    addBar<Model::RaftMainForcedBar>(area());
    addBar<Model::RaftMainStraddleForcedBar>(area());
    addLineBar<Model::NegativeForcedBar>({0, 0}, {0, 4000}, 900, 800);
    addLineBar<Model::RaftNegativeForcedBar>({5000, 0}, {5000, 4000}, 900, 800);
    write();
    EXPECT_EQ(ids.size(), 6U);
    for (const char *name : {"SLJ-C12-150", "KBSLJ-C12-150"})
        EXPECT_TRUE(named(name, 22)) << name;
    for (const char *name : {"FBZJ-C12-150", "KFBZJ-C12-150"})
        EXPECT_TRUE(named(name, 49)) << name;
    EXPECT_TRUE(named("FJ-C8-200", 23));
    EXPECT_TRUE(named("FBFJ-C8-200", 50));
}

// ---- Working bars

struct PlaceCase
{
    int forcedType;
    double ofSlab; // height of the bar in an area of 3000
    double ofRaft;
};
class WorkingBarPlaceTest : public SlabBarReadingTest, public ::testing::WithParamInterface<PlaceCase>
{};

TEST_P(WorkingBarPlaceTest, positionTellsThePartOfTheSpan)
{
    addBar<Model::ForcedBar>(area())->forcedType = GetParam().forcedType;
    addBar<Model::RaftMainForcedBar>(area())->forcedType = GetParam().forcedType;
    EXPECT_DOUBLE_EQ(height(22), GetParam().ofSlab);
    EXPECT_EQ(intOf(only(22), L"Position"), GetParam().forcedType);
    EXPECT_EQ(intOf(only(49), L"Position"), GetParam().forcedType);
    CurvePtr curve;
    only(49)->properties()->asCurve(curve, std::wstring(L"CurveData"));
    EXPECT_DOUBLE_EQ(curve->MidPoint().y, GetParam().ofRaft);
}
INSTANTIATE_TEST_SUITE_P(Positions, WorkingBarPlaceTest,
                         ::testing::Values(PlaceCase{0, 2250, 2250}, PlaceCase{1, 750, 750}, PlaceCase{2, 1146, 1500},
                                           PlaceCase{3, 1854, 1500}, PlaceCase{-1, 1854, 1500}));

struct RowCase
{
    int row;
    double height;
};
class WorkingBarRowTest : public SlabBarReadingTest, public ::testing::WithParamInterface<RowCase>
{};

TEST_P(WorkingBarRowTest, rowMovesTheBarAlongTheSpan)
{
    addBar<Model::ForcedBar>(area())->rowNumber = GetParam().row;
    EXPECT_DOUBLE_EQ(height(22), GetParam().height);
}
INSTANTIATE_TEST_SUITE_P(Rows, WorkingBarRowTest,
                         ::testing::Values(RowCase{0, 2250}, RowCase{1, 2625}, RowCase{2, 1875}, RowCase{3, 2812.5},
                                           RowCase{4, 1687.5}));

TEST_F(SlabBarReadingTest, workingBarReachesThroughItsArea)
{
    addBar<Model::ForcedBar>(area());
    EXPECT_EQ(drawn(22), "LINESTRING(0 2250, 4000 2250)");
    EXPECT_EQ(curveIn(only(22), L"ReferenceCurve"), "LINESTRING(0 2250, 4000 2250)");
}

TEST_F(SlabBarReadingTest, referencePointTellsThePlaceWhateverTheRow)
{
    auto *bar = addBar<Model::ForcedBar>(area());
    bar->refPointValid = true;
    bar->refPoint = {300, 400};
    bar->rowNumber = 3;
    EXPECT_EQ(drawn(22), "LINESTRING(0 400, 4000 400)");
}

TEST_F(SlabBarReadingTest, workingBarThatMissesItsAreaIsAHundredLong)
{
    auto *bar = addBar<Model::ForcedBar>(area());
    bar->refPointValid = true;
    bar->refPoint = {9000, 9000};
    EXPECT_EQ(drawn(22), "LINESTRING(9000 9000, 9100 9000)");
}

TEST_F(SlabBarReadingTest, leftHookOfAWorkingBarStandsInBothProperties)
{
    auto *ofSlab = addBar<Model::ForcedBar>(area());
    ofSlab->leftHookLength = 180;
    ofSlab->rightHookLength = 90;
    auto *ofRaft = addBar<Model::RaftMainForcedBar>(area());
    ofRaft->leftHookLength = 180;
    ofRaft->rightHookLength = 90;
    write();
    for (const qint64 type : {22, 49}) {
        EXPECT_EQ(textOf(only(type), L"LeftHook"), "180");
        EXPECT_EQ(textOf(only(type), L"RightHook"), "180");
        EXPECT_EQ(intOf(only(type), L"Type"), 0);
        EXPECT_EQ(intOf(only(type), L"IsRadiate"), 0);
    }
}

// ---- Straddling bars

TEST_F(SlabBarReadingTest, straddlingBarOfRowZeroLiesInTheMiddle)
{
    addBar<Model::StraddleForcedBar>(area());
    EXPECT_EQ(drawn(22), "LINESTRING(0 1500, 4000 1500)");
}

TEST_F(SlabBarReadingTest, straddlingBarOfAnotherRowLiesOnTheDiagonal)
{
    addBar<Model::StraddleForcedBar>(area())->rowNumber = 1;
    addBar<Model::RaftMainStraddleForcedBar>(area())->rowNumber = 7;
    EXPECT_EQ(drawn(22), "LINESTRING(0 600, 4000 600)");
    EXPECT_EQ(curveIn(only(49)), "LINESTRING(0 2100, 4000 2100)");
}

TEST_F(SlabBarReadingTest, straddlingBarOfSlabsHasAllItsProperties)
{
    auto *bar = addBar<Model::StraddleForcedBar>(area());
    bar->labelPosition = 5;
    bar->leftStretchLength = 900.9;
    bar->rightStretchLength = 800.9;
    bar->leftHookLength = 180;
    bar->rightHookLength = 90;
    bar->distributeBarInfo = "C6@250";
    bar->saddleBarlineCount = "3";
    write();
    IHBXElementDrawObj *object = only(22);
    ASSERT_TRUE(object);
    EXPECT_EQ(intOf(object, L"LabelPosition"), 5);
    EXPECT_EQ(intOf(object, L"Position"), 1);
    EXPECT_EQ(intOf(object, L"Type"), 1);
    EXPECT_EQ(intOf(object, L"LeftLabel"), 900);
    EXPECT_EQ(intOf(object, L"RightLabel"), 800);
    EXPECT_EQ(textOf(object, L"LeftHook"), "180");
    EXPECT_EQ(textOf(object, L"RightHook"), "90");
    EXPECT_EQ(textOf(object, L"DistributedBar"), "C6@250");
    EXPECT_EQ(textOf(object, L"SaddleBarLineCount"), "3");
    EXPECT_EQ(wholeIn(object->element()->properties(), L"Type"), 1);
}

TEST_F(SlabBarReadingTest, straddlingBarOfRaftsHasThePositionZero)
{
    auto *bar = addBar<Model::RaftMainStraddleForcedBar>(area());
    bar->leftHookLength = 180;
    bar->rightHookLength = 90;
    write();
    IHBXElementDrawObj *object = only(49);
    ASSERT_TRUE(object);
    EXPECT_EQ(intOf(object, L"Position"), 0);
    EXPECT_EQ(intOf(object, L"Type"), 1);
    EXPECT_EQ(intOf(object, L"LabelPosition"), 2);
    EXPECT_EQ(textOf(object, L"LeftHook"), "180");
    EXPECT_EQ(textOf(object, L"RightHook"), "90");
    EXPECT_EQ(wholeIn(object->element()->properties(), L"Type"), 1);
}

// ---- Bars along a line

TEST_F(SlabBarReadingTest, negativeBarIsDrawnAcrossTheMiddleOfItsLine)
{
    addLineBar<Model::NegativeForcedBar>({0, 0}, {0, 4000}, 900.9, 800.9);
    EXPECT_EQ(drawn(23), "LINESTRING(-900 2000, 800 2000)");
    CurvePtr line;
    as<IHBXLineShape2D>(only(23))->curve(line);
    EXPECT_EQ(line->ToText(), "LINESTRING(0 0, 0 4000)");
}

TEST_F(SlabBarReadingTest, rowOfANegativeBarIsToldOffAlongItsLine)
{
    addLineBar<Model::NegativeForcedBar>({0, 0}, {0, 4000}, 900, 800)->rowNumber = 1;
    addLineBar<Model::RaftNegativeForcedBar>({0, 0}, {0, 4000}, 900, 800)->rowNumber = 6;
    EXPECT_EQ(drawn(23), "LINESTRING(-900 800, 800 800)");
    EXPECT_EQ(curveIn(only(50)), "LINESTRING(-900 2400, 800 2400)");
}

TEST_F(SlabBarReadingTest, referencePointOfANegativeBarTellsItsPlaceWhateverTheRow)
{
    auto *bar = addLineBar<Model::NegativeForcedBar>({0, 0}, {0, 4000}, 900, 800);
    bar->rowNumber = 1;
    bar->refPointValid = true;
    bar->refPoint = {0, 3300};
    EXPECT_EQ(drawn(23), "LINESTRING(-900 3300, 800 3300)");
}

TEST_F(SlabBarReadingTest, barAlongAnArcKeepsIt)
{
    auto *bar = addLineBar<Model::NegativeForcedBar>({0, 0}, {1, 0}, 900, 800);
    bar->line = CurvePtr(new vks::CArc2d(Point(0, 0), 1000, 0.0, shapes::kPi / 2));
    write();
    CurvePtr line;
    as<IHBXLineShape2D>(only(23))->curve(line);
    EXPECT_EQ(line->Type(), 2);
    EXPECT_NE(line.get(), bar->line.get());
}

struct LabelCase
{
    double left;
    double right;
    int labelPosition;
    int leftLabel; // and what the host gets
    int rightLabel;
    int labelKind;
    int includeSupport;
};
class LineBarLabelTest : public SlabBarReadingTest, public ::testing::WithParamInterface<LabelCase>
{};

TEST_P(LineBarLabelTest, labelsAreTold)
{
    const LabelCase &label = GetParam();
    addLineBar<Model::NegativeForcedBar>({0, 0}, {0, 4000}, label.left, label.right)->labelPosition =
        label.labelPosition;
    addLineBar<Model::RaftNegativeForcedBar>({9000, 0}, {9000, 4000}, label.left, label.right)->labelPosition =
        label.labelPosition;
    write();
    for (const qint64 type : {23, 50}) {
        IHBXElementDrawObj *bar = only(type);
        ASSERT_TRUE(bar);
        EXPECT_EQ(intOf(bar, L"LeftLabel"), label.leftLabel);
        EXPECT_EQ(intOf(bar, L"RightLabel"), label.rightLabel);
        EXPECT_EQ(intOf(bar, L"LabelPosition"), label.labelKind);
        EXPECT_EQ(intOf(bar, L"IncludeSupport"), label.includeSupport);
    }
}
INSTANTIATE_TEST_SUITE_P(OneSided, LineBarLabelTest,
                         ::testing::Values(LabelCase{0, 800, 3, 800, 0, 3, 1}, LabelCase{900, 0, 4, 900, 0, 4, 1},
                                           LabelCase{900, 0.9, 0, 900, 0, 0, 1}, LabelCase{0, 800, 5, 800, 0, 2, 1},
                                           LabelCase{0, 800, -1, 800, 0, 2, 1}, LabelCase{0, 0, 1, 0, 0, 1, 1}));
INSTANTIATE_TEST_SUITE_P(TwoSided, LineBarLabelTest,
                         ::testing::Values(LabelCase{900, 800, 2, 900, 800, 2, 1},
                                           LabelCase{900, 800, 5, 900, 800, 2, 2},
                                           LabelCase{900, 800, 0, 900, 800, 2, 0},
                                           LabelCase{900, 800, 4, 900, 800, 2, 0},
                                           LabelCase{900, 800, 6, 900, 800, 2, 0}));

TEST_F(SlabBarReadingTest, labelsChangePlacesAndTheDrawnBarDoesNot)
{
    addLineBar<Model::NegativeForcedBar>({0, 0}, {0, 4000}, 0, 800);
    EXPECT_EQ(drawn(23), "LINESTRING(0 2000, 800 2000)");
    EXPECT_EQ(intOf(only(23), L"LeftLabel"), 800);
    EXPECT_EQ(intOf(only(23), L"RightLabel"), 0);
}

TEST_F(SlabBarReadingTest, negativeBarHasHooksOfItsOwnAndDistribution)
{
    auto *bar = addLineBar<Model::NegativeForcedBar>({0, 0}, {0, 4000}, 900, 800);
    bar->leftHookLength = 180;
    bar->rightHookLength = 90;
    bar->distributeBarInfo = "C6@250";
    bar->saddleBarlineCount = "3";
    write();
    IHBXElementDrawObj *object = only(23);
    ASSERT_TRUE(object);
    EXPECT_EQ(textOf(object, L"LeftHook"), "180");
    EXPECT_EQ(textOf(object, L"RightHook"), "90");
    EXPECT_EQ(textOf(object, L"DistributedBar"), "C6@250");
    EXPECT_EQ(textOf(object, L"SaddleBarLineCount"), "3");
    EXPECT_EQ(object->status()->layer(), 7);
}

// ---- What is no bar for the host

TEST_F(SlabBarReadingTest, barsOfTheHostAreSkipped)
{
    addBar<Model::ForcedBar>(area())->elementId = 5;
    addBar<Model::StraddleForcedBar>(area())->elementId = 1;
    addBar<Model::RaftMainForcedBar>(area())->elementId = 5;
    addBar<Model::RaftMainStraddleForcedBar>(area())->elementId = 5;
    addLineBar<Model::NegativeForcedBar>({0, 0}, {0, 4000}, 900, 800)->elementId = 5;
    addLineBar<Model::RaftNegativeForcedBar>({0, 0}, {0, 4000}, 900, 800)->elementId = 5;
    write();
    EXPECT_TRUE(ids.empty());
    EXPECT_EQ(elements().count(), 0);
}

TEST_F(SlabBarReadingTest, barsWithoutGeometryAreLeftOut)
{
    addBar<Model::ForcedBar>(nullptr);
    addBar<Model::StraddleForcedBar>(nullptr);
    addBar<Model::RaftMainForcedBar>(nullptr);
    addBar<Model::RaftMainStraddleForcedBar>(nullptr);
    addLineBar<Model::NegativeForcedBar>({0, 0}, {0, 4000}, 900, 800)->line = nullptr;
    addLineBar<Model::RaftNegativeForcedBar>({0, 0}, {0, 4000}, 900, 800)->line = nullptr;
    write();
    EXPECT_TRUE(ids.empty());
    EXPECT_EQ(elements().count(), 0);
    EXPECT_EQ(drawObjs().count(), 0);
}

TEST_F(SlabBarReadingTest, barWithoutADirectionIsWrittenWithoutLength)
{
    addBar<Model::ForcedBar>(area(), {0, 0});
    EXPECT_EQ(drawn(22), "LINESTRING(2000 1500, 2000 1500)");
}

} // namespace

#include "ModelSerialization/HostBarRows.h"

#include "ModelSerialization/SlabReaderFixture.h"
#include "beam/SeatHost.h"

namespace {

using slabhost::areaBarRows;
using slabhost::lineBarRows;

class HostBarRowsTest : public SlabReaderFixture
{
protected:
    IHBXElementDrawObj *bar(const char *name, const QString &barInfo, const QString &links = kLinks,
                            const char *drawn = "LINESTRING(0 0, 1000 0)", int position = 1)
    {
        IHBXElementDrawObj *object = areaBar(22, name, links, drawn);
        setTexts(object, {{L"BarInfo", barInfo}});
        setNumbers(object, {{L"Position", position}});
        return objects.append(object), object;
    }
    IHBXElementDrawObj *topBar(const char *name, const QString &barInfo, int left, int right,
                               const char *line = "LINESTRING(5000 1000, 5000 7000)")
    {
        IHBXElementDrawObj *object = lineBar(23, name, left, right, line);
        setTexts(object, {{L"BarInfo", barInfo}});
        return objects.append(object), object;
    }
    static QStringList told(const std::vector<slabhost::NumberedBar> &bars)
    {
        QStringList out;
        for (const slabhost::NumberedBar &bar : bars)
            out.append(nameOf(bar.bar->element()) + ' ' + QString::number(bar.row));
        return out;
    }
    QStringList areaRows() const { return told(areaBarRows(objects).single); }
    QStringList lineRows() const { return told(lineBarRows(objects)); }

    QList<IHBXElementDrawObj *> objects;
};

// ---- Area bars

TEST_F(HostBarRowsTest, noBarsHaveNoRows)
{
    EXPECT_EQ(areaRows(), QStringList());
    EXPECT_EQ(lineRows(), QStringList());
}

TEST_F(HostBarRowsTest, barsOfAGroupAreNumberedByTheirText)
{
    bar("first", "B");
    bar("second", "A");
    bar("third", "C");
    EXPECT_EQ(areaRows(), (QStringList{"second 0", "first 1", "third 2"}));
}

TEST_F(HostBarRowsTest, textsAreComparedAsTexts)
{
    bar("8", "C8@200");
    bar("12", "C12@200");
    bar("lower case", "c10@200");
    EXPECT_EQ(areaRows(), (QStringList{"12 0", "8 1", "lower case 2"}));
}

TEST_F(HostBarRowsTest, barsOfOneTextKeepTheirOrder)
{
    bar("first", "C8");
    bar("second", "C8");
    EXPECT_EQ(areaRows(), (QStringList{"first 0", "second 1"}));
}

TEST_F(HostBarRowsTest, barsOfOtherSlabsAreAGroupOfTheirOwn)
{
    bar("other", "A", "12,1;");
    bar("one", "B", "11,1;");
    EXPECT_EQ(areaRows(), (QStringList{"one 0", "other 0"}));
}

TEST_F(HostBarRowsTest, slabsAreASetWhateverTheirOrder)
{
    bar("one", "A", "11,1;12,1;");
    bar("other", "B", "12,5;11,7;12,1;");
    bar("fewer", "C", "11,1;");
    EXPECT_EQ(areaRows(), (QStringList{"fewer 0", "one 0", "other 1"}));
}

TEST_F(HostBarRowsTest, onlyItemsOfTwoFieldsNameASlab)
{
    bar("plain", "A", "11,1;");
    bar("with others", "B", "12;13,1,1;11,1;;");
    EXPECT_EQ(areaRows(), (QStringList{"plain 0", "with others 1"}));
}

TEST_F(HostBarRowsTest, barOfNoSlabIsLeftOut)
{
    bar("empty", "A", "");
    bar("one field", "A", "11;12;");
    bar("three fields", "A", "11,1,1;");
    EXPECT_EQ(areaRows(), QStringList());
}

TEST_F(HostBarRowsTest, slabIdsAreWholeNumbersOf64Bits)
{
    bar("one", "A", "8589934593,1;");
    bar("same low bits", "B", "1,1;");
    EXPECT_EQ(areaRows(), (QStringList{"same low bits 0", "one 0"}));
}

TEST_F(HostBarRowsTest, positionsAreApart)
{
    bar("on top", "A", kLinks, "LINESTRING(0 0, 1000 0)", 1);
    bar("below", "B", kLinks, "LINESTRING(0 0, 1000 0)", 0);
    EXPECT_EQ(areaRows(), (QStringList{"below 0", "on top 0"}));
}

TEST_F(HostBarRowsTest, directionsAreApartAndOppositeOnesTheSame)
{
    bar("along", "A", kLinks, "LINESTRING(0 0, 1000 0)");
    bar("across", "B", kLinks, "LINESTRING(0 0, 0 1000)");
    bar("back", "C", kLinks, "LINESTRING(1000 0, 0 0)");
    EXPECT_EQ(areaRows(), (QStringList{"along 0", "back 1", "across 0"}));
}

TEST_F(HostBarRowsTest, barBetweenTwoDirectionsStandsInBothGroups)
{
    bar("level", "A", kLinks, "LINESTRING(0 0, 1000 0)");
    bar("18 degrees", "C", kLinks, "LINESTRING(0 0, 951.0565 309.017)");
    bar("9 degrees", "B", kLinks, "LINESTRING(0 0, 987.6883 156.4345)");
    EXPECT_EQ(areaRows(), (QStringList{"level 0", "9 degrees 1", "9 degrees 0", "18 degrees 1"}));
}

TEST_F(HostBarRowsTest, directionIsThatOfTheFirstBarNotOfTheLastOne)
{
    bar("level", "A", kLinks, "LINESTRING(0 0, 1000 0)");
    bar("9 degrees", "B", kLinks, "LINESTRING(0 0, 987.6883 156.4345)");
    bar("18 degrees", "C", kLinks, "LINESTRING(0 0, 951.0565 309.017)");
    EXPECT_EQ(areaRows(), (QStringList{"level 0", "9 degrees 1", "18 degrees 0"}));
}

TEST_F(HostBarRowsTest, barsWithoutACurveAreAGroupOfTheirOwn)
{
    bar("drawn", "A");
    bar("one", "C")->properties()->setCurve(L"CurveData", nullptr, true);
    bar("other", "B")->properties()->setCurve(L"CurveData", nullptr, true);
    EXPECT_EQ(areaRows(), (QStringList{"drawn 0", "other 0", "one 1"}));
}

TEST_F(HostBarRowsTest, barsThatStraddleSlabsAreNumberedApart)
{
    bar("one", "B");
    setNumbers(bar("over two", "C"), {{L"Type", 1}});
    setNumbers(bar("over three", "A"), {{L"Type", 2}});
    bar("other", "A");
    EXPECT_EQ(areaRows(), (QStringList{"other 0", "one 1"}));
    EXPECT_EQ(told(areaBarRows(objects).straddling), (QStringList{"over three 0", "over two 1"}));
}

// ---- Line bars

TEST_F(HostBarRowsTest, barsOfALineAreNumberedByTextAndLabels)
{
    topBar("later text", "C", 100, 100);
    topBar("larger right", "B", 100, 300);
    topBar("smaller right", "B", 100, 200);
    topBar("smaller left", "B", 90, 900);
    topBar("earlier text", "A", 500, 500);
    EXPECT_EQ(lineRows(),
              (QStringList{"earlier text 0", "smaller left 1", "smaller right 2", "larger right 3", "later text 4"}));
}

TEST_F(HostBarRowsTest, labelsAreComparedAsNumbers)
{
    topBar("1000", "A", 1000, 1);
    topBar("900", "A", 900, 1);
    EXPECT_EQ(lineRows(), (QStringList{"900 0", "1000 1"}));
}

TEST_F(HostBarRowsTest, barsOfOppositeSidesAreApart)
{
    topBar("to the left", "A", 800, 0);
    topBar("to the right", "B", 0, 800);
    topBar("both ways", "C", 800, 800);
    EXPECT_EQ(lineRows(), (QStringList{"to the left 0", "to the right 0", "both ways 0"}));
}

TEST_F(HostBarRowsTest, sideOfALineThatRunsBackIsTurnedAround)
{
    topBar("to the east", "A", 800, 0, "LINESTRING(1000 0, 5000 0)");
    topBar("to the west, other label", "B", 0, 800, "LINESTRING(5000 0, 1000 0)");
    topBar("to the west, same label", "C", 800, 0, "LINESTRING(5000 0, 1000 0)");
    EXPECT_EQ(lineRows(), (QStringList{"to the east 0", "to the west, other label 1", "to the west, same label 0"}));
}

TEST_F(HostBarRowsTest, barWithNeitherLabelCountsAsOneWithoutALeftOne)
{
    topBar("neither", "A", 0, 0);
    topBar("right", "B", 0, 800);
    EXPECT_EQ(lineRows(), (QStringList{"neither 0", "right 1"}));
}

TEST_F(HostBarRowsTest, linesThatShareNoStretchAreApart)
{
    topBar("one", "A", 800, 800, "LINESTRING(5000 1000, 5000 4000)");
    topBar("further on", "B", 800, 800, "LINESTRING(5000 4100, 5000 7000)");
    topBar("beside", "C", 800, 800, "LINESTRING(5010 1000, 5010 4000)");
    topBar("overlapping", "D", 800, 800, "LINESTRING(5000 2000, 5000 3000)");
    EXPECT_EQ(lineRows(), (QStringList{"one 0", "overlapping 1", "further on 0", "beside 0"}));
}

TEST_F(HostBarRowsTest, lineWithinAMillimetreIsTheSameWhereTheBoxesTouch)
{
    topBar("one", "A", 800, 800, "LINESTRING(5000 1000, 5000 4000)");
    topBar("touching box", "B", 800, 800, "LINESTRING(5000 2000, 5000.5 3000)");
    topBar("beside the box", "C", 800, 800, "LINESTRING(5000.5 2000, 5000.5 3000)");
    EXPECT_EQ(lineRows(), (QStringList{"one 0", "touching box 1", "beside the box 0"}));
}

TEST_F(HostBarRowsTest, barJoinsTheFirstOfTwoLeaders)
{
    topBar("lower", "A", 800, 800, "LINESTRING(5000 1000, 5000 3000)");
    topBar("upper", "A", 800, 800, "LINESTRING(5000 4000, 5000 6000)");
    topBar("over both", "B", 800, 800, "LINESTRING(5000 1000, 5000 6000)");
    EXPECT_EQ(lineRows(), (QStringList{"lower 0", "over both 1", "upper 0"}));
}

TEST_F(HostBarRowsTest, barDoesNotJoinByWayOfAnother)
{
    topBar("lower", "A", 800, 800, "LINESTRING(5000 1000, 5000 3000)");
    topBar("middle", "B", 800, 800, "LINESTRING(5000 2000, 5000 5000)");
    topBar("upper", "C", 800, 800, "LINESTRING(5000 4000, 5000 6000)");
    EXPECT_EQ(lineRows(), (QStringList{"lower 0", "middle 1", "upper 0"}));
}

TEST_F(HostBarRowsTest, barWithoutAPlaceInThePlanIsLeftOut)
{
    topBar("upright", "A", 800, 800)->shape()->setCoordinates({{0, 0, 0}, {1, 0, 0}, {0, 0, 1}});
    as<IHBXLineShape2D>(topBar("no line", "B", 800, 800))->setLine(nullptr);
    topBar("plain", "C", 800, 800);
    EXPECT_EQ(lineRows(), QStringList{"plain 0"});
}

TEST_F(HostBarRowsTest, barWithoutAFrameStandsWhereItsCurveDoes)
{
    seathost::PlanLine shape;
    shape.frame = vks::CCoord3<double>::Absent();
    seathost::Element ofBar;
    ofBar.label = QStringLiteral("no frame");
    seathost::DrawObj object;
    object.of = &ofBar;
    object.placed = &shape;
    objects.append(&object);
    EXPECT_EQ(lineRows(), QStringList{"no frame 0"});
}

TEST_F(HostBarRowsTest, barOfAnotherShapeIsLeftOut)
{
    seathost::Element ofBar;
    seathost::DrawObj object;
    object.of = &ofBar;
    objects.append(&object);
    EXPECT_EQ(lineRows(), QStringList());
}

} // namespace

#include "cli/PlanSvg.h"

#include "HouseFixture.h"
#include "Picture.h"
#include "platform/host/IHBXDrawObjs.h"

#include <QMap>

using orvcad::PlanSvg;

namespace {

class PlanSvgTest : public HouseFixture
{
protected:
    Picture draw(const QString &floorName = QStringLiteral("F"), const QString &region = QString())
    {
        plan = orvcad::drawPlan(model(), floor(floorName, region), project->name());
        return Picture(plan.document);
    }
    Picture drawHouse(const QByteArray &elements)
    {
        openHouse(elements);
        return draw();
    }
    Picture drawSample(const char *building, const QString &floorName, const QString &region = QString())
    {
        openSample(building);
        return draw(floorName, region);
    }
    static QStringList names(const Picture &picture) { return Picture::texts(picture.group("names")); }
    /** A picture whose legend counts what its groups hold. */
    static void checkLegend(const Picture &picture, const QMap<int, QPair<int, QString>> &expected)
    {
        const QStringList entries = Picture::texts(picture.group("legend"));
        for (auto type = expected.cbegin(); type != expected.cend(); ++type) {
            const QString entry = QStringLiteral("%1 × %2").arg(type->first).arg(type->second);
            EXPECT_TRUE(entries.contains(entry)) << entry.toStdString() << " in " << entries.join("; ").toStdString();
            EXPECT_EQ(Picture::pathCount(picture.groupOfType(type.key())), type->first) << type.key();
        }
        EXPECT_EQ(entries.size(), expected.size());
    }

    PlanSvg plan;
};

const QByteArray kWall = "LINESTRING(0 0, 5000 0)";

TEST_F(PlanSvgTest, whatIsTooLargeForEveryRoundScaleIsDrawnWholeAllTheSame)
{
    const Picture picture = drawHouse(wall("Q1", "LINESTRING(0 0, 20000000 0)")); // 20 km
    const QString data = picture.groupOfType(1003).firstChildElement("path").attribute("d");
    auto points = QRegularExpression("[ML]([-\\d.]+) ([-\\d.]+)").globalMatch(data);
    ASSERT_TRUE(points.hasNext());
    double least = 1e9;
    double most = -1e9;
    while (points.hasNext()) {
        const double x = points.next().captured(1).toDouble();
        least = std::min(least, x);
        most = std::max(most, x);
    }
    EXPECT_GT(least, 0.0);
    EXPECT_GT(most - least, 100.0);
    EXPECT_LT(most, 420.0);
}

TEST_F(PlanSvgTest, pageIsA3AndTellsBuildingRegionFloorAndScale)
{
    const Picture picture = drawHouse(wall("Q1", kWall));
    EXPECT_EQ(picture.root().tagName(), "svg");
    EXPECT_EQ(picture.root().attribute("width"), "420mm");
    EXPECT_EQ(picture.root().attribute("height"), "297mm");
    EXPECT_EQ(picture.root().attribute("viewBox"), "0 0 420 297");
    EXPECT_EQ(picture.root().firstChildElement("title").text(), QStringLiteral("House & garden – House, F"));
    const QStringList all = Picture::texts(picture.root());
    for (const char *text :
         {"F", "House & garden", "House", "Floor code 1", "Bottom 0 m, height 3 m", "Scale 1:20 (A3)"})
        EXPECT_TRUE(all.contains(QLatin1String(text))) << text;
    EXPECT_EQ(plan.scale, 20);
    EXPECT_EQ(plan.drawn, 1);
    EXPECT_EQ(plan.withoutGeometry, 0);
}

TEST_F(PlanSvgTest, wallIsDrawnToScaleWithItsWidthInTheMiddleOfThePlan)
{
    // At 1:20 the wall of 5000 by 200 mm is 250 by 10 mm on paper. 1:10 would make it 500 mm, and the plan has room for 320.
    // Its middle comes to the plan's, which is 334 by 273 mm from (12, 12): 179 and 148.5.
    EXPECT_EQ(Picture::corners(drawHouse(wall("Q1", kWall)).groupOfType(1003)),
              "304 143.5, 304 153.5, 54 143.5, 54 153.5");
}

TEST_F(PlanSvgTest, wallOfASampleIsDrawnToScale)
{
    const Picture picture = drawSample("precast-hall", "Ground floor");
    EXPECT_TRUE(Picture::texts(picture.root()).contains(QStringLiteral("Scale 1:%1 (A3)").arg(plan.scale)));
    EXPECT_EQ(Picture::pathCount(picture.groupOfType(0)), 50);
}

TEST_F(PlanSvgTest, northIsUp)
{
    const Picture picture = drawHouse(column("K25", 0, 0, 25) + ',' + column("K26", 0, 4000, 26));
    // 200 by 4200 mm: 1:20 makes it 210 mm high. The plan's middle, at (179, 148.5), is world point (0, 2000).
    EXPECT_EQ(Picture::corners(picture.groupOfType(25)), "174 243.5, 174 253.5, 184 243.5, 184 253.5");
    EXPECT_EQ(Picture::corners(picture.groupOfType(26)), "174 43.5, 174 53.5, 184 43.5, 184 53.5");
}

TEST_F(PlanSvgTest, curvedWallIsDrawnWithArcs)
{
    const Picture picture = drawSample("made-building", "第1层", "主楼");
    const QDomElement walls = picture.groupOfType(1003);
    bool hasArc = false;
    for (QDomElement path = walls.firstChildElement("path"); !path.isNull(); path = path.nextSiblingElement("path"))
        hasArc = hasArc || path.attribute("d").contains(" A");
    EXPECT_TRUE(hasArc);
}

TEST_F(PlanSvgTest, everyTypeHasItsGroupItsCountAndItsLegendEntry)
{
    const Picture picture = drawSample("masonry-block", "Level 1");
    EXPECT_EQ(plan.drawn, 266);
    EXPECT_EQ(plan.withoutGeometry, 0);
    checkLegend(picture, {{4, {29, "door"}},
                          {5, {11, "window"}},
                          {15, {129, "beam"}},
                          {19, {21, "slab"}},
                          {25, {19, "column"}},
                          {1003, {57, "brick wall"}}});
}

TEST_F(PlanSvgTest, everyTypeHasAColourOfItsOwnInPlanAndLegend)
{
    const Picture picture = drawSample("masonry-block", "Level 1");
    QStringList colours;
    const QDomNodeList swatches = picture.group("legend").elementsByTagName("rect");
    for (int i = 0; i < swatches.size(); ++i)
        colours.append(swatches.at(i).toElement().attribute("stroke"));
    EXPECT_EQ(colours.removeDuplicates(), 0) << colours.join(' ').toStdString();
    for (const int type : {4, 5, 15, 19, 25, 1003})
        EXPECT_TRUE(colours.contains(picture.groupOfType(type).firstChildElement("path").attribute("stroke"))) << type;
}

TEST_F(PlanSvgTest, openingsLieOverTheirWallsAndColumnsOverBoth)
{
    const Picture picture = drawSample("masonry-block", "Level 1");
    QStringList order;
    for (QDomElement each = picture.root().firstChildElement("g"); !each.isNull(); each = each.nextSiblingElement("g"))
        order.append(each.attribute("class"));
    EXPECT_EQ(order.join(' ').toStdString(),
              "type-19 type-15 type-1003 type-25 type-5 type-4 names legend elevations scale-bar");
}

TEST_F(PlanSvgTest, foundationHasItsFootingsPilesAndBeams)
{
    checkLegend(drawSample("precast-hall", "Foundation"),
                {{15, {3, "beam"}}, {52, {24, "isolated footing"}}, {54, {48, "pile"}}});
}

TEST_F(PlanSvgTest, elementsWithRoomCarryTheirNames)
{
    EXPECT_EQ(names(drawHouse(wall("Q1", kWall))), QStringList{"Q1"});
}

TEST_F(PlanSvgTest, elementsWithoutRoomCarryNone)
{
    const Picture picture =
        drawHouse(wall("Q-200", "LINESTRING(0 0, 50000 0)") + ',' + wall("Q-201", "LINESTRING(0 3000, 900 3000)"));
    EXPECT_EQ(names(picture), QStringList{"Q-200"});
}

TEST_F(PlanSvgTest, axesCarryTheirLabels)
{
    const QStringList labels = Picture::texts(drawSample("made-building", "第1层", "主楼").groupOfType(74));
    for (const char *label : {"1", "2", "3", "A", "B"})
        EXPECT_TRUE(labels.contains(QLatin1String(label))) << label;
}

TEST_F(PlanSvgTest, slabsAreShadedByElevationTheLowerTheDarker)
{
    const Picture picture = drawHouse(slab("B0", "POLYGON((0 0, 900 0, 900 900, 0 900, 0 0))", "3") + ',' +
                                      slab("B1", "POLYGON((1000 0, 1900 0, 1900 900, 1000 900, 1000 0))", "2.95") +
                                      ',' + slab("B2", "POLYGON((2000 0, 2900 0, 2900 900, 2000 900, 2000 0))", "3"));
    EXPECT_EQ(Picture::texts(picture.group("elevations")),
              (QStringList{"Top of slabs", "2 at +3.000 m", "1 at +2.950 m"}));
    const QDomNodeList paths = picture.groupOfType(19).elementsByTagName("path");
    ASSERT_EQ(paths.size(), 3);
    const auto opacity = [&paths](int i) { return paths.at(i).toElement().attribute("fill-opacity").toDouble(); };
    EXPECT_DOUBLE_EQ(opacity(0), 0.15);
    EXPECT_DOUBLE_EQ(opacity(1), 0.35);
    EXPECT_DOUBLE_EQ(opacity(2), 0.15);
}

TEST_F(PlanSvgTest, holesHaveACrossAndBarsTheirTexts)
{
    const Picture picture = drawSample("made-building", "第1层", "主楼");
    EXPECT_EQ(Picture::pathCount(picture.groupOfType(24)), 5);
    EXPECT_GE(Picture::pathCount(picture.groupOfType(24), "void"), 6);
    EXPECT_EQ(Picture::pathCount(picture.groupOfType(22), "bar"), 2);
    EXPECT_EQ(Picture::pathCount(picture.groupOfType(23), "bar"), 2);
    EXPECT_TRUE(names(picture).contains("C10@200"));
}

TEST_F(PlanSvgTest, windowHasAPaneAndADoorNone)
{
    const Picture picture = drawHouse(column("C1", 0, 0, 5) + ',' + column("M1", 2000, 0, 4));
    EXPECT_EQ(Picture::pathCount(picture.groupOfType(5), "pane"), 1);
    EXPECT_EQ(Picture::pathCount(picture.groupOfType(4), "pane"), 0);
}

TEST_F(PlanSvgTest, scaleBarHasARoundLengthToScale)
{
    const Picture picture = drawHouse(wall("Q1", kWall));
    // At 1:20 two metres would take 100 mm, so the bar stands for two halves of a metre: 25 mm each.
    const QDomNodeList parts = picture.group("scale-bar").elementsByTagName("rect");
    ASSERT_EQ(parts.size(), 2);
    EXPECT_EQ(parts.at(0).toElement().attribute("width"), "25");
    EXPECT_EQ(parts.at(1).toElement().attribute("width"), "25");
    EXPECT_EQ(Picture::texts(picture.group("scale-bar")), (QStringList{"0", "0.5", "1 m"}));
}

TEST_F(PlanSvgTest, objectsWithoutGeometryAreCountedAndNotDrawn)
{
    drawSample("made-building", "第2层", "主楼");
    EXPECT_EQ(plan.drawn, 7);
    EXPECT_EQ(plan.withoutGeometry, 3); // a beam without axis, a slab and a column without outline
}

TEST_F(PlanSvgTest, emptyFloorIsAnEmptyPlan)
{
    const Picture picture = drawHouse("");
    EXPECT_EQ(plan.drawn, 0);
    EXPECT_EQ(Picture::texts(picture.root()).filter("Scale 1:").size(), 1);
}

TEST_F(PlanSvgTest, buildingFarFromTheOriginIsDrawnAsNearIt)
{
    const Picture picture = drawHouse(wall("Q1", "LINESTRING(10000000 10000000, 10005000 10000000)"));
    EXPECT_EQ(Picture::corners(picture.groupOfType(1003)), "304 143.5, 304 153.5, 54 143.5, 54 153.5");
}

TEST_F(PlanSvgTest, everyFloorOfEverySampleIsWellFormedAndLosesNothing)
{
    for (const char *building : {"duplex-apartment", "masonry-block", "precast-hall", "made-building"}) {
        openSample(building);
        IHBXRegions &regions = *model().regions();
        for (int region = 0; region < regions.count(); ++region)
            for (int i = 0; i < regions.at(region)->floors()->count(); ++i) {
                const IHBXFloor &each = *regions.at(region)->floors()->at(i);
                QList<IHBXElementDrawObj *> placed;
                model().drawObjects()->queryDrawObjsOfFloor(placed, each.id(), -1, -1, true);
                draw(each.name(), regions.at(region)->name());
                EXPECT_EQ(plan.drawn + plan.withoutGeometry, placed.size()) << each.name().toStdString();
            }
    }
}

TEST_F(PlanSvgTest, nameWithMarkupCharactersStaysText)
{
    const Picture picture = drawHouse(wall("<Q> & 1", kWall));
    EXPECT_EQ(names(picture), QStringList{"<Q> & 1"});
    EXPECT_TRUE(Picture::texts(picture.root()).contains("House & garden"));
}

} // namespace

#include "IdentifyInputModel/Wall/ORVCADWallInputModelConvertion.h"

#include "IdentifyInputModel/Wall/WallReadingFixture.h"
#include "platform/dwgx/DWGXBaseOptions.h"
#include "platform/host/IHBXCustomLineSolidShape.h"
#include "platform/services/HBXOptionNames.h"
#include "support/RecordingHost.h"

#include <type_traits>

namespace {

using Reading = ORVCADWallInputModelConvertion;
using Point = vks::CVec2<double>;

/** Answers 1, 2, 3, … and keeps the labels that it was asked for. */
class CountingOptions : public dwgx::DWGXBaseOptions
{
public:
    int intOption(const QString &label) const override
    {
        labels.append(label);
        return labels.size();
    }
    mutable QStringList labels;
};

class ORVCADWallInputModelConvertionTest : public WallReadingFixture
{
protected:
    Reading reading(dwgx::DWGXBaseOptions *options = nullptr) const
    {
        return {floor()->id(), options, &model(), EORVCADIdentifyType(3)};
    }
    std::list<ORVCADCloudEntBrickWallStruct> bricks() const
    {
        std::list<ORVCADCloudEntBrickWallStruct> walls;
        reading().getCadEntBrickWallDataInfo(walls);
        return walls;
    }
    std::list<ORVCADCloudEntForceWallStruct> forces() const
    {
        std::list<ORVCADCloudEntForceWallStruct> walls;
        reading().getCadEntForceWallDataInfo(walls);
        return walls;
    }
    Reading::ModelLines brickLines() const
    {
        Reading::ModelLines lines;
        reading().getCurFloorModelBrickLineEntDataInfo(lines);
        return lines;
    }
    Reading::ModelLines forceLines() const
    {
        Reading::ModelLines lines;
        reading().getCurFloorModelForceLineEntDataInfo(lines);
        return lines;
    }
    Reading::ModelLines axisLines() const
    {
        Reading::ModelLines lines;
        reading().getCurFloorModelAxisLineEntDataInfo(lines);
        return lines;
    }
    std::list<ORVCADCloudHBXModelPointEdoStruct> points() const
    {
        std::list<ORVCADCloudHBXModelPointEdoStruct> all;
        reading().getCurFloorModelPointEntDataInfo(all);
        return all;
    }
    std::wstring materialOf(const QByteArray &properties)
    {
        open(element("Q1", 1003, 316, properties));
        return bricks().front().material;
    }
};

TEST_F(ORVCADWallInputModelConvertionTest, isCopiedAndDestroyedThroughTheBase)
{
    EXPECT_TRUE(std::is_copy_constructible_v<Reading> && std::is_copy_assignable_v<Reading>);
    EXPECT_TRUE(std::has_virtual_destructor_v<Reading>);
    open({});
    EXPECT_EQ(Reading(reading()).identifyType(), 3);
}

TEST_F(ORVCADWallInputModelConvertionTest, brickWallsAreReadFromTheNamesUnderWhichTheyAreKept)
{
    open(element("Q1", 1003, 315,
                 R"("Type": 2, "Material": "2", "MasonryThroughBar": "2A6@600", "TransverseBar": "A6@250",
                    "Thickness": 200, "VertDistributionBar": "v", "HoriDistributionBar": "h")"));
    const auto walls = bricks();
    ASSERT_EQ(walls.size(), 1U);
    EXPECT_EQ(walls.front().edoId, find("Q1")->id());
    EXPECT_EQ(walls.front().entName, L"Q1");
    EXPECT_EQ(walls.front().elementType, 1003);
    EXPECT_EQ(walls.front().elementSubType, 315); // as it is, unlike in what is compared with replies
    EXPECT_EQ(walls.front().material, L"MU10");   // the name of the number
    EXPECT_EQ(walls.front().throughBar, L"2A6@600");
    EXPECT_EQ(walls.front().transverseBar, L"A6@250");
    EXPECT_EQ(walls.front().width, 200);
    EXPECT_EQ(walls.front().typePropertyValue, 2);
    EXPECT_EQ(walls.front().floorCode + walls.front().region, L"");
}

TEST_F(ORVCADWallInputModelConvertionTest, forceWallsHaveThreeBars)
{
    open(element("W1", 0, 8,
                 R"("Type": 2, "TieBar": "A6@600", "HoriDistributionBar": "C10@200", "VertDistributionBar": "C12@150",
                    "Thickness": 300)"));
    const auto walls = forces();
    ASSERT_EQ(walls.size(), 1U);
    EXPECT_EQ(walls.front().edoId, find("W1")->id());
    EXPECT_EQ(walls.front().entName, L"W1");
    EXPECT_EQ(walls.front().elementType, 0);
    EXPECT_EQ(walls.front().elementSubType, 8);
    EXPECT_EQ(walls.front().tieBar, L"A6@600");
    EXPECT_EQ(walls.front().hreBar, L"C10@200");
    EXPECT_EQ(walls.front().vreBar, L"C12@150");
    EXPECT_EQ(walls.front().width, 300);
    EXPECT_EQ(walls.front().floorCode + walls.front().region, L"");
}

TEST_F(ORVCADWallInputModelConvertionTest, wallsOfType255AreLeftOutAndTheirPiecesAreNot)
{
    open(element("Q1", 1003, 0, R"("Type": 255)", piece("0 0, 5000 0")) + "," +
         element("Q2", 1003, 0, "", piece("0 0, 0 5000")) + "," +
         element("W1", 0, 0, R"("Type": 255)", piece("0 100, 5000 100")) + "," +
         element("W2", 0, 0, R"("Type": 254)", piece("0 200, 5000 200")));
    ASSERT_EQ(bricks().size(), 1U);
    EXPECT_EQ(bricks().front().entName, L"Q2");
    EXPECT_EQ(bricks().front().typePropertyValue, 0);
    ASSERT_EQ(forces().size(), 1U);
    EXPECT_EQ(forces().front().entName, L"W2");
    EXPECT_EQ(brickLines().size(), 2U);
    EXPECT_EQ(forceLines().size(), 2U);
}

TEST_F(ORVCADWallInputModelConvertionTest, materialIsTheNameOfItsNumberAndEmptyWithoutARule)
{
    EXPECT_EQ(materialOf(R"("Material": "1")"), L"C30");
    EXPECT_EQ(materialOf(R"("Material": "")"), L"");
    EXPECT_EQ(materialOf(""), L"");
    EXPECT_EQ(materialOf(R"("Material": "3")"), L"");
    EXPECT_EQ(materialOf(R"("Material": "C30")"), L""); // reads as 0
}

TEST_F(ORVCADWallInputModelConvertionTest, linesHaveTheirAxisInTheWorldAndNoTypes)
{
    open(element("Q1", 1003, 316, R"("Thickness": 240)",
                 piece("0 0, 5000 0", R"(, "properties": {"Thickness": 200})") + "," +
                     R"~({"shape": {"kind": "line", "axis": "LINESTRING(0 0, 3000 0)", "width": 240,
                         "coordinates": {"origin": [1000, 2000, 0], "u": [0, 1, 0], "v": [-1, 0, 0]}}})~"));
    const Reading::ModelLines lines = brickLines();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines.front().entName, L"Q1");
    EXPECT_EQ(lines.front().width, 200);
    EXPECT_EQ(lines.front().edoId, placed(1003).first()->id());
    EXPECT_EQ(lines.front().worldLine->EndPoint(), Point(5000, 0));
    EXPECT_EQ(lines.back().worldLine->StartPoint(), Point(1000, 2000));
    EXPECT_EQ(lines.back().worldLine->EndPoint(), Point(1000, 5000));
    EXPECT_EQ(lines.back().width, 240);
    for (const auto &line : lines)
        EXPECT_EQ(line.elementType + line.elementSubType, 0);
    EXPECT_TRUE(forceLines().empty());
}

TEST_F(ORVCADWallInputModelConvertionTest, linesAreCopies)
{
    open(element("W1", 0, 7, "", piece("0 0, 5000 0")));
    vks::CRefPtr<vks::CCurve2d> own;
    dynamic_cast<IHBXCustomLineSolidShape *>(onlyPlaced(0)->shape())->worldLine(own, true);
    EXPECT_NE(forceLines().front().worldLine.get(), own.get());
}

TEST_F(ORVCADWallInputModelConvertionTest, pieceWithoutAnAxisHasANullLine)
{
    open(element("Q1", 1003, 0, "", R"({"shape": {"kind": "line", "axis": null, "width": 100}})"));
    ASSERT_EQ(brickLines().size(), 1U);
    EXPECT_FALSE(brickLines().front().worldLine);
    EXPECT_EQ(brickLines().front().width, 100);
}

TEST_F(ORVCADWallInputModelConvertionTest, pieceOfAnotherShapeIsPassedOver)
{
    open(element("Q1", 1003, 0, "",
                 R"~({"shape": {"kind": "line2d", "curve": "LINESTRING(0 0, 1 0)"}})~" + QByteArray(",") +
                     piece("0 0, 5000 0")));
    EXPECT_EQ(brickLines().size(), 1U);
}

TEST_F(ORVCADWallInputModelConvertionTest, gridGivesTheAxesOfAllFourGroupsBeforeTheSingleOnes)
{
    open(element("A", 75, 0, "", R"~({"shape": {"kind": "line2d", "curve": "LINESTRING(50 0, 50 90)"}})~") + "," +
         element("ZW", 74, 0, "",
                 R"({"shape": {"kind": "grid", "axes": [[)" + axis("1", "0 0, 0 90") + "], [" +
                     axis("2", "10 0, 10 90") + "], [" + axis("A", "0 20, 90 20") + "], [" + axis("B", "0 30, 90 30") +
                     "," + axis("C", "0 40, 90 40") + "]]}}"));
    const Reading::ModelLines lines = axisLines();
    ASSERT_EQ(lines.size(), 6U);
    std::vector<Point> starts;
    for (const auto &line : lines) {
        starts.push_back(line.worldLine->StartPoint());
        EXPECT_EQ(line.width, 1.0);
        EXPECT_EQ(line.edoId, -1);
        EXPECT_EQ(line.elementType + line.elementSubType, 0);
    }
    EXPECT_EQ(starts, (std::vector<Point>{{0, 0}, {10, 0}, {0, 20}, {0, 30}, {0, 40}, {50, 0}}));
    EXPECT_EQ(lines.front().entName, L"ZW");
    EXPECT_EQ(lines.back().entName, L"A");
}

TEST_F(ORVCADWallInputModelConvertionTest, axisLineWithoutAPlanCurveIsPassedOver)
{
    open(element("A", 75, 0, "", piece("0 0, 5000 0")) + "," + element("ZW", 74, 0, "", piece("0 0, 5000 0")));
    EXPECT_TRUE(axisLines().empty());
}

TEST_F(ORVCADWallInputModelConvertionTest, columnsTellOfThemselvesAndOfTheirElementsName)
{
    open(element("KZ1", 25, 3, R"("SectionTypeID": 12)", column(R"(, "properties": {"Type": 2})")));
    const auto all = points();
    ASSERT_EQ(all.size(), 1U);
    EXPECT_EQ(all.front().entName, L"KZ1");
    EXPECT_EQ(all.front().edoId, onlyPlaced(25)->id());
    EXPECT_EQ(all.front().modelEdoType, 2);
    EXPECT_EQ(all.front().elementType, 25);
    EXPECT_EQ(all.front().elementSubType, 3);
    EXPECT_EQ(all.front().SectionTypeID, L"12");
    ASSERT_TRUE(all.front().worldPoly);
    const vks::CBox2<double> box = all.front().worldPoly->Box();
    EXPECT_EQ(box.minPt, Point(800, 1800));
    EXPECT_EQ(box.maxPt, Point(1200, 2200));
}

TEST_F(ORVCADWallInputModelConvertionTest, sectionTypeIsToldForTheSubType3Alone)
{
    open(element("KZ1", 25, 2, R"("SectionTypeID": 12)", column()) + "," +
         element("KZ2", 25, 2, R"("SectionTypeID": 13)", column(R"(, "subType": 3)")) + "," +
         element("KZ3", 25, 3, R"("SectionTypeID": null)", column()));
    std::list<std::wstring> sections;
    for (const auto &point : points())
        sections.push_back(point.SectionTypeID);
    EXPECT_EQ(sections, (std::list<std::wstring>{L"", L"13", L""})); // the draw object's sub-type counts
}

TEST_F(ORVCADWallInputModelConvertionTest, columnOfAnotherShapeIsPassedOver)
{
    open(element("KZ1", 25, 3, "", piece("0 0, 5000 0")));
    EXPECT_TRUE(points().empty());
}

TEST_F(ORVCADWallInputModelConvertionTest, listsAreAppendedTo)
{
    open(element("Q1", 1003, 0, "", piece("0 0, 5000 0")));
    std::list<ORVCADCloudEntBrickWallStruct> walls(2);
    Reading::ModelLines lines(1);
    reading().getCadEntBrickWallDataInfo(walls);
    reading().getCurFloorModelBrickLineEntDataInfo(lines);
    reading().getCurFloorModelBrickLineEntDataInfo(lines);
    EXPECT_EQ(walls.size(), 3U);
    EXPECT_EQ(lines.size(), 3U);
}

TEST_F(ORVCADWallInputModelConvertionTest, layersAreNamedAsTheBuildingKeepsThem)
{
    open({}, R"([{"group": "CADLayerNames", "name": "砌体墙线", "value": "A-WALL-BRICK"}])");
    std::map<int, std::wstring> layers{{3, L"old"}, {9, L"kept"}};
    reading().getCadLayerInfo(layers);
    EXPECT_EQ(layers, (std::map<int, std::wstring>{{2, L"混凝土墙线"},
                                                   {3, L"A-WALL-BRICK"},
                                                   {4, L"墙标注"},
                                                   {5, L"墙标注"},
                                                   {7, L"柱边线"},
                                                   {9, L"kept"},
                                                   {10, L"门窗洞标注"},
                                                   {11, L"门窗线"}}));
}

TEST_F(ORVCADWallInputModelConvertionTest, optionsAreAskedForByTheirLabels)
{
    open({});
    CountingOptions store;
    ORVCADCloudWalloptionDataStruct options;
    reading(&store).getDWGXBaseOptions(options);
    EXPECT_EQ(store.labels, (QStringList{"最大洞口宽度(mm)", "平行墙线宽度范围(mm)", "平行墙线宽度误差范围(mm)",
                                         "墙端头相交延伸误差范围(mm)", "墙端头与门窗相交延伸误差范围(水平)(mm)",
                                         "墙端头与门窗相交延伸误差范围(垂直)(mm)"}));
    EXPECT_EQ(options.maxOpeningWidth, 1);
    EXPECT_EQ(options.maxWallLineWidth, 2);
    EXPECT_EQ(options.wallLineWidthDeviationRange, 3);
    EXPECT_EQ(options.wallEndExtensionRange, 4);
    EXPECT_EQ(options.wallAndWindowExtenHRange, 5);
    EXPECT_EQ(options.wallAndWindowExtenVRange, 6);
}

TEST_F(ORVCADWallInputModelConvertionTest, withoutAnOptionStoreTheOptionsStay)
{
    open({});
    ORVCADCloudWalloptionDataStruct options;
    options.maxOpeningWidth = 9;
    options.wallAndWindowExtenVRange = 8;
    reading().getDWGXBaseOptions(options);
    EXPECT_EQ(options.maxOpeningWidth, 9);
    EXPECT_EQ(options.maxWallLineWidth, 0);
    EXPECT_EQ(options.wallAndWindowExtenVRange, 8);
}

TEST_F(ORVCADWallInputModelConvertionTest, hostIsAskedOncePerTypeAndFloor)
{
    open(element("Q1", 1003, 0, R"("Type": 255)") + "," + element("Q2", 1003, 0, "") + "," +
         element("KZ1", 25, 3, R"("SectionTypeID": 12)", column()));
    const RecordingHost host(*service());
    const int id = floor()->id();
    const Reading of(id, nullptr, host.service()->model(), EORVCADIdentifyType(0));
    std::list<ORVCADCloudEntBrickWallStruct> walls;
    std::list<ORVCADCloudEntForceWallStruct> forceWalls;
    Reading::ModelLines lines;
    std::list<ORVCADCloudHBXModelPointEdoStruct> columns;
    of.getCadEntBrickWallDataInfo(walls);
    of.getCadEntForceWallDataInfo(forceWalls);
    of.getCurFloorModelBrickLineEntDataInfo(lines);
    of.getCurFloorModelForceLineEntDataInfo(lines);
    of.getCurFloorModelAxisLineEntDataInfo(lines);
    of.getCurFloorModelPointEntDataInfo(columns);
    const auto elements = [id](int type) {
        return QStringLiteral("queryElementsOnFloor(%1, %2, true)").arg(id).arg(type);
    };
    const auto objects = [id](int type) {
        return QStringLiteral("queryDrawObjsOfFloor(%1, %2, 65535, true)").arg(id).arg(type);
    };
    EXPECT_EQ(host.calls(),
              (QStringList{elements(1003), "property(\"Type\")", "property(\"Type\")", elements(0), objects(1003),
                           objects(0), objects(74), objects(75), objects(25), "property(\"SectionTypeID\")"}));
    EXPECT_EQ(walls.size(), 1U);
    ASSERT_EQ(columns.size(), 1U);
    EXPECT_EQ(columns.front().SectionTypeID, L"12");
}

TEST_F(ORVCADWallInputModelConvertionTest, unknownFloorAndMissingModelHaveNothing)
{
    open(element("Q1", 1003, 0, "", piece("0 0, 5000 0")) + "," + element("KZ1", 25, 3, "", column()));
    for (IHBXModel *host : {&model(), static_cast<IHBXModel *>(nullptr)}) {
        const Reading of(4711, nullptr, host, EORVCADIdentifyType(0));
        std::list<ORVCADCloudEntBrickWallStruct> walls;
        Reading::ModelLines lines;
        std::list<ORVCADCloudHBXModelPointEdoStruct> columns;
        of.getCadEntBrickWallDataInfo(walls);
        of.getCurFloorModelBrickLineEntDataInfo(lines);
        of.getCurFloorModelAxisLineEntDataInfo(lines);
        of.getCurFloorModelPointEntDataInfo(columns);
        EXPECT_TRUE(walls.empty() && lines.empty() && columns.empty());
    }
}

} // namespace

#include "IdentifyInputModel/Wall/WallStructsFromHbx.h"

#include "IdentifyInputModel/Wall/WallReadingFixture.h"

namespace {

using Brick = ORVCADCloudEntBrickWallStruct;
using Force = ORVCADCloudEntForceWallStruct;
using Point = vks::CVec2<double>;

class WallStructsFromHbxTest : public WallReadingFixture
{
protected:
    /** The record of one element, read into one that has been filled before. */
    Brick brick(int subType, const QByteArray &properties = QByteArray(), int type = 1003)
    {
        open(element("Q1", type, subType, properties));
        Brick record;
        record.throughBar = L"old";
        record.transverseBar = L"old";
        loadORVCADCloudEntBrickWallStructFromHbx(find("Q1"), &record);
        return record;
    }
    Force force(int subType, const QByteArray &properties = QByteArray(), int type = 0)
    {
        open(element("W1", type, subType, properties));
        Force record;
        record.tieBar = L"old";
        record.hreBar = L"old";
        record.vreBar = L"old";
        loadORVCADCloudEntForceWallStructFromHbx(find("W1"), &record);
        return record;
    }
    bool load(IHBXElementDrawObj *object, IdentifyResultData &result)
    {
        return loadORVCADWallEdoIdentifyResStructFromHbx(240, L"Q7", object, &result);
    }
    using HouseFixture::load;
};

TEST_F(WallStructsFromHbxTest, brickWallIsReadFromTheNamesThatRepliesAreWrittenTo)
{
    const Brick record = brick(316, R"("Type": 2, "Material": "2", "MasonryThroughBar": "m", "TransverseBar": "t",
        "Thickness": 200, "VertDistributionBar": "2A6@600", "HoriDistributionBar": "A6@250")");
    EXPECT_EQ(record.edoId, find("Q1")->id());
    EXPECT_EQ(record.entName, L"Q1");
    EXPECT_EQ(record.elementType, 1003);
    EXPECT_EQ(record.elementSubType, 316);
    EXPECT_EQ(record.floorCode, L"1");
    EXPECT_EQ(record.region, L"House");
    EXPECT_EQ(record.material, L"2"); // a number
    EXPECT_EQ(record.throughBar, L"2A6@600");
    EXPECT_EQ(record.transverseBar, L"A6@250");
    EXPECT_EQ(record.width, 200);
    EXPECT_EQ(record.typePropertyValue, 2);
}

TEST_F(WallStructsFromHbxTest, forceWallIsReadWithThreeBars)
{
    const Force record = force(7, R"("TieBar": "A6@600", "Thickness": 300, "VertDistributionBar": "C12@150",
        "HoriDistributionBar": "C10@200")");
    EXPECT_EQ(record.edoId, find("W1")->id());
    EXPECT_EQ(record.entName, L"W1");
    EXPECT_EQ(record.elementType, 0);
    EXPECT_EQ(record.elementSubType, 7);
    EXPECT_EQ(record.floorCode, L"1");
    EXPECT_EQ(record.region, L"House");
    EXPECT_EQ(record.tieBar, L"A6@600");
    EXPECT_EQ(record.vreBar, L"C12@150");
    EXPECT_EQ(record.hreBar, L"C10@200");
    EXPECT_EQ(record.width, 300);
}

TEST_F(WallStructsFromHbxTest, twoSubTypesOfEachKindAreToldAsAThird)
{
    EXPECT_EQ(brick(314).elementSubType, 316);
    EXPECT_EQ(brick(315).elementSubType, 316);
    EXPECT_EQ(brick(313).elementSubType, 313);
    EXPECT_EQ(brick(8).elementSubType, 8);
    EXPECT_EQ(force(8).elementSubType, 7);
    EXPECT_EQ(force(9).elementSubType, 7);
    EXPECT_EQ(force(10).elementSubType, 10);
    EXPECT_EQ(force(315).elementSubType, 315);
}

TEST_F(WallStructsFromHbxTest, barWithoutItsPropertyStaysAsItWas)
{
    const Brick beam = brick(0, "", 75); // an axis line has none of them
    EXPECT_EQ(beam.throughBar, L"old");
    EXPECT_EQ(beam.transverseBar, L"old");
    const Force axis = force(0, "", 75);
    EXPECT_EQ(axis.tieBar, L"old");
    EXPECT_EQ(axis.hreBar, L"old");
    EXPECT_EQ(axis.vreBar, L"old");
    EXPECT_EQ(axis.width, 0);
}

TEST_F(WallStructsFromHbxTest, barWithoutAValueIsEmpty)
{
    EXPECT_EQ(brick(316).throughBar, L"");
    EXPECT_EQ(brick(316).material, L"");
    EXPECT_EQ(force(7).tieBar, L"");
}

TEST_F(WallStructsFromHbxTest, nullChangesNothing)
{
    Brick brickRecord;
    brickRecord.width = 9;
    Force forceRecord;
    forceRecord.width = 9;
    loadORVCADCloudEntBrickWallStructFromHbx(nullptr, &brickRecord);
    loadORVCADCloudEntForceWallStructFromHbx(nullptr, &forceRecord);
    EXPECT_EQ(brickRecord.width + forceRecord.width, 18);
    open(element("Q1", 1003, 0, ""));
    loadORVCADCloudEntBrickWallStructFromHbx(find("Q1"), nullptr);
    loadORVCADCloudEntForceWallStructFromHbx(find("Q1"), nullptr);
    EXPECT_FALSE(loadORVCADWallEdoIdentifyResStructFromHbx(1, L"", nullptr, nullptr));
}

TEST_F(WallStructsFromHbxTest, placedWallHasItsLineInTheWorldAndItsElevationsAsTheHostHasThem)
{
    open(element("Q1", 1003, 316, "",
                 R"~({"shape": {"kind": "line", "axis": "LINESTRING(0 0, 3000 0)", "width": 200,
                     "coordinates": {"origin": [1000, 2000, 50], "u": [0, 1, 0], "v": [-1, 0, 0]}},
                     "properties": {"StartPtTopElev": "2.8", "EndPtTopElev": "2.9", "StartPtBottomElev": "0.1",
                     "EndPtBottomElev": "0.2"}})~"));
    IdentifyResultData result;
    result.sStrTextInfo = "kept";
    ASSERT_TRUE(load(onlyPlaced(1003), result));
    EXPECT_EQ(result.sStrEntName, L"Q7"); // of the argument, not of the element
    EXPECT_EQ(result.sWidth, 240);        // likewise
    ASSERT_TRUE(result.sWorldLine);
    EXPECT_EQ(result.sWorldLine->StartPoint(), Point(1000, 2000));
    EXPECT_EQ(result.sWorldLine->EndPoint(), Point(1000, 5000));
    EXPECT_EQ(result.sPfnStartPtTopElev, L"2.8");
    EXPECT_EQ(result.sPfnEndPtTopElev, L"2.9");
    EXPECT_EQ(result.sPfnStartPtBottomElev, L"0.1");
    EXPECT_EQ(result.sPfnEndPtBottomElev, L"0.2");
    EXPECT_EQ(result.floorCode, L"1");
    EXPECT_EQ(result.region, L"House");
    EXPECT_FALSE(result.sPolys);
    EXPECT_EQ(result.sStrTextInfo, "kept");
}

TEST_F(WallStructsFromHbxTest, otherShapeGivesFalseWithNameAndWidthSet)
{
    open(element("KZ1", 25, 3, "", column()));
    for (IHBXElementDrawObj *object : {onlyPlaced(25), static_cast<IHBXElementDrawObj *>(nullptr)}) {
        IdentifyResultData result;
        EXPECT_FALSE(load(object, result));
        EXPECT_EQ(result.sStrEntName, L"Q7");
        EXPECT_EQ(result.sWidth, 240);
        EXPECT_EQ(result.floorCode + result.region, L"");
        EXPECT_FALSE(result.sWorldLine);
    }
}

TEST_F(WallStructsFromHbxTest, placedWallWithoutAnAxisHasANullLine)
{
    open(element("Q1", 1003, 316, "", R"({"shape": {"kind": "line", "axis": null, "width": 200}})"));
    IdentifyResultData result;
    EXPECT_TRUE(load(onlyPlaced(1003), result));
    EXPECT_FALSE(result.sWorldLine);
    EXPECT_EQ(result.floorCode, L"1");
}

} // namespace

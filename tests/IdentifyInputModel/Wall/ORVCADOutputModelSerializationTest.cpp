#include "IdentifyInputModel/Wall/ORVCADOutputModelSerialization.h"

#include "IdentifyInputModel/Wall/WallFixture.h"

#include <memory>

namespace {

using Translator = ORVCADOutputModelSerialization;

class ORVCADOutputModelSerializationTest : public ArchiveTest<Translator>
{
protected:
    ORVCADOutputModelSerializationTest()
    {
        brick.edoId = 12;
        brick.entName = L"Q1";
        brick.elementType = 1003;
        brick.elementSubType = 316;
        brick.material = L"3";
        brick.width = 200;
        brick.typePropertyValue = 1;
        brick.floorCode = L"2";
        brick.region = L"House";
        force.edoId = 13;
        force.hreBar = L"B12@200";
        force.width = 300;
        force.floorCode = L"3";
        force.region = L"House";
        piece.sWorldLine = line(0, 0, 5000, 0);
        piece.sPolys = square();
        piece.sStrTextInfo = "Q1";
        piece.sWidth = 200;
        piece.sPfnStartPtTopElev = L"3.3";
        piece.sPfnStartPtBottomElev = L"0";
        piece.sPfnEndPtTopElev = L"3.2";
        piece.sPfnEndPtBottomElev = L"0.1";
        piece.sStrEntName = L"Q1";
        piece.sSegmentEntityDataList = {{1, 2}};
        piece.floorCode = L"2";
        piece.region = L"House";
    }
    Translator::BrickWalls loadedBrick(const QByteArray &text)
    {
        Translator::BrickWalls walls;
        load(text, [&](Translator &t) { t.loadBrickWallIdentifyData(walls); });
        for (const auto &[element, pieces] : walls)
            m_owned.emplace_back(element);
        return walls;
    }

    ORVCADCloudEntBrickWallStruct brick;
    ORVCADCloudEntForceWallStruct force;
    IdentifyResultData piece;

private:
    std::list<std::unique_ptr<ORVCADCloudEntBrickWallStruct>> m_owned;
};

TEST_F(ORVCADOutputModelSerializationTest, brickElementsAreMapKeysWithElevenItems)
{
    EXPECT_EQ(xml([this](Translator &t) {
                  t.saveBrickWallIdentifyData({{&brick, {}}});
              }),
              " <BrickWallIdentifyData>\n"
              "  <key_0 edoId=\"12\" entName=\"Q1\" elementType=\"1003\" elementSubType=\"316\" material=\"3\" "
              "throughBar=\"\" transverseBar=\"\" width=\"200\" typePropertyValue=\"1\" floorCode=\"2\" "
              "region=\"House\"/>\n"
              " </BrickWallIdentifyData>\n");
}

TEST_F(ORVCADOutputModelSerializationTest, forceElementsAreMapKeysWithTenItems)
{
    EXPECT_EQ(
        xml([this](Translator &t) {
            t.saveForceWallIdentifyData({{&force, {}}});
        }),
        " <ForceWallIdentifyData>\n"
        "  <key_0 edoId=\"13\" entName=\"\" elementType=\"0\" elementSubType=\"0\" hreBar=\"B12@200\" vreBar=\"\" "
        "tieBar=\"\" width=\"300\" floorCode=\"3\" region=\"House\"/>\n"
        " </ForceWallIdentifyData>\n");
}

TEST_F(ORVCADOutputModelSerializationTest, piecesAreRecordsWithTwelveItems)
{
    piece.sSegmentEntityDataList.clear();
    EXPECT_EQ(xml([this](Translator &t) {
                  t.saveBrickWallIdentifyData({{&brick, {piece}}});
              }).section('\n', 2, 2),
              "   <value_0 sWidth=\"200\" sStrTextInfo=\"Q1\" sPfnStartPtTopElev=\"3.3\" sPfnStartPtBottomElev=\"0\" "
              "sPfnEndPtTopElev=\"3.2\" sPfnEndPtBottomElev=\"0.1\" sStrEntName=\"Q1\" sWorldLine=\"0,0,5000,0\" "
              "sPolys=\"0,0;400,0;400,400;0,400;\" floorCode=\"2\" region=\"House\" sSegmentEntityDataList=\"\"/>");
}

TEST_F(ORVCADOutputModelSerializationTest, segmentsBehindTheFirstAreSplitOffIntoKeys)
{
    piece.sSegmentEntityDataList = {{1, 2}, {3}};
    translator.saveBrickWallIdentifyData({{&brick, {piece}}});
    const QByteArray text = member("BrickWallIdentifyData");
    EXPECT_TRUE(text.contains(R"("value_0":[{"":"","3,":"",)")) << text.constData();
    EXPECT_TRUE(text.contains(R"("sSegmentEntityDataList":"1,2,")")) << text.constData();
}

TEST_F(ORVCADOutputModelSerializationTest, secondSegmentIsLostOnReadingAndTheFirstGetsAZero)
{
    piece.sSegmentEntityDataList = {{1, 2}, {3}};
    translator.saveBrickWallIdentifyData({{&brick, {piece}}});
    const auto walls = loadedBrick(compact(json.rootObject()));
    ASSERT_EQ(walls.size(), 1U);
    EXPECT_EQ(walls.begin()->second.front().sSegmentEntityDataList, (std::list<std::vector<int>>{{1, 2, 0}}));
}

TEST_F(ORVCADOutputModelSerializationTest, brickWallsReadBackFromJsonWhole)
{
    translator.saveBrickWallIdentifyData({{&brick, {piece, IdentifyResultData()}}});
    const auto walls = loadedBrick(compact(json.rootObject()));
    ASSERT_EQ(walls.size(), 1U);
    const auto &[element, pieces] = *walls.begin();
    EXPECT_NE(element, &brick);
    EXPECT_EQ(element->edoId, 12);
    EXPECT_EQ(element->entName, L"Q1");
    EXPECT_EQ(element->elementType, 1003);
    EXPECT_EQ(element->elementSubType, 316);
    EXPECT_EQ(element->material, L"3");
    EXPECT_EQ(element->width, 200);
    EXPECT_EQ(element->typePropertyValue, 1);
    EXPECT_EQ(element->floorCode, L"2");
    EXPECT_EQ(element->region, L"House");
    ASSERT_EQ(pieces.size(), 2U);
    const IdentifyResultData &first = pieces.front();
    EXPECT_EQ(first.sWidth, 200);
    EXPECT_EQ(first.sStrTextInfo, "Q1");
    EXPECT_EQ(first.sPfnStartPtTopElev, L"3.3");
    EXPECT_EQ(first.sPfnStartPtBottomElev, L"0");
    EXPECT_EQ(first.sPfnEndPtTopElev, L"3.2");
    EXPECT_EQ(first.sPfnEndPtBottomElev, L"0.1");
    EXPECT_EQ(first.sStrEntName, L"Q1");
    EXPECT_EQ(first.floorCode, L"2");
    EXPECT_EQ(first.region, L"House");
    ASSERT_TRUE(first.sWorldLine);
    EXPECT_EQ(first.sWorldLine->EndPoint(), vks::CVec2<double>(5000, 0));
    EXPECT_TRUE(first.sPolys);
    EXPECT_FALSE(pieces.back().sWorldLine);
}

TEST_F(ORVCADOutputModelSerializationTest, forceWallsReadBackFromXmlWhenSegmentsAreEmpty)
{
    piece.sSegmentEntityDataList.clear();
    ORVCADXmlFileSerialization out{QString()};
    Translator(&out).saveForceWallIdentifyData({{&force, {piece}}});
    out.save({});
    ORVCADXmlFileSerialization in(out.content());
    ASSERT_TRUE(in.parse());
    Translator::ForceWalls walls;
    Translator(&in).loadForceWallIdentifyData(walls);
    ASSERT_EQ(walls.size(), 1U);
    const std::unique_ptr<ORVCADCloudEntForceWallStruct> element(walls.begin()->first);
    EXPECT_EQ(element->hreBar, L"B12@200");
    EXPECT_EQ(element->width, 300);
    EXPECT_EQ(element->floorCode, L"3");
    ASSERT_EQ(walls.begin()->second.size(), 1U);
    EXPECT_EQ(walls.begin()->second.front().sPfnEndPtTopElev, L"3.2");
}

TEST_F(ORVCADOutputModelSerializationTest, twoSegmentsMakeAnXmlDocumentThatDoesNotParse)
{
    piece.sSegmentEntityDataList = {{1, 2}, {3}}; // the key "3," is no attribute's name
    ORVCADXmlFileSerialization out{QString()};
    Translator(&out).saveBrickWallIdentifyData({{&brick, {piece}}});
    out.save({});
    EXPECT_TRUE(out.content().contains(" 3,=\"\""));
    EXPECT_FALSE(ORVCADXmlFileSerialization(out.content()).parse());
}

TEST_F(ORVCADOutputModelSerializationTest, equalElementsBecomeOneWithThePiecesOfBoth)
{
    ORVCADCloudEntBrickWallStruct twin = brick;
    translator.saveBrickWallIdentifyData({{&brick, {piece}}, {&twin, {piece, piece}}});
    const auto walls = loadedBrick(compact(json.rootObject()));
    ASSERT_EQ(walls.size(), 1U);
    EXPECT_EQ(walls.begin()->second.size(), 3U);
}

TEST_F(ORVCADOutputModelSerializationTest, nullElementIsLeftOut)
{
    translator.saveBrickWallIdentifyData({{nullptr, {piece}}});
    EXPECT_EQ(member("BrickWallIdentifyData"), "{}");
}

TEST_F(ORVCADOutputModelSerializationTest, missingKeyAndEmptyMapGiveNoWalls)
{
    EXPECT_TRUE(loadedBrick("{}").empty());
    EXPECT_TRUE(loadedBrick(R"({"BrickWallIdentifyData": {}})").empty());
    EXPECT_TRUE(loadedBrick(R"({"ForceWallIdentifyData": {"key_0": {}, "value_0": []}})").empty());
}

} // namespace

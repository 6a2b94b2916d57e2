#include "IdentifyInputModel/Wall/ORVCADWallForceDataOutputModel.h"

#include "IdentifyInputModel/Wall/WallFixture.h"

namespace {

TEST(ORVCADWallForceDataOutputModelTest, documentHasTheFieldsOfAForceWallAndNoMaterial)
{
    ORVCADWallForceDataOutputModel model;
    auto *element = new ORVCADCloudEntForceWallStruct;
    element->tieBar = L"A6@600";
    element->hreBar = L"B12@200";
    element->vreBar = L"B14@150";
    model.setForceWallIdentifyData(element, {});
    std::wstring text;
    model.saveToJson(text);
    const QJsonObject written = objectOf(text)["ForceWallIdentifyData"].toObject()["key_0"].toObject();
    EXPECT_EQ(written["tieBar"], "A6@600");
    EXPECT_EQ(written["hreBar"], "B12@200");
    EXPECT_EQ(written["vreBar"], "B14@150");
    EXPECT_FALSE(written.contains("material"));
    EXPECT_FALSE(written.contains("typePropertyValue"));
}

TEST(ORVCADWallForceDataOutputModelTest, fieldsComeBackFromADocument)
{
    ORVCADWallForceDataOutputModel model;
    model.loadFromJson(LR"({"ForceWallIdentifyData": {"value_0": [], "key_0": {"entName": "W1", "tieBar": "A6@600",
        "hreBar": "B12@200", "vreBar": "B14@150"}}})");
    ORVCADWallForceDataOutputModel::Walls walls;
    model.getForceWallIdentifyData(walls);
    ASSERT_EQ(walls.size(), 1U);
    const ORVCADCloudEntForceWallStruct &element = *walls.begin()->first;
    EXPECT_EQ(element.entName, L"W1");
    EXPECT_EQ(element.tieBar, L"A6@600");
    EXPECT_EQ(element.hreBar, L"B12@200");
    EXPECT_EQ(element.vreBar, L"B14@150");
}

TEST(ORVCADWallForceDataOutputModelTest, documentOfBrickWallsHoldsNoForceWalls)
{
    ORVCADWallForceDataOutputModel model;
    model.loadFromJson(LR"({"BrickWallIdentifyData": {"value_0": [], "key_0": {"entName": "Q1"}}})");
    ORVCADWallForceDataOutputModel::Walls walls;
    model.getForceWallIdentifyData(walls);
    EXPECT_TRUE(walls.empty());
}

} // namespace

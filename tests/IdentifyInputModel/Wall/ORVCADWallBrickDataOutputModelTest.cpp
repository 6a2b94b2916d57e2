#include "IdentifyInputModel/Wall/ORVCADWallBrickDataOutputModel.h"

#include "IdentifyInputModel/Wall/ORVCADWallForceDataOutputModel.h"
#include "IdentifyInputModel/Wall/WallFixture.h"

namespace {

/** The only element of a model; fails, and an empty one, when there is another number of them. */
ORVCADCloudEntBrickWallStruct onlyElement(const ORVCADWallBrickDataOutputModel &model)
{
    ORVCADWallBrickDataOutputModel::Walls walls;
    model.getBrickWallIdentifyData(walls);
    EXPECT_EQ(walls.size(), 1U);
    return walls.size() == 1 ? *walls.begin()->first : ORVCADCloudEntBrickWallStruct();
}

TEST(ORVCADWallBrickDataOutputModelTest, documentHasTheFieldsOfABrickWall)
{
    ORVCADWallBrickDataOutputModel model;
    auto *element = new ORVCADCloudEntBrickWallStruct;
    element->material = L"MU10";
    element->throughBar = L"2B12";
    element->transverseBar = L"A6@250";
    element->typePropertyValue = 2;
    model.setBrickWallIdentifyData(element, {});
    std::wstring text;
    model.saveToJson(text);
    const QJsonObject written = objectOf(text)["BrickWallIdentifyData"].toObject()["key_0"].toObject();
    EXPECT_EQ(written["material"], "MU10");
    EXPECT_EQ(written["throughBar"], "2B12");
    EXPECT_EQ(written["transverseBar"], "A6@250");
    EXPECT_EQ(written["typePropertyValue"], "2");
}

TEST(ORVCADWallBrickDataOutputModelTest, fieldsComeBackFromADocument)
{
    ORVCADWallBrickDataOutputModel model;
    model.loadFromJson(LR"({"BrickWallIdentifyData": {"value_0": [], "key_0": {"entName": "Q1", "material": "3",
        "throughBar": "2B12", "transverseBar": "A6@250", "typePropertyValue": "2"}}})");
    const ORVCADCloudEntBrickWallStruct element = onlyElement(model);
    EXPECT_EQ(element.entName, L"Q1");
    EXPECT_EQ(element.material, L"3");
    EXPECT_EQ(element.throughBar, L"2B12");
    EXPECT_EQ(element.transverseBar, L"A6@250");
    EXPECT_EQ(element.typePropertyValue, 2);
}

TEST(ORVCADWallBrickDataOutputModelTest, documentOfForceWallsHoldsNoBrickWalls)
{
    ORVCADWallForceDataOutputModel force;
    force.setForceWallIdentifyData(new ORVCADCloudEntForceWallStruct, {});
    std::wstring text;
    force.saveToJson(text);
    ORVCADWallBrickDataOutputModel model;
    model.loadFromJson(text);
    ORVCADWallBrickDataOutputModel::Walls walls;
    model.getBrickWallIdentifyData(walls);
    EXPECT_TRUE(walls.empty());
}

} // namespace

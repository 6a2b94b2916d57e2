#include "IdentifyInputModel/Wall/ORVCADWallBrickDataInputModel.h"

#include "IdentifyInputModel/Wall/WallInputFixture.h"

using namespace wallinput;

namespace {

TEST(ORVCADWallBrickDataInputModelTest, cloudDocumentHasFloorAndDrawingAsWell)
{
    QJsonObject object{{"old", 1}};
    filled<Brick>().saveToJson_ToCloud(object);
    EXPECT_EQ(object.keys(), keys<Brick>() + (QStringList{"drawingName", "floorCode", "floorName"})); // "old" is gone
    EXPECT_EQ(compact(object.value("floorCode").toObject()), R"({"floorCode":"2"})");
    EXPECT_EQ(compact(object.value("floorName").toObject()), R"({"floorName":"F2"})");
    EXPECT_EQ(compact(object.value("drawingName").toObject()), R"({"drawingName":"S-01"})");
}

TEST(ORVCADWallBrickDataInputModelTest, cloudDocumentHasWhatThePlainOneHas)
{
    QJsonObject object;
    filled<Brick>().saveToJson_ToCloud(object);
    for (const char *own : {"drawingName", "floorCode", "floorName"})
        object.remove(QLatin1String(own));
    EXPECT_EQ(object, objectOf(jsonOf(filled<Brick>())));
}

TEST(ORVCADWallBrickDataInputModelTest, cloudDocumentReadsBackWithFloorAndDrawing)
{
    QJsonObject object;
    filled<Brick>().saveToJson_ToCloud(object);
    Brick model(kType);
    model.loadFromJson(QString::fromUtf8(QJsonDocument(object).toJson()).toStdWString());
    EXPECT_EQ(model.getFloorName(), L"F2");
    EXPECT_EQ(model.getFloorCode(), L"2");
    EXPECT_EQ(model.getDrawingName(), L"S-01");
    EXPECT_EQ(wallsOf(model).size(), 1U);
}

} // namespace

#include "drawing/ORVCADDrawingFloorMapping.h"

#include "DrawingJson.h"

#include <gtest/gtest.h>

using namespace drawing_test;

namespace {

TEST(ORVCADDrawingFloorMappingTest, freshRecordIsEmpty)
{
    const ORVCADDrawingFloorMapping mapping;
    EXPECT_EQ(mapping.regionId, 0);
    EXPECT_EQ(mapping.floorName, QString());
    EXPECT_TRUE(mapping.drawingNames.isEmpty());
    EXPECT_EQ(text(mapping.toJson()), R"({"DrawingNames":[],"FloorName":"","regionID":0})");
}

TEST(ORVCADDrawingFloorMappingTest, regionIdIsWrittenWhole)
{
    const ORVCADDrawingFloorMapping mapping{4294967296, "F1", {"b", "a"}};
    EXPECT_EQ(text(mapping.toJson()), R"({"DrawingNames":["b","a"],"FloorName":"F1","regionID":4294967296})");
}

TEST(ORVCADDrawingFloorMappingTest, regionIdIsReadWith32Bits)
{
    ORVCADDrawingFloorMapping mapping;
    EXPECT_TRUE(mapping.readJson(object(R"({"regionID":2147483647,"FloorName":"","DrawingNames":[]})")));
    EXPECT_EQ(mapping.regionId, 2147483647);
    EXPECT_TRUE(mapping.readJson(object(R"({"regionID":2147483648,"FloorName":"","DrawingNames":[]})")));
    EXPECT_EQ(mapping.regionId, 0);
}

TEST(ORVCADDrawingFloorMappingTest, eachOfThreeKeysIsRequired)
{
    const QJsonObject whole = object(R"({"regionID":1,"FloorName":"F1","DrawingNames":["a"]})");
    ORVCADDrawingFloorMapping mapping;
    EXPECT_TRUE(mapping.readJson(whole));
    for (const char *key : {"regionID", "FloorName", "DrawingNames"}) {
        QJsonObject lacking = whole;
        lacking.remove(QLatin1String(key));
        EXPECT_FALSE(mapping.readJson(lacking)) << key;
    }
}

TEST(ORVCADDrawingFloorMappingTest, valuesOfTheRequiredKeysMeanNothing)
{
    ORVCADDrawingFloorMapping mapping{1, "F1", {"a"}};
    EXPECT_TRUE(mapping.readJson(object(R"({"regionID":"x","FloorName":7,"DrawingNames":null})")));
    EXPECT_EQ(mapping.regionId, 0);
    EXPECT_EQ(mapping.floorName, "F1");
    EXPECT_EQ(mapping.drawingNames, QStringList{"a"});
}

TEST(ORVCADDrawingFloorMappingTest, floorNameAndDrawingsComeFromOneKeyThatIsNeverWritten)
{
    ORVCADDrawingFloorMapping mapping;
    QJsonObject json = object(R"({"regionID":1,"FloorName":"F1","DrawingNames":["a"],"DrawingFloorMappings":"F9"})");
    EXPECT_TRUE(mapping.readJson(json));
    EXPECT_EQ(mapping.floorName, "F9");
    EXPECT_TRUE(mapping.drawingNames.isEmpty());
    json.insert("DrawingFloorMappings", QJsonArray{"b", "c"});
    EXPECT_TRUE(mapping.readJson(json));
    EXPECT_EQ(mapping.floorName, "F9");
    EXPECT_EQ(mapping.drawingNames, (QStringList{"b", "c"}));
}

} // namespace

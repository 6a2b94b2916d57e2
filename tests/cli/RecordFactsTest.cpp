#include "cli/RecordFacts.h"

#include <gtest/gtest.h>

#include <QJsonArray>

using namespace hbx::embedded;
using orvcad::factsOf;

namespace {

std::optional<QString> unknown(const QString & /*id*/) { return std::nullopt; }
std::optional<QString> lettered(const QString &id) { return "k" + id; }

TEST(RecordFactsTest, projectTellsItsNameItsOptionsByGroupAndItsMaterials)
{
    ProjectSettings settings;
    settings.name = "House";
    settings.options = {{"walls", "gap", "5"}, {"walls", "name", "Q"}, {"walls", "name", "W"}};
    settings.materials = {{2, "C30"}};
    EXPECT_EQ(
        factsOf(settings),
        (QJsonObject{{"name", "House"},
                     {"source", ""},
                     {"planeRule", ""},
                     {"options", QJsonObject{{"walls", QJsonObject{{"gap", "5"}, {"name", QJsonArray{"Q", "W"}}}}}},
                     {"materials", QJsonObject{{"2", "C30"}}}}));
}

TEST(RecordFactsTest, idsAreNoFacts)
{
    FloorRecord floor;
    floor.id = 7;
    floor.regionId = 3;
    EXPECT_EQ(factsOf(floor), factsOf(FloorRecord()));
    ElementRecord element;
    element.id = 7;
    element.floorId = 3;
    EXPECT_EQ(factsOf(element, unknown), factsOf(ElementRecord(), unknown));
    DrawObjRecord object;
    object.id = 7;
    object.elementId = 3;
    object.key = "door";
    EXPECT_EQ(factsOf(object, unknown), factsOf(DrawObjRecord(), unknown));
}

TEST(RecordFactsTest, objectTellsShapePropertiesSpansAndSection)
{
    DrawObjRecord object;
    object.type = 15;
    object.shape.kind = IHBXShape::kLine;
    object.shape.width = 200;
    object.properties = {{"StartPtTopElev", QString("3")}};
    object.spans = {QJsonObject{{"SpanIndex", 1}}};
    object.section = SectionRecord{4, 1};
    const QJsonObject facts = factsOf(object, unknown);
    EXPECT_EQ(facts["shape"].toObject()["width"], 200);
    EXPECT_EQ(facts["properties"], (QJsonObject{{"StartPtTopElev", "3"}}));
    EXPECT_EQ(facts["spans"], (QJsonArray{QJsonObject{{"SpanIndex", 1}}}));
    EXPECT_EQ(facts["section"], (QJsonObject{{"number", 4}, {"kind", 1}}));
}

TEST(RecordFactsTest, objectsThatAPropertyNamesAreCalledAsTold)
{
    const PropertyRecords properties{{"DependSlabID", 17}};
    EXPECT_TRUE(orvcad::namesObjects(properties, 23));
    EXPECT_FALSE(orvcad::namesObjects({{"TopElev", QString("3")}}, 19));
    DrawObjRecord bar;
    bar.type = 23;
    bar.properties = properties;
    EXPECT_EQ(factsOf(bar, lettered)["properties"], (QJsonObject{{"DependSlabID", "k17"}}));
    EXPECT_EQ(factsOf(bar, unknown)["properties"], (QJsonObject{{"DependSlabID", -1}}));
}

} // namespace

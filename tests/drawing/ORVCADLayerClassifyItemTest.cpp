#include "drawing/ORVCADLayerClassifyItem.h"

#include "DrawingJson.h"

#include <gmock/gmock.h>

#include <memory>

using namespace drawing_test;

namespace {

const char *const kWhole = R"({"ClassifiedJsonFilePath":"/x/plan_etBeam.json","DrawingName":"plan","ElementType":15})";

std::unique_ptr<ORVCADLayerClassifyItem> readFrom(const QJsonObject &json)
{
    return std::unique_ptr<ORVCADLayerClassifyItem>(ORVCADLayerClassifyItem::fromJson(json));
}

} // namespace

TEST(ORVCADLayerClassifyItemTest, itemIsWrittenWithTheNumberOfItsType)
{
    ORVCADLayerClassifyItem item(QStringLiteral("plan"), 15);
    EXPECT_EQ(item.getClassifiedJsonFilePath(), "");
    item.setClassifiedJsonFilePath(QStringLiteral("/x/plan_etBeam.json"));
    EXPECT_EQ(text(item.toJson()), kWhole);
}

TEST(ORVCADLayerClassifyItemTest, itemIsReadFromWhatItWrites)
{
    const auto item = readFrom(object(kWhole));
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->getDrawingName(), "plan");
    EXPECT_EQ(item->getElementType(), 15);
    EXPECT_EQ(item->getClassifiedJsonFilePath(), "/x/plan_etBeam.json");
}

TEST(ORVCADLayerClassifyItemTest, everyKeyIsRequired)
{
    for (const char *key : {"DrawingName", "ElementType", "ClassifiedJsonFilePath"}) {
        QJsonObject json = object(kWhole);
        json.remove(key);
        EXPECT_EQ(readFrom(json), nullptr) << key;
    }
}

TEST(ORVCADLayerClassifyItemTest, mistypedValuesReadAsZeroOrEmpty)
{
    const auto item = readFrom(object(R"({"ClassifiedJsonFilePath":7,"DrawingName":null,"ElementType":"15"})"));
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->getDrawingName(), "");
    EXPECT_EQ(item->getElementType(), 0);
    EXPECT_EQ(item->getClassifiedJsonFilePath(), "");
}

#include "drawing/ORVCADLayerClassifyResult.h"

#include "DrawingJson.h"

#include <gmock/gmock.h>

#include <memory>

using namespace drawing_test;

namespace {

const char *const kTwoItems = R"({"LayerClassifyItems":[)"
                              R"({"ClassifiedJsonFilePath":"a","DrawingName":"plan","ElementType":15},)"
                              R"({"ClassifiedJsonFilePath":"b","DrawingName":"plan","ElementType":25}]})";

std::unique_ptr<ORVCADLayerClassifyResult> readFrom(const char *text)
{
    return std::unique_ptr<ORVCADLayerClassifyResult>(ORVCADLayerClassifyResult::fromJson(object(text)));
}

} // namespace

TEST(ORVCADLayerClassifyResultTest, itemsAreReadAndWrittenInOrder)
{
    const auto result = readFrom(kTwoItems);
    ASSERT_NE(result, nullptr);
    ASSERT_EQ(result->getLayerClassifyItems().size(), 2);
    EXPECT_EQ(result->getLayerClassifyItems().at(1)->getElementType(), 25);
    EXPECT_EQ(text(result->toJson()), kTwoItems);
}

TEST(ORVCADLayerClassifyResultTest, emptyResultIsWrittenWithItsKey)
{
    EXPECT_EQ(text(ORVCADLayerClassifyResult().toJson()), R"({"LayerClassifyItems":[]})");
}

TEST(ORVCADLayerClassifyResultTest, keyIsRequiredAndItsTypeIsNotLookedAt)
{
    EXPECT_EQ(readFrom("{}"), nullptr);
    for (const char *value : {"null", "7", "{}"}) {
        const auto result = readFrom(QByteArray(R"({"LayerClassifyItems":)").append(value).append('}'));
        ASSERT_NE(result, nullptr) << value;
        EXPECT_TRUE(result->getLayerClassifyItems().isEmpty()) << value;
    }
}

TEST(ORVCADLayerClassifyResultTest, itemThatIsRefusedStandsInTheListAsNull)
{
    const auto result = readFrom(R"({"LayerClassifyItems":[{"DrawingName":"plan"}, 7,
        {"ClassifiedJsonFilePath":"b","DrawingName":"plan","ElementType":25}]})");
    ASSERT_NE(result, nullptr);
    ASSERT_EQ(result->getLayerClassifyItems().size(), 3);
    EXPECT_EQ(result->getLayerClassifyItems().at(0), nullptr);
    EXPECT_EQ(result->getLayerClassifyItems().at(1), nullptr);
    EXPECT_NE(result->getLayerClassifyItems().at(2), nullptr);
    EXPECT_EQ(result->toJson().value("LayerClassifyItems").toArray().size(), 1);
}

TEST(ORVCADLayerClassifyResultTest, clearDeletesTheItemsAndEmptiesTheList)
{
    ORVCADLayerClassifyResult result;
    result.add(new ORVCADLayerClassifyItem(QStringLiteral("plan"), 15));
    result.add(nullptr);
    result.clear();
    EXPECT_TRUE(result.getLayerClassifyItems().isEmpty());
    result.add(new ORVCADLayerClassifyItem(QStringLiteral("plan"), 15));
    EXPECT_EQ(result.getLayerClassifyItems().size(), 1);
}

TEST(ORVCADLayerClassifyResultTest, copyHoldsTheVerySameItems)
{
    ORVCADLayerClassifyResult result;
    result.add(new ORVCADLayerClassifyItem(QStringLiteral("plan"), 15));
    ORVCADLayerClassifyResult copy = result;
    EXPECT_EQ(copy.getLayerClassifyItems(), result.getLayerClassifyItems());
    copy.getLayerClassifyItems().clear(); // one of the two deletes them
}

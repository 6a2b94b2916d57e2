#include "drawing/ORVCADScaleReviseDataItem.h"

#include "DrawingJson.h"

#include <gmock/gmock.h>

using namespace drawing_test;

TEST(ORVCADScaleReviseDataItemTest, freshItemHasNoOriginScaleAndNewScaleOne)
{
    const ORVCADScaleReviseDataItem item(QStringLiteral("plan"));
    EXPECT_EQ(item.getDrawingName(), "plan");
    EXPECT_EQ(item.getOriginScale(), 0.0);
    EXPECT_EQ(text(item.toJson()), R"({"drawingName":"plan","newScale":1,"originScale":0})");
}

TEST(ORVCADScaleReviseDataItemTest, newScaleIsOneWhateverTheOriginScale)
{
    ORVCADScaleReviseDataItem item(QStringLiteral("plan"));
    item.setOriginScale(0.01);
    EXPECT_EQ(item.getOriginScale(), 0.01);
    EXPECT_EQ(text(item.toJson()), R"({"drawingName":"plan","newScale":1,"originScale":0.01})");
}

TEST(ORVCADScaleReviseDataItemTest, nothingIsRead)
{
    EXPECT_EQ(ORVCADScaleReviseDataItem::fromJson(ORVCADScaleReviseDataItem(QStringLiteral("plan")).toJson()), nullptr);
    EXPECT_EQ(ORVCADScaleReviseDataItem::fromJson(QJsonObject()), nullptr);
}

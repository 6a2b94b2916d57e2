#include "drawing/ORVCADDrawingLocationData.h"

#include "DrawingJson.h"

#include <gmock/gmock.h>

using namespace drawing_test;

TEST(ORVCADDrawingLocationDataTest, itemsAreWrittenInOrderAndANullOneIsLeftOut)
{
    ORVCADDrawingLocationData data;
    EXPECT_EQ(text(data.toJson()), "[]");
    data.addItem(new ORVCADDrawingLocationDataItem(QStringLiteral("a")));
    data.addItem(nullptr);
    data.addItem(new ORVCADDrawingLocationDataItem(QStringLiteral("b")));
    EXPECT_EQ(text(data.toJson()), R"([{"axisInfo":[],"drawingName":"a"},{"axisInfo":[],"drawingName":"b"}])");
}

TEST(ORVCADDrawingLocationDataTest, nothingIsRead)
{
    EXPECT_EQ(ORVCADDrawingLocationData::fromJson(ORVCADDrawingLocationData().toJson()), nullptr);
    EXPECT_EQ(ORVCADDrawingLocationData::fromJson(QJsonValue()), nullptr);
}

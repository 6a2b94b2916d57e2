#include "drawing/ORVCADDrawingLocationDataItem.h"

#include "DrawingJson.h"

#include <gmock/gmock.h>

#include <limits>

using namespace drawing_test;

TEST(ORVCADDrawingLocationDataItemTest, freshCrossingLiesAtTheOrigin)
{
    const AxisInfo axis;
    EXPECT_EQ(axis.bayNum + axis.depthNum, "");
    EXPECT_EQ(axis.x, 0.0);
    EXPECT_EQ(axis.y, 0.0);
}

TEST(ORVCADDrawingLocationDataItemTest, crossingsAreWrittenInOrder)
{
    ORVCADDrawingLocationDataItem item(QStringLiteral("plan"));
    EXPECT_EQ(text(item.toJson()), R"({"axisInfo":[],"drawingName":"plan"})");
    item.addAxisInfo({QStringLiteral("1"), QStringLiteral("A"), 100.5, -200.0});
    item.addAxisInfo({QStringLiteral("8"), QStringLiteral("A"), 40100.5, -200.0});
    EXPECT_EQ(text(item.toJson()), R"({"axisInfo":[{"bayNum":"1","depthNum":"A","point":[100.5,-200]},)"
                                   R"({"bayNum":"8","depthNum":"A","point":[40100.5,-200]}],"drawingName":"plan"})");
}

TEST(ORVCADDrawingLocationDataItemTest, coordinateThatIsNoNumberIsWrittenAsNull)
{
    ORVCADDrawingLocationDataItem item(QStringLiteral("plan"));
    item.addAxisInfo({QString(), QString(), std::numeric_limits<double>::infinity(), 1.0});
    EXPECT_EQ(text(item.toJson()),
              R"({"axisInfo":[{"bayNum":"","depthNum":"","point":[null,1]}],"drawingName":"plan"})");
}

TEST(ORVCADDrawingLocationDataItemTest, nothingIsRead)
{
    EXPECT_EQ(ORVCADDrawingLocationDataItem::fromJson(ORVCADDrawingLocationDataItem(QStringLiteral("a")).toJson()),
              nullptr);
    EXPECT_EQ(ORVCADDrawingLocationDataItem::fromJson(QJsonObject()), nullptr);
}

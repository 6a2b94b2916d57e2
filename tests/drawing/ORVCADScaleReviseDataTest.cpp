#include "drawing/ORVCADScaleReviseData.h"

#include "DrawingJson.h"

#include <gmock/gmock.h>

using namespace drawing_test;

namespace {

class ORVCADScaleReviseDataTest : public testing::Test
{
protected:
    ORVCADScaleReviseDataItem *add(const char *drawing, double scale)
    {
        auto *item = new ORVCADScaleReviseDataItem(QString::fromUtf8(drawing));
        item->setOriginScale(scale);
        data.addItem(item);
        return item;
    }

    ORVCADScaleReviseData data;
};

} // namespace

TEST_F(ORVCADScaleReviseDataTest, firstItemOfADrawingIsFound)
{
    auto *first = add("a", 1.0);
    add("b", 2.0);
    add("a", 3.0);
    EXPECT_EQ(data.getCount(), 3);
    EXPECT_EQ(data.getScaleReviseDataItem(QStringLiteral("a")), first);
    EXPECT_EQ(data.getScaleReviseDataItem(QStringLiteral("A")), nullptr);
    EXPECT_EQ(data.getScaleReviseDataItem(QString()), nullptr);
    EXPECT_EQ(data.getScaleReviseData().at(0), first);
}

TEST_F(ORVCADScaleReviseDataTest, itemsAreWrittenInOrder)
{
    EXPECT_EQ(text(data.toJson()), "[]");
    add("a", 0.5);
    data.addItem(nullptr);
    add("b", 100.0);
    EXPECT_EQ(text(data.toJson()), R"([{"drawingName":"a","newScale":1,"originScale":0.5},)"
                                   R"({"drawingName":"b","newScale":1,"originScale":100}])");
}

TEST_F(ORVCADScaleReviseDataTest, nothingIsReadWhateverIsGiven)
{
    add("a", 0.5);
    EXPECT_EQ(ORVCADScaleReviseData::fromJson(data.toJson()), nullptr);
    EXPECT_EQ(ORVCADScaleReviseData::fromJson(QJsonValue()), nullptr);
    EXPECT_EQ(ORVCADScaleReviseData::fromJson(QJsonObject()), nullptr);
}

TEST_F(ORVCADScaleReviseDataTest, copyHoldsTheVerySameItems)
{
    add("a", 0.5);
    ORVCADScaleReviseData copy = data;
    EXPECT_EQ(copy.getScaleReviseData(), data.getScaleReviseData());
    copy.getScaleReviseData().clear(); // one of the two deletes them
}

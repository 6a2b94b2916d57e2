#include "drawing/ORVCADClassifiedLayersData.h"

#include "DrawingJson.h"

#include <gmock/gmock.h>

using namespace drawing_test;

namespace {

class ORVCADClassifiedLayersDataTest : public testing::Test
{
protected:
    ORVCADClassifiedLayers *add(const char *drawing, int type)
    {
        auto *group = new ORVCADClassifiedLayers(QString::fromUtf8(drawing), type);
        data.addLayers(group);
        return group;
    }

    ORVCADClassifiedLayersData data;
};

} // namespace

TEST_F(ORVCADClassifiedLayersDataTest, groupsOfADrawingAreGivenInOrder)
{
    auto *first = add("plan", 25);
    add("other", 15);
    auto *second = add("plan", 15);
    EXPECT_EQ(data.getLayers(QStringLiteral("plan")), (QList<ORVCADClassifiedLayers *>{first, second}));
    EXPECT_TRUE(data.getLayers(QStringLiteral("Plan")).isEmpty());
    EXPECT_EQ(data.getLayers().size(), 3);
}

TEST_F(ORVCADClassifiedLayersDataTest, drawingOrTypeIsEnoughToFindAGroup)
{
    auto *beamsOfOther = add("other", 15);
    auto *columnsOfPlan = add("plan", 25);
    auto *beamsOfPlan = add("plan", 15);
    EXPECT_EQ(data.getLayers(QStringLiteral("plan"), 15), beamsOfOther);  // the type alone
    EXPECT_EQ(data.getLayers(QStringLiteral("plan"), 19), columnsOfPlan); // the drawing alone
    EXPECT_EQ(data.getLayers(QStringLiteral("none"), 25), columnsOfPlan);
    EXPECT_EQ(data.getLayers(QStringLiteral("none"), 19), nullptr);
    EXPECT_NE(beamsOfPlan, beamsOfOther);
}

TEST_F(ORVCADClassifiedLayersDataTest, nullGroupIsFoundByNothingAndNotWritten)
{
    data.addLayers(nullptr);
    auto *group = add("plan", 15);
    EXPECT_EQ(data.getLayers(QStringLiteral("plan"), 15), group);
    EXPECT_EQ(data.getLayers(QStringLiteral("plan")), QList<ORVCADClassifiedLayers *>{group});
    EXPECT_EQ(data.toJson().toArray().size(), 1);
}

TEST_F(ORVCADClassifiedLayersDataTest, groupsAreWrittenAsAnArray)
{
    EXPECT_EQ(text(data.toJson()), "[]");
    add("plan", 15);
    add("other", 25);
    EXPECT_EQ(QString::fromUtf8(text(data.toJson())), R"([{"DrawingName":"plan","ElementType":"梁","Layers":[]},)"
                                                      R"({"DrawingName":"other","ElementType":"柱","Layers":[]}])");
}

TEST_F(ORVCADClassifiedLayersDataTest, copyHoldsTheVerySameGroups)
{
    add("plan", 15);
    ORVCADClassifiedLayersData copy = data;
    EXPECT_EQ(copy.getLayers(), data.getLayers());
    copy.getLayers().clear(); // one of the two deletes them
}

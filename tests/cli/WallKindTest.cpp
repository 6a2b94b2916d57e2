#include "cli/WallKind.h"

#include <gtest/gtest.h>

#include <QJsonArray>

using namespace orvcad;

namespace {

const QJsonObject kMap{{"key_0", QJsonObject{{"entName", "Q1"}}}, {"value_0", QJsonArray{7}}};

TEST(WallKindTest, kindsAreBrickAndForceWithTheirNumbersAndKeys)
{
    ASSERT_EQ(wallKinds().size(), 2U);
    const WallKind &brick = wallKinds()[0];
    EXPECT_STREQ(brick.word, "brick");
    EXPECT_STREQ(brick.title, "brick wall");
    EXPECT_STREQ(brick.titles, "brick walls");
    EXPECT_TRUE(brick.isBrick());
    EXPECT_EQ(brick.identifyType, 1);
    EXPECT_EQ(brick.elementType, 1003);
    EXPECT_EQ(brick.reply, "eBrickWall");
    EXPECT_EQ(brick.document, "BrickWallIdentifyData");
    const WallKind &force = wallKinds()[1];
    EXPECT_STREQ(force.word, "force");
    EXPECT_STREQ(force.title, "force wall");
    EXPECT_STREQ(force.titles, "force walls");
    EXPECT_FALSE(force.isBrick());
    EXPECT_EQ(force.identifyType, 2);
    EXPECT_EQ(force.elementType, 0);
    EXPECT_EQ(force.reply, "eWall");
    EXPECT_EQ(force.document, "ForceWallIdentifyData");
}

TEST(WallKindTest, kindIsFoundByItsWord)
{
    for (const WallKind &kind : wallKinds())
        EXPECT_EQ(&wallKindOf(QLatin1String(kind.word)), &kind);
}

TEST(WallKindTest, replyHoldsItsMapAndGivesItBack)
{
    const QJsonObject reply = wallKindOf("brick").replyOf(kMap);
    EXPECT_EQ(reply, (QJsonObject{{"eBrickWall",
                                   QJsonObject{{"ElementsAndEdos", QJsonObject{{"BrickWallIdentifyData", kMap}}}}}}));
    EXPECT_EQ(wallKindOf("brick").mapIn(reply), kMap);
    EXPECT_EQ(wallKindOf("force").mapIn(wallKindOf("force").replyOf(kMap)), kMap);
}

TEST(WallKindTest, documentThatIsNoReplyOfTheKindHasNoMap)
{
    const WallKind &brick = wallKindOf("brick");
    EXPECT_EQ(brick.mapIn({}), QJsonObject());
    EXPECT_EQ(brick.mapIn(wallKindOf("force").replyOf(kMap)), QJsonObject());
    EXPECT_EQ(brick.mapIn({{"eBrickWall", 3}}), QJsonObject());
    EXPECT_EQ(brick.mapIn({{"eBrickWall", QJsonObject{{"ElementsAndEdos", "text"}}}}), QJsonObject());
}

TEST(WallKindTest, elementsAndPiecesAreNumberedFromNoughtAndHalfOfTheKeysAreElements)
{
    EXPECT_EQ(wallElementKey(0), "key_0");
    EXPECT_EQ(wallPiecesKey(12), "value_12");
    EXPECT_EQ(wallCount({}), 0);
    EXPECT_EQ(wallCount(kMap), 1);
    EXPECT_EQ(wallCount({{"key_0", 1}, {"value_0", 1}, {"key_7", 1}}), 1); // as the reader counts
}

} // namespace

#include "IdentifyInputModel/Wall/JsonWall2HBX.h"

#include "IdentifyInputModel/Wall/WallWritingFixture.h"

namespace {

class JsonWall2HBXTest : public WallWritingFixture
{
protected:
    int elementCount() const { return model().elements()->count(); }
};

TEST_F(JsonWall2HBXTest, replyWithoutItsKeyCreatesNothingAndGivesFalse)
{
    load();
    for (const QJsonObject &reply :
         {QJsonObject{}, QJsonObject{{"eBrickWall", 3}, {"eWall", "text"}},
          QJsonObject{{"eBrickWall", QJsonObject{}}, {"eWall", QJsonObject{{"ElementsAndEdos", QJsonArray{1}}}}}}) {
        EXPECT_FALSE(jsonBrickWall2HBX(service(), reply));
        EXPECT_FALSE(jsonForceWall2HBX(service(), reply));
    }
    EXPECT_EQ(elementCount(), 0);
}

TEST_F(JsonWall2HBXTest, fullSuccessGivesFalseToo)
{
    load();
    EXPECT_FALSE(
        jsonBrickWall2HBX(service(), brickReply({{elementText("Q1"), QJsonArray{pieceText(), pieceText("0,9,7,9")}}})));
    EXPECT_FALSE(jsonForceWall2HBX(service(), forceReply({{elementText("W1", "0"), QJsonArray{pieceText()}}})));
    EXPECT_EQ(placedNames(1003), (QStringList{"Q1", "Q1"}));
    EXPECT_EQ(placedNames(0), (QStringList{"W1"}));
}

TEST_F(JsonWall2HBXTest, eachEntryReadsItsOwnKeyAlone)
{
    load();
    jsonForceWall2HBX(service(), brickReply({{elementText("Q1"), QJsonArray{pieceText()}}}));
    jsonBrickWall2HBX(service(), forceReply({{elementText("W1", "0"), QJsonArray{pieceText()}}}));
    EXPECT_EQ(elementCount(), 0);
}

TEST_F(JsonWall2HBXTest, nullServiceGivesFalse)
{
    EXPECT_FALSE(jsonBrickWall2HBX(nullptr, brickReply({{elementText("Q1"), QJsonArray{pieceText()}}})));
    EXPECT_FALSE(jsonForceWall2HBX(nullptr, {}));
}

TEST_F(JsonWall2HBXTest, nameThatIsTakenBecomesAUniqueOne)
{
    load(wall("Q1", 1003, "0 0, 5000 0"));
    jsonBrickWall2HBX(service(), brickReply({{elementText("Q1"), QJsonArray{pieceText()}}}));
    EXPECT_EQ(placedNames(1003), (QStringList{"Q1", "Q1-1"}));
}

TEST_F(JsonWall2HBXTest, emptyForceReplyStillOpensAndClosesItsBatch)
{
    load();
    const RecordingHost host(*service());
    jsonForceWall2HBX(host.service(), {});
    EXPECT_EQ(host.calls(),
              (QStringList{"beginBatch(\"ORVCADModelData\\IdentifyInputModel\\Wall\\ORVCADWallEdoGenerator125\", true)",
                           "endBatch(\"ORVCADModelData\\IdentifyInputModel\\Wall\\ORVCADWallEdoGenerator125\")"}));
}

TEST_F(JsonWall2HBXTest, segmentsOfAPieceAreNotUsed)
{
    load();
    QJsonObject odd = pieceText();
    odd["sSegmentEntityDataList"] = "1,2,/3,";
    jsonBrickWall2HBX(service(), brickReply({{elementText("Q1"), QJsonArray{odd}}}));
    ASSERT_EQ(placed(1003).size(), 1);
    EXPECT_EQ(axisOf(placed(1003)[0])->Length(), 5000);
}

/** A reply of three walls, of which the one at a place names what the host does not have. */
struct UnknownPlace
{
    int position;
    const char *floor;
    const char *region;
};
class UnknownPlaceOfWallTest : public WallWritingFixture, public ::testing::WithParamInterface<UnknownPlace>
{
protected:
    static std::vector<WallText> walls(const QString &type)
    {
        std::vector<WallText> walls;
        for (int i = 0; i < 3; ++i) {
            const bool isOdd = i == GetParam().position;
            walls.push_back({elementText(QStringLiteral("N%1").arg(i), type, isOdd ? GetParam().floor : "1",
                                         isOdd ? GetParam().region : "House"),
                             QJsonArray{pieceText()}});
        }
        return walls;
    }
    static QStringList expected()
    {
        QStringList names{"N0", "N1", "N2"};
        names.removeAt(GetParam().position);
        return names;
    }
};

TEST_P(UnknownPlaceOfWallTest, brickWallIsSkippedAndTheOthersArePlaced)
{
    load();
    EXPECT_FALSE(jsonBrickWall2HBX(service(), brickReply(walls("1003"))));
    EXPECT_EQ(placedNames(1003), expected());
}

TEST_P(UnknownPlaceOfWallTest, forceWallIsSkippedAndTheOthersArePlaced)
{
    load();
    EXPECT_FALSE(jsonForceWall2HBX(service(), forceReply(walls("0"))));
    EXPECT_EQ(placedNames(0), expected());
}

INSTANTIATE_TEST_SUITE_P(Positions, UnknownPlaceOfWallTest,
                         ::testing::Values(UnknownPlace{0, "9", "House"}, UnknownPlace{1, "9", "House"},
                                           UnknownPlace{2, "9", "House"}, UnknownPlace{0, "1", "Barn"},
                                           UnknownPlace{1, "1", "Barn"}, UnknownPlace{2, "1", "Barn"},
                                           UnknownPlace{1, "", ""}, UnknownPlace{2, "9", "Barn"}));

} // namespace

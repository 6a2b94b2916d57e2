#include "drawing/ORVCADClassifiedLayer.h"

#include "DrawingJson.h"

#include <gmock/gmock.h>

#include <memory>

using namespace drawing_test;

namespace {

using Layer = std::unique_ptr<ORVCADClassifiedLayer>;

Layer readOwn(const char *text) { return Layer(ORVCADClassifiedLayer::fromJson(object(text))); }

Layer readAnalysis(int type, const char *text) { return Layer(ORVCADClassifiedLayer::fromHBXJson(type, object(text))); }

} // namespace

TEST(ORVCADClassifiedLayerTest, freshLayerHasItsNameAlone)
{
    const ORVCADClassifiedLayer layer(QStringLiteral("S-BEAM"));
    EXPECT_EQ(layer.getLayerName(), "S-BEAM");
    EXPECT_EQ(layer.getColor(), 0);
    EXPECT_TRUE(layer.getCADEdoIds().isEmpty());
}

TEST(ORVCADClassifiedLayerTest, idsStandInTheOrderInWhichTheyWereAdded)
{
    ORVCADClassifiedLayer layer(QStringLiteral("S-BEAM"));
    layer.addEdoId(9);
    layer.addEdoId(3);
    layer.getCADEdoIds().append(9);
    EXPECT_EQ(layer.getCADEdoIds(), (QList<qint64>{9, 3, 9}));
}

TEST(ORVCADClassifiedLayerTest, nameAndIdsAreWritten)
{
    ORVCADClassifiedLayer layer(QStringLiteral("S-BEAM"));
    layer.addEdoId(9);
    layer.addEdoId(5000000000);
    EXPECT_EQ(text(layer.toJson()), R"({"CADEdoIds":[9,5000000000],"LayerName":"S-BEAM"})");
}

TEST(ORVCADClassifiedLayerTest, layerIsReadFromWhatItWrites)
{
    const Layer layer = readOwn(R"({"CADEdoIds":[9,-3,9],"LayerName":"S-BEAM"})");
    ASSERT_NE(layer, nullptr);
    EXPECT_EQ(layer->getLayerName(), "S-BEAM");
    EXPECT_EQ(layer->getCADEdoIds(), (QList<qint64>{9, -3, 9}));
}

TEST(ORVCADClassifiedLayerTest, colorIsNeitherWrittenNorReadInTheOwnForm)
{
    ORVCADClassifiedLayer layer(QStringLiteral("S-BEAM"));
    layer.setColor(0x3366CC);
    EXPECT_EQ(layer.getColor(), 0x3366CC);
    EXPECT_EQ(layer.toJson().keys(), (QStringList{"CADEdoIds", "LayerName"}));
    EXPECT_EQ(readOwn(R"({"CADEdoIds":[],"LayerName":"a","Color":7})")->getColor(), 0);
}

TEST(ORVCADClassifiedLayerTest, nameAndIdsAreRequiredAndTheNameMustNotBeEmpty)
{
    EXPECT_EQ(readOwn(R"({"CADEdoIds":[1]})"), nullptr);
    EXPECT_EQ(readOwn(R"({"LayerName":"a"})"), nullptr);
    EXPECT_EQ(readOwn(R"({"CADEdoIds":[1],"LayerName":""})"), nullptr);
    EXPECT_EQ(readOwn(R"({"CADEdoIds":[1],"LayerName":7})"), nullptr);
    EXPECT_EQ(readOwn("{}"), nullptr);
}

TEST(ORVCADClassifiedLayerTest, idsOfAnotherTypeThanAnArrayGiveALayerWithoutIds)
{
    for (const char *ids : {"7", "null", "{}", "\"1\"", "[]"}) {
        const Layer layer = readOwn(QByteArray(R"({"LayerName":"a","CADEdoIds":)").append(ids).append('}'));
        ASSERT_NE(layer, nullptr) << ids;
        EXPECT_TRUE(layer->getCADEdoIds().isEmpty()) << ids;
    }
}

TEST(ORVCADClassifiedLayerTest, idsBeyond32BitsAreCut)
{
    const Layer layer = readOwn(R"({"LayerName":"a","CADEdoIds":[2147483647,2147483648,5000000000,1.5,"7",null]})");
    ASSERT_NE(layer, nullptr);
    EXPECT_EQ(layer->getCADEdoIds(), (QList<qint64>{2147483647, 0, 0, 0, 0, 0}));
}

TEST(ORVCADClassifiedLayerTest, analysisLayerTakesNameAndColourOfTheLayerLookup)
{
    const Layer layer = readAnalysis(15, R"({"LayerName":"S-Beam","EdoIDList":[{"EdoID":4},{"EdoID":2}]})");
    ASSERT_NE(layer, nullptr);
    EXPECT_EQ(layer->getLayerName(), "S-Beam");
    EXPECT_EQ(layer->getColor(), 0x3366CC);
    EXPECT_EQ(layer->getCADEdoIds(), (QList<qint64>{4, 2}));
}

TEST(ORVCADClassifiedLayerTest, analysisLayerOfAnotherTypeIsRefused)
{
    EXPECT_EQ(readAnalysis(25, R"({"LayerName":"S-Beam","EdoIDList":[{"EdoID":4}]})"), nullptr);
    EXPECT_EQ(readAnalysis(-1, R"({"LayerName":"S-Beam","EdoIDList":[{"EdoID":4}]})"), nullptr);
}

TEST(ORVCADClassifiedLayerTest, analysisLayerNeedsNameAndIds)
{
    EXPECT_EQ(readAnalysis(15, R"({"EdoIDList":[{"EdoID":4}]})"), nullptr);
    EXPECT_EQ(readAnalysis(15, R"({"LayerName":"beam"})"), nullptr);
    EXPECT_EQ(readAnalysis(15, R"({"LayerName":"beam","EdoIDList":[]})"), nullptr);
    EXPECT_EQ(readAnalysis(15, R"({"LayerName":"beam","EdoIDList":{"EdoID":4}})"), nullptr);
    EXPECT_EQ(readAnalysis(15, "{}"), nullptr);
}

TEST(ORVCADClassifiedLayerTest, analysisIdThatIsNoneReadsAsMinusOne)
{
    const Layer layer = readAnalysis(
        15, R"({"LayerName":"beam","EdoIDList":[{"EdoID":5000000000},{},7,{"EdoID":"4"},{"EdoID":1.5},{"EdoID":4}]})");
    ASSERT_NE(layer, nullptr);
    EXPECT_EQ(layer->getCADEdoIds(), (QList<qint64>{-1, -1, -1, -1, -1, 4}));
}

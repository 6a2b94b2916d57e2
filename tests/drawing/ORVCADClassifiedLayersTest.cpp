#include "drawing/ORVCADClassifiedLayers.h"

#include "DrawingJson.h"

#include <gmock/gmock.h>

#include <memory>

using namespace drawing_test;

namespace {

using Group = std::unique_ptr<ORVCADClassifiedLayers>;

ORVCADClassifiedLayer *newLayer(const char *name, const QList<qint64> &ids = {})
{
    auto *layer = new ORVCADClassifiedLayer(QString::fromUtf8(name));
    layer->getCADEdoIds() = ids;
    return layer;
}

Group readOwn(const char *text) { return Group(ORVCADClassifiedLayers::fromJson(object(text))); }

Group readAnalysis(int type, const char *text, const char *drawing = "plan")
{
    return Group(ORVCADClassifiedLayers::fromHBXJson(QString::fromUtf8(drawing), type, object(text)));
}

/** Two layers of one name, and one that stands apart, as drawing analysis tells of a type. */
QByteArray twiceOneLayer(const char *key, const char *word)
{
    return QByteArray(R"({"KEY":[{"LayerName":"WORD-1","EdoIDList":[{"EdoID":5},{"EdoID":3}]},
                                 {"LayerName":"WORD-2","EdoIDList":[{"EdoID":8}]},
                                 {"LayerName":"WORD-1","EdoIDList":[{"EdoID":1},{"EdoID":5}]}]})")
        .replace("KEY", key)
        .replace("WORD", word);
}

} // namespace

TEST(ORVCADClassifiedLayersTest, freshGroupHasDrawingAndTypeAndNoLayers)
{
    ORVCADClassifiedLayers group(QStringLiteral("plan"), 15);
    EXPECT_EQ(group.getDrawingName(), "plan");
    EXPECT_EQ(group.getElementType(), 15);
    EXPECT_TRUE(group.getClassifiedLayers().isEmpty());
    EXPECT_TRUE(group.getLayersName().isEmpty());
    EXPECT_EQ(group.getClassifiedLayer(QString()), nullptr);
    group.setDrawingName(QStringLiteral("other"));
    group.setElementType(25);
    EXPECT_EQ(group.getDrawingName(), "other");
    EXPECT_EQ(group.getElementType(), 25);
}

TEST(ORVCADClassifiedLayersTest, firstLayerOfANameIsFound)
{
    ORVCADClassifiedLayers group(QStringLiteral("plan"), 15);
    auto *first = newLayer("a");
    group.add(first);
    group.add(newLayer("A"));
    group.add(newLayer("a"));
    EXPECT_EQ(group.getClassifiedLayer(QStringLiteral("a")), first);
    EXPECT_EQ(group.getClassifiedLayer(QStringLiteral("b")), nullptr);
    EXPECT_EQ(group.getLayersName(), (QStringList{"a", "A", "a"}));
}

TEST(ORVCADClassifiedLayersTest, listThatIsHandedOutIsTheGroupsOwn)
{
    ORVCADClassifiedLayers group(QStringLiteral("plan"), 15);
    auto *layer = newLayer("a");
    group.getClassifiedLayers().append(layer);
    EXPECT_EQ(group.getClassifiedLayer(QStringLiteral("a")), layer);
}

TEST(ORVCADClassifiedLayersTest, copyHoldsTheVerySameLayers)
{
    ORVCADClassifiedLayers group(QStringLiteral("plan"), 15);
    group.add(newLayer("a"));
    ORVCADClassifiedLayers copy = group;
    EXPECT_EQ(copy.getClassifiedLayers(), group.getClassifiedLayers());
    copy.getClassifiedLayers().clear(); // one of the two deletes them
}

TEST(ORVCADClassifiedLayersTest, drawingTypeNameAndLayersAreWritten)
{
    ORVCADClassifiedLayers group(QStringLiteral("plan"), 15);
    group.add(newLayer("a", {1, 2}));
    group.add(nullptr);
    group.add(newLayer("b"));
    EXPECT_EQ(QString::fromUtf8(text(group.toJson())),
              R"({"DrawingName":"plan","ElementType":"梁",)"
              R"("Layers":[{"CADEdoIds":[1,2],"LayerName":"a"},{"CADEdoIds":[],"LayerName":"b"}]})");
}

TEST(ORVCADClassifiedLayersTest, nullLayerIsInNoListOfNamesAndFoundByNone)
{
    ORVCADClassifiedLayers group(QStringLiteral("plan"), 15);
    group.add(nullptr);
    group.add(newLayer("b"));
    EXPECT_EQ(group.getLayersName(), QStringList{"b"});
    EXPECT_NE(group.getClassifiedLayer(QStringLiteral("b")), nullptr);
    EXPECT_EQ(group.getClassifiedLayer(QString()), nullptr);
}

TEST(ORVCADClassifiedLayersTest, unknownTypeIsWrittenWithoutName)
{
    EXPECT_EQ(ORVCADClassifiedLayers(QStringLiteral("plan"), 9).toJson().value("ElementType"), QJsonValue(""));
}

TEST(ORVCADClassifiedLayersTest, whatIsWrittenIsRefusedForWantOfAKeyThatNobodyWrites)
{
    ORVCADClassifiedLayers group(QStringLiteral("plan"), 15);
    group.add(newLayer("a", {1}));
    QJsonObject written = group.toJson();
    EXPECT_EQ(Group(ORVCADClassifiedLayers::fromJson(written)), nullptr);

    written.insert("ClassifiedLayers", QJsonValue());
    const Group back(ORVCADClassifiedLayers::fromJson(written));
    ASSERT_NE(back, nullptr);
    EXPECT_EQ(back->getDrawingName(), "plan");
    EXPECT_EQ(back->getLayersName(), QStringList{"a"});
}

TEST(ORVCADClassifiedLayersTest, layersComeFromLayersNotFromTheKeyThatIsDemanded)
{
    const Group group = readOwn(R"({"DrawingName":"plan","ElementType":0,
        "ClassifiedLayers":[{"LayerName":"wrong","CADEdoIds":[1]}],
        "Layers":[{"LayerName":"right","CADEdoIds":[1]}]})");
    ASSERT_NE(group, nullptr);
    EXPECT_EQ(group->getLayersName(), QStringList{"right"});
}

TEST(ORVCADClassifiedLayersTest, drawingTypeAndTheDemandedKeyAreRequiredAndLayersAreNot)
{
    const QJsonObject whole = object(R"({"DrawingName":"plan","ElementType":0,"ClassifiedLayers":1})");
    EXPECT_NE(Group(ORVCADClassifiedLayers::fromJson(whole)), nullptr);
    for (const char *key : {"DrawingName", "ElementType", "ClassifiedLayers"}) {
        QJsonObject json = whole;
        json.remove(key);
        EXPECT_EQ(Group(ORVCADClassifiedLayers::fromJson(json)), nullptr) << key;
    }
}

TEST(ORVCADClassifiedLayersTest, typeIsReadAsTheCodeOfAOneCharacterName)
{
    const auto typeRead = [](const QJsonValue &type) {
        const Group group(
            ORVCADClassifiedLayers::fromJson({{"DrawingName", "p"}, {"ElementType", type}, {"ClassifiedLayers", 0}}));
        return group->getElementType();
    };
    EXPECT_EQ(typeRead(0x6881), 15); // 梁
    EXPECT_EQ(typeRead(0x67F1), 25); // 柱
    EXPECT_EQ(typeRead(0x95E8), 4);  // 门
    EXPECT_EQ(typeRead(15), -1);
    EXPECT_EQ(typeRead(QStringLiteral("梁")), -1); // the name that is written reads as character 0
    EXPECT_EQ(typeRead(0x10000 + 0x6881), -1);
    EXPECT_EQ(typeRead(-1), -1);
    EXPECT_EQ(typeRead(1e300), -1);
    EXPECT_EQ(typeRead(QJsonValue()), -1);
}

TEST(ORVCADClassifiedLayersTest, layerThatIsRefusedIsLeftOut)
{
    const Group group = readOwn(R"({"DrawingName":"plan","ElementType":0,"ClassifiedLayers":0,"Layers":
        [{"LayerName":"a","CADEdoIds":[1]},{"LayerName":"","CADEdoIds":[1]},7,{"LayerName":"b"},
         {"LayerName":"c","CADEdoIds":[]}]})");
    ASSERT_NE(group, nullptr);
    EXPECT_EQ(group->getLayersName(), (QStringList{"a", "c"}));
}

TEST(ORVCADClassifiedLayersTest, analysisFormIsReadFromTheKeyOfItsType)
{
    const Group group = readAnalysis(25, R"({"etBeam":[{"LayerName":"beam","EdoIDList":[{"EdoID":1}]}],
                                             "etColumn":[{"LayerName":"S-COLU","EdoIDList":[{"EdoID":2}]}]})");
    ASSERT_NE(group, nullptr);
    EXPECT_EQ(group->getDrawingName(), "plan");
    EXPECT_EQ(group->getElementType(), 25);
    EXPECT_EQ(group->getLayersName(), QStringList{"S-COLU"});
    EXPECT_EQ(group->getClassifiedLayers().at(0)->getColor(), 0xA61E4D);
}

TEST(ORVCADClassifiedLayersTest, fileNameTakesThePlaceOfTheDrawingName)
{
    const char *layers = R"("etBeam":[{"LayerName":"beam","EdoIDList":[{"EdoID":1}]}]})";
    EXPECT_EQ(readAnalysis(15, QByteArray("{").append(layers))->getDrawingName(), "plan");
    EXPECT_EQ(readAnalysis(15, QByteArray(R"({"FileName":"S-01",)").append(layers))->getDrawingName(), "S-01");
    EXPECT_EQ(readAnalysis(15, QByteArray(R"({"FileName":7,)").append(layers))->getDrawingName(), "");
}

TEST(ORVCADClassifiedLayersTest, analysisFormWithoutTheKeyOfItsTypeIsRefused)
{
    EXPECT_EQ(readAnalysis(15, R"({"etColumn":[{"LayerName":"beam","EdoIDList":[{"EdoID":1}]}]})"), nullptr);
    EXPECT_EQ(readAnalysis(-1, R"({"":[{"LayerName":"beam","EdoIDList":[{"EdoID":1}]}]})"), nullptr);
}

TEST(ORVCADClassifiedLayersTest, analysisLayersOfAnotherTypeAreDropped)
{
    const Group group = readAnalysis(15, R"({"etBeam":[{"LayerName":"column","EdoIDList":[{"EdoID":1}]}, 7,
        {"LayerName":"beam","EdoIDList":[{"EdoID":2}]}, {"LayerName":"beam 2","EdoIDList":[]}]})");
    ASSERT_NE(group, nullptr);
    EXPECT_EQ(group->getLayersName(), QStringList{"beam"});
}

TEST(ORVCADClassifiedLayersTest, groupWithoutLayersLeftIsRefused)
{
    EXPECT_EQ(readAnalysis(15, R"({"etBeam":[{"LayerName":"column","EdoIDList":[{"EdoID":1}]}]})"), nullptr);
    EXPECT_EQ(readAnalysis(15, R"({"etBeam":[]})"), nullptr);
    EXPECT_EQ(readAnalysis(15, R"({"etBeam":{}})"), nullptr);
}

TEST(ORVCADClassifiedLayersTest, layersOfOneNameAreOneForType74)
{
    const Group group = readAnalysis(74, twiceOneLayer("etAxisGrid", "axis"));
    ASSERT_NE(group, nullptr);
    EXPECT_EQ(group->getLayersName(), (QStringList{"axis-1", "axis-2"}));
    EXPECT_EQ(group->getClassifiedLayers().at(0)->getCADEdoIds(), (QList<qint64>{5, 3, 1, 5}));
    EXPECT_EQ(group->getClassifiedLayers().at(1)->getCADEdoIds(), (QList<qint64>{8}));
}

TEST(ORVCADClassifiedLayersTest, layersOfOneNameStandSideBySideForEveryOtherType)
{
    const Group group = readAnalysis(15, twiceOneLayer("etBeam", "beam"));
    ASSERT_NE(group, nullptr);
    EXPECT_EQ(group->getLayersName(), (QStringList{"beam-1", "beam-2", "beam-1"}));
    EXPECT_EQ(group->getClassifiedLayer(QStringLiteral("beam-1")), group->getClassifiedLayers().at(0));
    EXPECT_EQ(group->getClassifiedLayers().at(0)->getCADEdoIds(), (QList<qint64>{5, 3}));
}

TEST(ORVCADClassifiedLayersTest, hundredThousandLayersAreMergedWithoutAWalkForEach)
{
    constexpr int kLayers = 100000;
    QJsonArray layers;
    for (int i = 0; i < kLayers; ++i)
        layers.append(QJsonObject{{"LayerName", QStringLiteral("axis %1").arg(i % (kLayers / 2))},
                                  {"EdoIDList", QJsonArray{QJsonObject{{"EdoID", i}}}}});
    const Group group(ORVCADClassifiedLayers::fromHBXJson(QString(), 74, {{"etAxisGrid", layers}}));
    ASSERT_NE(group, nullptr);
    EXPECT_EQ(group->getClassifiedLayers().size(), kLayers / 2);
    EXPECT_EQ(group->getClassifiedLayers().last()->getCADEdoIds(), (QList<qint64>{49999, 99999}));
}

#include "IdentifyInputModel/Wall/ORVCADWallBrickDataOutputModel.h"

#include "IdentifyInputModel/Wall/WallFixture.h"

namespace {

using Model = ORVCADWallBrickDataOutputModel;
using Element = ORVCADCloudEntBrickWallStruct;

IdentifyResultData pieceOf(double width)
{
    IdentifyResultData piece;
    piece.sWidth = width;
    return piece;
}

/** A model with one element of that name and two pieces, 100 and 200 wide. */
Element *fill(Model &model, const std::wstring &name = L"Q1")
{
    auto *element = new Element;
    element->entName = name;
    element->width = 200;
    element->floorCode = L"2";
    element->region = L"House";
    model.setBrickWallIdentifyData(element, pieceOf(100));
    model.setBrickWallIdentifyData(element, pieceOf(200));
    return element;
}

Model::Walls wallsOf(const Model &model)
{
    Model::Walls walls;
    model.getBrickWallIdentifyData(walls);
    return walls;
}

TEST(ORVCADWallBrickDataOutputModelTest, piecesAreAppendedToTheListOfTheirElement)
{
    Model model;
    Element *element = fill(model);
    const Model::Walls walls = wallsOf(model);
    ASSERT_EQ(walls.size(), 1U);
    EXPECT_EQ(walls.begin()->first, element);
    ASSERT_EQ(walls.begin()->second.size(), 2U);
    EXPECT_EQ(walls.begin()->second.front().sWidth, 100);
    EXPECT_EQ(walls.begin()->second.back().sWidth, 200);
}

TEST(ORVCADWallBrickDataOutputModelTest, modelKeepsACopyOfThePiece)
{
    Model model;
    IdentifyResultData piece = pieceOf(100);
    model.setBrickWallIdentifyData(new Element, piece);
    piece.sWidth = 300;
    EXPECT_EQ(wallsOf(model).begin()->second.front().sWidth, 100);
}

TEST(ORVCADWallBrickDataOutputModelTest, getReplacesTheListsOfItsElementsAndKeepsOtherEntries)
{
    Model model;
    Element *element = fill(model);
    Element other;
    Model::Walls walls{{element, {pieceOf(1), pieceOf(2), pieceOf(3)}}, {&other, {pieceOf(4)}}};
    model.getBrickWallIdentifyData(walls);
    EXPECT_EQ(walls.size(), 2U);
    EXPECT_EQ(walls[element].size(), 2U);
    EXPECT_EQ(walls[&other].size(), 1U);
}

TEST(ORVCADWallBrickDataOutputModelTest, savesToJsonUnderTheGivenKey)
{
    Model model;
    fill(model);
    QJsonObject json{{"other", 1}};
    model.saveToJson("ElementsAndEdos", &json);
    EXPECT_EQ(json["other"], 1);
    const QJsonObject document = json["ElementsAndEdos"].toObject();
    EXPECT_EQ(document.keys(), (QStringList{"BrickWallIdentifyData"}));
    const QJsonObject map = document["BrickWallIdentifyData"].toObject();
    EXPECT_EQ(map.keys(), (QStringList{"key_0", "value_0"}));
    EXPECT_EQ(map["key_0"].toObject()["entName"], "Q1");
    EXPECT_EQ(map["key_0"].toObject()["floorCode"], "2");
    ASSERT_EQ(map["value_0"].toArray().size(), 2);
    EXPECT_EQ(map["value_0"].toArray()[1].toObject()["sWidth"], "200");
}

TEST(ORVCADWallBrickDataOutputModelTest, nullObjectIsLeftAlone) { Model().saveToJson("key", nullptr); }

TEST(ORVCADWallBrickDataOutputModelTest, jsonTextReadsBackWhole)
{
    Model model;
    fill(model);
    std::wstring text;
    model.saveToJson(text);
    Model read;
    read.loadFromJson(text);
    const Model::Walls walls = wallsOf(read);
    ASSERT_EQ(walls.size(), 1U);
    EXPECT_EQ(walls.begin()->first->entName, L"Q1");
    EXPECT_EQ(walls.begin()->first->width, 200);
    EXPECT_EQ(walls.begin()->first->region, L"House");
    EXPECT_EQ(walls.begin()->second.size(), 2U);
}

TEST(ORVCADWallBrickDataOutputModelTest, xmlTextReadsBackWholeUnlikeTheInputModels)
{
    Model model;
    fill(model);
    std::wstring text;
    model.saveToXml(text);
    Model read;
    read.loadFromXml(text);
    const Model::Walls walls = wallsOf(read);
    ASSERT_EQ(walls.size(), 1U);
    EXPECT_EQ(walls.begin()->first->floorCode, L"2");
    EXPECT_EQ(walls.begin()->second.size(), 2U);
}

TEST(ORVCADWallBrickDataOutputModelTest, secondSegmentOfAReplyIsLostOnReading)
{
    Model model;
    IdentifyResultData piece;
    piece.sSegmentEntityDataList = {{1, 2}, {3}};
    model.setBrickWallIdentifyData(new Element, piece);
    std::wstring text;
    model.saveToJson(text);
    Model read;
    read.loadFromJson(text);
    const Model::Walls walls = wallsOf(read);
    EXPECT_EQ(walls.begin()->second.front().sSegmentEntityDataList, (std::list<std::vector<int>>{{1, 2, 0}}));
}

TEST(ORVCADWallBrickDataOutputModelTest, textThatIsNoDocumentLeavesTheModelAsItIs)
{
    Model model;
    fill(model);
    for (const wchar_t *text : {L"", L"no document", L"{\"BrickWallIdentifyData\": ", L"<XmlRoot>"}) {
        model.loadFromJson(text);
        model.loadFromXml(text);
    }
    EXPECT_EQ(wallsOf(model).size(), 1U);
}

TEST(ORVCADWallBrickDataOutputModelTest, loadingTwiceDoublesTheWalls)
{
    Model model;
    fill(model);
    std::wstring text;
    model.saveToJson(text);
    model.loadFromJson(text);
    model.loadFromJson(text);
    EXPECT_EQ(wallsOf(model).size(), 3U);
}

TEST(ORVCADWallBrickDataOutputModelTest, wallsOfADocumentStandInTheOrderOfTheirRecords)
{
    QJsonObject map;
    for (int i = 0; i < 50; ++i) {
        map[QStringLiteral("key_%1").arg(i)] = QJsonObject{{"edoId", QString::number(149 - i)}};
        map[QStringLiteral("value_%1").arg(i)] = QJsonArray();
    }
    const QByteArray json = QJsonDocument(QJsonObject{{"BrickWallIdentifyData", map}}).toJson();
    Model model;
    model.loadFromJson(QString::fromUtf8(json).toStdWString());
    qint64 expected = 100;
    for (const auto &wall : wallsOf(model))
        EXPECT_EQ(wall.first->edoId, expected++);
    EXPECT_EQ(expected, 150);
}

TEST(ORVCADWallBrickDataOutputModelTest, nullElementIsKeptAndNotWritten)
{
    Model model;
    model.setBrickWallIdentifyData(nullptr, {});
    QJsonObject json;
    model.saveToJson("key", &json);
    EXPECT_EQ(json["key"].toObject()["BrickWallIdentifyData"], QJsonObject());
}

} // namespace

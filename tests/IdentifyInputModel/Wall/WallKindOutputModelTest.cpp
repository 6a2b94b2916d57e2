#include "IdentifyInputModel/Wall/WallKindOutputModel.h"

#include "IdentifyInputModel/Wall/ORVCADWallBrickDataOutputModel.h"
#include "IdentifyInputModel/Wall/ORVCADWallForceDataOutputModel.h"
#include "IdentifyInputModel/Wall/WallFixture.h"

#include <QJsonArray>

#include <type_traits>

namespace {

using Brick = ORVCADWallBrickDataOutputModel;
using Force = ORVCADWallForceDataOutputModel;

void set(Brick &model, ORVCADCloudEntBrickWallStruct *element, const IdentifyResultData &piece)
{
    model.setBrickWallIdentifyData(element, piece);
}
void set(Force &model, ORVCADCloudEntForceWallStruct *element, const IdentifyResultData &piece)
{
    model.setForceWallIdentifyData(element, piece);
}
void getInto(const Brick &model, Brick::Walls &walls) { model.getBrickWallIdentifyData(walls); }
void getInto(const Force &model, Force::Walls &walls) { model.getForceWallIdentifyData(walls); }
QString key(const Brick * /*kind*/) { return "BrickWallIdentifyData"; }
QString key(const Force * /*kind*/) { return "ForceWallIdentifyData"; }

template <typename Model> using Walls = typename Model::Walls;
template <typename Model> using ElementOf = std::remove_pointer_t<typename Walls<Model>::key_type>;

IdentifyResultData pieceOf(double width)
{
    IdentifyResultData piece;
    piece.sWidth = width;
    return piece;
}

/** A model with one element of that name and two pieces, 100 and 200 wide. */
template <typename Model> ElementOf<Model> *fill(Model &model, const std::wstring &name = L"Q1")
{
    auto *element = new ElementOf<Model>;
    element->entName = name;
    element->width = 200;
    element->floorCode = L"2";
    element->region = L"House";
    set(model, element, pieceOf(100));
    set(model, element, pieceOf(200));
    return element;
}

template <typename Model> Walls<Model> wallsOf(const Model &model)
{
    Walls<Model> walls;
    getInto(model, walls);
    return walls;
}

/** What holds for the output models of both kinds of walls. */
template <typename Model> class WallKindOutputModelTest : public testing::Test
{};

struct KindNames
{
    template <typename Model> static std::string GetName(int /*number*/)
    {
        return std::is_same_v<Model, Brick> ? "Brick" : "Force";
    }
};

using Kinds = testing::Types<Brick, Force>;
TYPED_TEST_SUITE(WallKindOutputModelTest, Kinds, KindNames);

TYPED_TEST(WallKindOutputModelTest, isAnOutputModelWithAVirtualDestructorThatCannotBeCopied)
{
    EXPECT_TRUE((std::is_base_of_v<ORVCADWallDataOutputModel, TypeParam>));
    EXPECT_TRUE(std::has_virtual_destructor_v<TypeParam>);
    EXPECT_FALSE(std::is_copy_constructible_v<TypeParam>);
    EXPECT_FALSE(std::is_copy_assignable_v<TypeParam>);
}

TYPED_TEST(WallKindOutputModelTest, piecesAreAppendedToTheListOfTheirElement)
{
    TypeParam model;
    ElementOf<TypeParam> *element = fill(model);
    const Walls<TypeParam> walls = wallsOf(model);
    ASSERT_EQ(walls.size(), 1U);
    EXPECT_EQ(walls.begin()->first, element);
    ASSERT_EQ(walls.begin()->second.size(), 2U);
    EXPECT_EQ(walls.begin()->second.front().sWidth, 100);
    EXPECT_EQ(walls.begin()->second.back().sWidth, 200);
}

TYPED_TEST(WallKindOutputModelTest, modelKeepsACopyOfThePiece)
{
    TypeParam model;
    IdentifyResultData piece = pieceOf(100);
    set(model, new ElementOf<TypeParam>, piece);
    piece.sWidth = 300;
    EXPECT_EQ(wallsOf(model).begin()->second.front().sWidth, 100);
}

TYPED_TEST(WallKindOutputModelTest, getReplacesTheListsOfItsElementsAndKeepsOtherEntries)
{
    TypeParam model;
    ElementOf<TypeParam> *element = fill(model);
    ElementOf<TypeParam> other;
    Walls<TypeParam> walls{{element, {pieceOf(1), pieceOf(2), pieceOf(3)}}, {&other, {pieceOf(4)}}};
    getInto(model, walls);
    EXPECT_EQ(walls.size(), 2U);
    EXPECT_EQ(walls[element].size(), 2U);
    EXPECT_EQ(walls[&other].size(), 1U);
}

TYPED_TEST(WallKindOutputModelTest, savesToJsonUnderTheGivenKey)
{
    TypeParam model;
    fill(model);
    QJsonObject json{{"other", 1}};
    model.saveToJson("ElementsAndEdos", &json);
    EXPECT_EQ(json["other"], 1);
    const QJsonObject document = json["ElementsAndEdos"].toObject();
    EXPECT_EQ(document.keys(), (QStringList{key(static_cast<TypeParam *>(nullptr))}));
    const QJsonObject map = document[key(static_cast<TypeParam *>(nullptr))].toObject();
    EXPECT_EQ(map.keys(), (QStringList{"key_0", "value_0"}));
    EXPECT_EQ(map["key_0"].toObject()["entName"], "Q1");
    EXPECT_EQ(map["key_0"].toObject()["floorCode"], "2");
    ASSERT_EQ(map["value_0"].toArray().size(), 2);
    EXPECT_EQ(map["value_0"].toArray()[1].toObject()["sWidth"], "200");
}

TYPED_TEST(WallKindOutputModelTest, nullObjectIsLeftAlone) { TypeParam().saveToJson("key", nullptr); }

TYPED_TEST(WallKindOutputModelTest, jsonTextReadsBackWhole)
{
    TypeParam model;
    fill(model);
    std::wstring text;
    model.saveToJson(text);
    TypeParam read;
    read.loadFromJson(text);
    const Walls<TypeParam> walls = wallsOf(read);
    ASSERT_EQ(walls.size(), 1U);
    EXPECT_EQ(walls.begin()->first->entName, L"Q1");
    EXPECT_EQ(walls.begin()->first->width, 200);
    EXPECT_EQ(walls.begin()->first->region, L"House");
    EXPECT_EQ(walls.begin()->second.size(), 2U);
}

TYPED_TEST(WallKindOutputModelTest, xmlTextReadsBackWholeUnlikeTheInputModels)
{
    TypeParam model;
    fill(model);
    std::wstring text;
    model.saveToXml(text);
    TypeParam read;
    read.loadFromXml(text);
    const Walls<TypeParam> walls = wallsOf(read);
    ASSERT_EQ(walls.size(), 1U);
    EXPECT_EQ(walls.begin()->first->floorCode, L"2");
    EXPECT_EQ(walls.begin()->second.size(), 2U);
}

TYPED_TEST(WallKindOutputModelTest, secondSegmentOfAReplyIsLostOnReading)
{
    TypeParam model;
    IdentifyResultData piece;
    piece.sSegmentEntityDataList = {{1, 2}, {3}};
    set(model, new ElementOf<TypeParam>, piece);
    std::wstring text;
    model.saveToJson(text);
    TypeParam read;
    read.loadFromJson(text);
    const Walls<TypeParam> walls = wallsOf(read);
    EXPECT_EQ(walls.begin()->second.front().sSegmentEntityDataList, (std::list<std::vector<int>>{{1, 2, 0}}));
}

TYPED_TEST(WallKindOutputModelTest, textThatIsNoDocumentLeavesTheModelAsItIs)
{
    TypeParam model;
    fill(model);
    for (const wchar_t *text : {L"", L"no document", L"{\"key_0\": ", L"<XmlRoot>"}) {
        model.loadFromJson(text);
        model.loadFromXml(text);
    }
    EXPECT_EQ(wallsOf(model).size(), 1U);
}

TYPED_TEST(WallKindOutputModelTest, loadingTwiceDoublesTheWalls)
{
    TypeParam model;
    fill(model);
    std::wstring text;
    model.saveToJson(text);
    model.loadFromJson(text);
    model.loadFromJson(text);
    EXPECT_EQ(wallsOf(model).size(), 3U);
}

TYPED_TEST(WallKindOutputModelTest, wallsOfADocumentStandInTheOrderOfTheirRecords)
{
    QJsonObject map;
    for (int i = 0; i < 50; ++i) {
        map[QStringLiteral("key_%1").arg(i)] = QJsonObject{{"edoId", QString::number(149 - i)}};
        map[QStringLiteral("value_%1").arg(i)] = QJsonArray();
    }
    const QByteArray json = QJsonDocument(QJsonObject{{key(static_cast<TypeParam *>(nullptr)), map}}).toJson();
    TypeParam model;
    model.loadFromJson(QString::fromUtf8(json).toStdWString());
    qint64 expected = 100;
    for (const auto &wall : wallsOf(model))
        EXPECT_EQ(wall.first->edoId, expected++);
    EXPECT_EQ(expected, 150);
}

TYPED_TEST(WallKindOutputModelTest, nullElementIsKeptAndNotWritten)
{
    TypeParam model;
    set(model, nullptr, {});
    QJsonObject json;
    model.saveToJson("key", &json);
    EXPECT_EQ(json["key"].toObject()[key(static_cast<TypeParam *>(nullptr))], QJsonObject());
}

} // namespace

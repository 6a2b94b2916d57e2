#include "IdentifyInputModel/Wall/WallKindInputModel.h"

#include "IdentifyInputModel/Wall/WallInputFixture.h"
#include "encoding/LocaleCodec.h"

#include <QJsonArray>

#include <type_traits>

using namespace wallinput;

namespace {

/** What holds for the input models of both kinds of walls. */
template <typename Model> class WallKindInputModelTest : public testing::Test
{
protected:
    static QString key() { return wallKey(static_cast<Model *>(nullptr)); }
    /** A text for brick walls as the kind has it. */
    static std::wstring ofKind(std::wstring text)
    {
        static const std::wstring brick = L"CadEntBrickWallDataInfo";
        return text.replace(text.find(brick), brick.size(), key().toStdWString());
    }
    static std::size_t lineCount(const Model &model, const wchar_t *layer)
    {
        ORVCADWallDataInputModel::DrawingLines lines;
        model.getCadLineEdoDataInfo(layer, lines);
        return lines.size();
    }
};

struct KindNames
{
    template <typename Model> static std::string GetName(int /*number*/)
    {
        return std::is_same_v<Model, Brick> ? "Brick" : "Force";
    }
};

using Kinds = testing::Types<Brick, Force>;
TYPED_TEST_SUITE(WallKindInputModelTest, Kinds, KindNames);

TYPED_TEST(WallKindInputModelTest, listIsReplacedAndGivenAsACopy)
{
    auto model = filled<TypeParam>();
    wallsOf(model).clear();
    EXPECT_EQ(wallsOf(model).size(), 1U);
    setWalls(model, {});
    EXPECT_TRUE(wallsOf(model).empty());
    EXPECT_EQ(model.identifyType(), 1);
    EXPECT_TRUE((std::is_base_of_v<ORVCADWallDataInputModel, TypeParam>));
    EXPECT_TRUE(std::is_copy_assignable_v<TypeParam>);
    EXPECT_TRUE(std::has_virtual_destructor_v<TypeParam>);
}

TYPED_TEST(WallKindInputModelTest, jsonHasTheWallsAndTheElevenKeysAndNeitherFloorNorDrawing)
{
    EXPECT_EQ(objectOf(jsonOf(filled<TypeParam>())).keys(), keys<TypeParam>());
}

TYPED_TEST(WallKindInputModelTest, jsonIsIndented)
{
    EXPECT_EQ(jsonOf(TypeParam(kType)), this->ofKind(LR"({
    "CadEntBrickWallDataInfo": [
    ],
    "CadFilterTextEdoDataInfo": [
    ],
    "CadLayerInfo": {
        "": ""
    },
    "CadLineEdoDataInfo": {
    },
    "CadTextEdoDataInfo": {
    },
    "CurFloorModelAxisLineEntDataInfo": [
    ],
    "CurFloorModelBrickLineEntDataInfo": [
    ],
    "CurFloorModelForceLineEntDataInfo": [
    ],
    "CurFloorModelPointEntDataInfo": [
    ],
    "DWGXBaseOptions": {
        "maxOpeningWidth": "0",
        "maxWallLineWidth": "0",
        "wallAndWindowExtenHRange": "0",
        "wallAndWindowExtenVRange": "0",
        "wallEndExtensionRange": "0",
        "wallLineWidthDeviationRange": "0"
    },
    "IdentifyType": {
        "identifyTpe": "1"
    },
    "ProjectName": {
        "projectName": ""
    }
}
)"));
}

TYPED_TEST(WallKindInputModelTest, xmlHasTheWallsFirstAndThenTheKeysInTheOrderOfSaving)
{
    EXPECT_EQ(xmlOf(TypeParam(kType)), this->ofKind(LR"(<?xml version="1.0" encoding="GB2312"?>
<XmlRoot>
 <CadEntBrickWallDataInfo/>
 <CurFloorModelForceLineEntDataInfo/>
 <CurFloorModelBrickLineEntDataInfo/>
 <CurFloorModelAxisLineEntDataInfo/>
 <CurFloorModelPointEntDataInfo/>
 <CadLineEdoDataInfo/>
 <CadTextEdoDataInfo/>
 <CadFilterTextEdoDataInfo/>
 <CadLayerInfo/>
 <DWGXBaseOptions maxOpeningWidth="0" maxWallLineWidth="0" wallLineWidthDeviationRange="0" wallEndExtensionRange="0" wallAndWindowExtenVRange="0" wallAndWindowExtenHRange="0"/>
 <IdentifyType identifyTpe="1"/>
 <ProjectName projectName=""/>
</XmlRoot>
)"));
}

TYPED_TEST(WallKindInputModelTest, objectGetsTheDocumentAsTheMemberWithTheEmptyName)
{
    QJsonObject object{{"other", 1}};
    TypeParam(kType).saveToJson(&object);
    EXPECT_EQ(object.keys(), (QStringList{"", "other"}));
    const QJsonObject document = object.value("").toObject();
    EXPECT_EQ(document.keys(), keys<TypeParam>());
    EXPECT_EQ(document.value(this->key()), QJsonArray());
    EXPECT_EQ(document, objectOf(jsonOf(TypeParam(kType))));
}

TYPED_TEST(WallKindInputModelTest, nullObjectIsLeftAlone)
{
    TypeParam(kType).saveToJson(static_cast<QJsonObject *>(nullptr));
}

TYPED_TEST(WallKindInputModelTest, jsonReadsBack)
{
    TypeParam model(EORVCADIdentifyType(7));
    model.loadFromJson(jsonOf(filled<TypeParam>()));
    ASSERT_EQ(wallsOf(model).size(), 1U);
    EXPECT_EQ(wallsOf(model).front().entName, L"墙1");
    EXPECT_EQ(model.getCurFloorModelAxisLineEntDataInfo().size(), 1U);
    EXPECT_EQ(this->lineCount(model, L"PLAN|WALL"), 1U);
    EXPECT_EQ(model.getCadLayerInfo(), (std::map<int, std::wstring>{{4, L"轴线"}}));
    EXPECT_EQ(model.getProjectName(), L"Tower");
    EXPECT_EQ(model.identifyType(), 7);
    EXPECT_EQ(model.getFloorName() + model.getFloorCode() + model.getDrawingName(), L""); // not in the document
}

TYPED_TEST(WallKindInputModelTest, loadingTwiceDoublesListsAndReplacesMapEntries)
{
    TypeParam model(kType);
    const std::wstring text = jsonOf(filled<TypeParam>());
    model.loadFromJson(text);
    model.loadFromJson(text);
    EXPECT_EQ(wallsOf(model).size(), 2U);
    EXPECT_EQ(model.getCurFloorModelAxisLineEntDataInfo().size(), 2U);
    EXPECT_EQ(this->lineCount(model, L"PLAN|WALL"), 1U);
    EXPECT_EQ(model.getCadLayerInfo().size(), 1U);
}

TYPED_TEST(WallKindInputModelTest, listsDoNotComeBackFromXmlAndMapsDo)
{
    const LocaleCodec local("GB18030");
    TypeParam model(kType);
    Walls<TypeParam> present(1);
    present.front().width = 9;
    setWalls(model, present);
    model.loadFromXml(xmlOf(filled<TypeParam>()));
    ASSERT_EQ(wallsOf(model).size(), 1U); // unchanged
    EXPECT_EQ(wallsOf(model).front().width, 9);
    EXPECT_TRUE(model.getCurFloorModelAxisLineEntDataInfo().empty());
    EXPECT_EQ(this->lineCount(model, L"PLAN|WALL"), 1U);
    EXPECT_EQ(model.getCadLayerInfo(), (std::map<int, std::wstring>{{4, L"轴线"}}));
    EXPECT_EQ(model.getProjectName(), L"Tower");
}

TYPED_TEST(WallKindInputModelTest, xmlReadInAnUtf8LocaleHasOtherCharacters)
{
    const LocaleCodec local("UTF-8");
    TypeParam saved(kType);
    saved.setCadLayerInfo({{4, L"轴线"}});
    TypeParam model(kType);
    model.loadFromXml(xmlOf(saved));
    EXPECT_EQ(model.getCadLayerInfo(), (std::map<int, std::wstring>{{4, L"杞寸嚎"}}));
}

TYPED_TEST(WallKindInputModelTest, loadFromXmlReadsFloorAndDrawingUnlikeTheBase)
{
    TypeParam model(kType);
    model.loadFromXml(L"<XmlRoot><floorName floorName='F2'/><floorCode floorCode='2'/>"
                      L"<drawingName drawingName='S-01'/></XmlRoot>");
    EXPECT_EQ(model.getFloorName(), L"F2");
    EXPECT_EQ(model.getFloorCode(), L"2");
    EXPECT_EQ(model.getDrawingName(), L"S-01");
}

TYPED_TEST(WallKindInputModelTest, badTextLeavesTheModelAsItIs)
{
    auto model = filled<TypeParam>();
    for (const wchar_t *text : {L"", L"{", L"nonsense", L"<XmlRoot>", L"<!DOCTYPE a><a/>"}) {
        model.loadFromJson(text);
        model.loadFromXml(text);
    }
    EXPECT_EQ(jsonOf(model), jsonOf(filled<TypeParam>()));
    EXPECT_EQ(model.getFloorName(), L"F2");
}

TYPED_TEST(WallKindInputModelTest, truncatedAndGarbledTextsAreSurvived)
{
    for (const bool isXml : {false, true}) {
        const std::wstring text = isXml ? xmlOf(filled<TypeParam>()) : jsonOf(filled<TypeParam>());
        for (std::size_t i = 0; i < text.size(); ++i) {
            std::wstring garbled = text;
            garbled[i] = L"<{\"/:\x1f"[i % 6];
            TypeParam model(kType);
            isXml ? model.loadFromXml(garbled) : model.loadFromJson(garbled);
            isXml ? model.loadFromXml(text.substr(0, i)) : model.loadFromJson(text.substr(0, i));
            EXPECT_EQ(model.identifyType(), 1);
        }
    }
}

} // namespace

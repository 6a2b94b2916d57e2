#include "IdentifyInputModel/Wall/ORVCADWallBrickDataInputModel.h"

#include "IdentifyInputModel/Wall/WallFixture.h"
#include "encoding/LocaleCodec.h"

#include <QJsonArray>

#include <type_traits>

namespace {

using Model = ORVCADWallBrickDataInputModel;

const auto kType = EORVCADIdentifyType(1);

const QStringList kKeys = {"CadEntBrickWallDataInfo",
                           "CadFilterTextEdoDataInfo",
                           "CadLayerInfo",
                           "CadLineEdoDataInfo",
                           "CadTextEdoDataInfo",
                           "CurFloorModelAxisLineEntDataInfo",
                           "CurFloorModelBrickLineEntDataInfo",
                           "CurFloorModelForceLineEntDataInfo",
                           "CurFloorModelPointEntDataInfo",
                           "DWGXBaseOptions",
                           "IdentifyType",
                           "ProjectName"}; // sorted

/** One wall, one axis line, a layer with one line, and all names. */
Model filled()
{
    Model model(kType);
    ORVCADCloudEntBrickWallStruct wall;
    wall.entName = L"墙1";
    wall.width = 200;
    model.setCadEntBrickWallDataInfo({wall});
    model.setCurFloorModelAxisLineEntDataInfo(Model::ModelLines(1));
    model.setCadLineEdoDataInfo(L"PLAN|WALL", Model::DrawingLines(1));
    model.setCadLayerInfo({{4, L"轴线"}});
    model.setProjectName(L"Tower");
    model.setFloorName(L"F2");
    model.setFloorCode(L"2");
    model.setDrawingName(L"S-01");
    return model;
}

std::wstring jsonOf(const Model &model)
{
    std::wstring text = L"old";
    model.saveToJson(text);
    return text;
}

std::wstring xmlOf(const Model &model)
{
    std::wstring text = L"old";
    model.saveToXml(text);
    return text;
}

std::size_t lineCount(const Model &model, const wchar_t *layer)
{
    Model::DrawingLines lines;
    model.getCadLineEdoDataInfo(layer, lines);
    return lines.size();
}

TEST(ORVCADWallBrickDataInputModelTest, listIsReplacedAndGivenAsACopy)
{
    Model model = filled();
    model.getCadEntBrickWallDataInfo().clear();
    EXPECT_EQ(model.getCadEntBrickWallDataInfo().size(), 1U);
    model.setCadEntBrickWallDataInfo({});
    EXPECT_TRUE(model.getCadEntBrickWallDataInfo().empty());
    EXPECT_EQ(model.identifyType(), 1);
    EXPECT_TRUE(std::is_copy_assignable_v<Model>);
    EXPECT_TRUE(std::has_virtual_destructor_v<Model>);
}

TEST(ORVCADWallBrickDataInputModelTest, jsonHasTheWallsAndTheElevenKeysAndNeitherFloorNorDrawing)
{
    EXPECT_EQ(objectOf(jsonOf(filled())).keys(), kKeys);
}

TEST(ORVCADWallBrickDataInputModelTest, jsonIsIndented)
{
    EXPECT_EQ(jsonOf(Model(kType)), LR"({
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
)");
}

TEST(ORVCADWallBrickDataInputModelTest, xmlHasTheWallsFirstAndThenTheKeysInTheOrderOfSaving)
{
    EXPECT_EQ(xmlOf(Model(kType)), LR"(<?xml version="1.0" encoding="GB2312"?>
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
)");
}

TEST(ORVCADWallBrickDataInputModelTest, objectGetsTheDocumentAsTheMemberWithTheEmptyName)
{
    QJsonObject object{{"other", 1}};
    Model(kType).saveToJson(&object);
    EXPECT_EQ(object.keys(), (QStringList{"", "other"}));
    const QJsonObject document = object.value("").toObject();
    EXPECT_EQ(document.keys(), kKeys);
    EXPECT_EQ(document.value("CadEntBrickWallDataInfo"), QJsonArray());
    EXPECT_EQ(document, objectOf(jsonOf(Model(kType))));
}

TEST(ORVCADWallBrickDataInputModelTest, nullObjectIsLeftAlone)
{
    Model(kType).saveToJson(static_cast<QJsonObject *>(nullptr));
}

TEST(ORVCADWallBrickDataInputModelTest, jsonReadsBack)
{
    Model model(EORVCADIdentifyType(7));
    model.loadFromJson(jsonOf(filled()));
    ASSERT_EQ(model.getCadEntBrickWallDataInfo().size(), 1U);
    EXPECT_EQ(model.getCadEntBrickWallDataInfo().front().entName, L"墙1");
    EXPECT_EQ(model.getCurFloorModelAxisLineEntDataInfo().size(), 1U);
    EXPECT_EQ(lineCount(model, L"PLAN|WALL"), 1U);
    EXPECT_EQ(model.getCadLayerInfo(), (std::map<int, std::wstring>{{4, L"轴线"}}));
    EXPECT_EQ(model.getProjectName(), L"Tower");
    EXPECT_EQ(model.identifyType(), 7);
    EXPECT_EQ(model.getFloorName() + model.getFloorCode() + model.getDrawingName(), L""); // not in the document
}

TEST(ORVCADWallBrickDataInputModelTest, loadingTwiceDoublesListsAndReplacesMapEntries)
{
    Model model(kType);
    const std::wstring text = jsonOf(filled());
    model.loadFromJson(text);
    model.loadFromJson(text);
    EXPECT_EQ(model.getCadEntBrickWallDataInfo().size(), 2U);
    EXPECT_EQ(model.getCurFloorModelAxisLineEntDataInfo().size(), 2U);
    EXPECT_EQ(lineCount(model, L"PLAN|WALL"), 1U);
    EXPECT_EQ(model.getCadLayerInfo().size(), 1U);
}

TEST(ORVCADWallBrickDataInputModelTest, listsDoNotComeBackFromXmlAndMapsDo)
{
    const LocaleCodec local("GB18030");
    Model model(kType);
    ORVCADCloudEntBrickWallStruct present;
    present.width = 9;
    model.setCadEntBrickWallDataInfo({present});
    model.loadFromXml(xmlOf(filled()));
    ASSERT_EQ(model.getCadEntBrickWallDataInfo().size(), 1U); // unchanged
    EXPECT_EQ(model.getCadEntBrickWallDataInfo().front().width, 9);
    EXPECT_TRUE(model.getCurFloorModelAxisLineEntDataInfo().empty());
    EXPECT_EQ(lineCount(model, L"PLAN|WALL"), 1U);
    EXPECT_EQ(model.getCadLayerInfo(), (std::map<int, std::wstring>{{4, L"轴线"}}));
    EXPECT_EQ(model.getProjectName(), L"Tower");
}

TEST(ORVCADWallBrickDataInputModelTest, xmlReadInAnUtf8LocaleHasOtherCharacters)
{
    const LocaleCodec local("UTF-8");
    Model saved(kType);
    saved.setCadLayerInfo({{4, L"轴线"}});
    Model model(kType);
    model.loadFromXml(xmlOf(saved));
    EXPECT_EQ(model.getCadLayerInfo(), (std::map<int, std::wstring>{{4, L"杞寸嚎"}}));
}

TEST(ORVCADWallBrickDataInputModelTest, loadFromXmlReadsFloorAndDrawingUnlikeTheBase)
{
    Model model(kType);
    model.loadFromXml(L"<XmlRoot><floorName floorName='F2'/><floorCode floorCode='2'/>"
                      L"<drawingName drawingName='S-01'/></XmlRoot>");
    EXPECT_EQ(model.getFloorName(), L"F2");
    EXPECT_EQ(model.getFloorCode(), L"2");
    EXPECT_EQ(model.getDrawingName(), L"S-01");
}

TEST(ORVCADWallBrickDataInputModelTest, badTextLeavesTheModelAsItIs)
{
    Model model = filled();
    for (const wchar_t *text : {L"", L"{", L"nonsense", L"<XmlRoot>", L"<!DOCTYPE a><a/>"}) {
        model.loadFromJson(text);
        model.loadFromXml(text);
    }
    EXPECT_EQ(jsonOf(model), jsonOf(filled()));
    EXPECT_EQ(model.getFloorName(), L"F2");
}

TEST(ORVCADWallBrickDataInputModelTest, truncatedAndGarbledTextsAreSurvived)
{
    for (const bool isXml : {false, true}) {
        const std::wstring text = isXml ? xmlOf(filled()) : jsonOf(filled());
        for (std::size_t i = 0; i < text.size(); ++i) {
            std::wstring garbled = text;
            garbled[i] = L"<{\"/:\x1f"[i % 6];
            Model model(kType);
            isXml ? model.loadFromXml(garbled) : model.loadFromJson(garbled);
            isXml ? model.loadFromXml(text.substr(0, i)) : model.loadFromJson(text.substr(0, i));
            EXPECT_EQ(model.identifyType(), 1);
        }
    }
}

TEST(ORVCADWallBrickDataInputModelTest, cloudDocumentHasFloorAndDrawingAsWell)
{
    QJsonObject object{{"old", 1}};
    filled().saveToJson_ToCloud(object);
    QStringList keys = kKeys + QStringList{"drawingName", "floorCode", "floorName"};
    EXPECT_EQ(object.keys(), keys); // assigned: what was there is gone
    EXPECT_EQ(compact(object.value("floorCode").toObject()), R"({"floorCode":"2"})");
    EXPECT_EQ(compact(object.value("floorName").toObject()), R"({"floorName":"F2"})");
    EXPECT_EQ(compact(object.value("drawingName").toObject()), R"({"drawingName":"S-01"})");
}

TEST(ORVCADWallBrickDataInputModelTest, cloudDocumentReadsBackWithFloorAndDrawing)
{
    QJsonObject object;
    filled().saveToJson_ToCloud(object);
    Model model(kType);
    model.loadFromJson(QString::fromUtf8(QJsonDocument(object).toJson()).toStdWString());
    EXPECT_EQ(model.getFloorName(), L"F2");
    EXPECT_EQ(model.getFloorCode(), L"2");
    EXPECT_EQ(model.getDrawingName(), L"S-01");
}

} // namespace

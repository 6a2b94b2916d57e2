#include "IdentifyInputModel/Wall/ORVCADWallDataInputModel.h"

#include "IdentifyInputModel/Wall/WallFixture.h"

#include <type_traits>

namespace {

using Model = ORVCADWallDataInputModel;
using Translator = ORVCADInputModelSerialization;

const auto kType = EORVCADIdentifyType(1);

/** Notes the keys in the order in which they are written and read. */
class NotingArchive : public ORVCADFileSerialization
{
public:
    NotingArchive() : ORVCADFileSerialization(QString()) {}
    void writeRecordMap(const QString &key, QMap<QString, QStringList> & /*records*/) override { keys += key; }
    void writeRecordList(const QString &key, const QStringList & /*records*/) override { keys += key; }
    void writeRecord(const QString &key, const QString & /*record*/) override { keys += key; }
    void readRecordMap(const QString &key, QMap<QString, QStringList> & /*records*/) override { keys += key; }
    void readRecordList(const QString &key, QStringList & /*records*/) override { keys += key; }
    void readRecord(const QString &key, QString & /*record*/) override { keys += key; }

    QStringList keys;
};

ORVCADCloudLineEdoInfo lineOf(int id)
{
    ORVCADCloudLineEdoInfo info;
    info.edoId = id;
    return info;
}

const QStringList kSaved = {"CurFloorModelForceLineEntDataInfo",
                            "CurFloorModelBrickLineEntDataInfo",
                            "CurFloorModelAxisLineEntDataInfo",
                            "CurFloorModelPointEntDataInfo",
                            "CadLineEdoDataInfo",
                            "CadTextEdoDataInfo",
                            "CadFilterTextEdoDataInfo",
                            "CadLayerInfo",
                            "DWGXBaseOptions",
                            "IdentifyType",
                            "ProjectName"};

TEST(ORVCADWallDataInputModelTest, startsEmptyButForItsType)
{
    const Model model(EORVCADIdentifyType(3));
    EXPECT_EQ(model.identifyType(), 3);
    EXPECT_TRUE(model.getCurFloorModelBrickLineEntDataInfo().empty());
    EXPECT_TRUE(model.getCurFloorModelForceLineEntDataInfo().empty());
    EXPECT_TRUE(model.getCurFloorModelAxisLineEntDataInfo().empty());
    EXPECT_TRUE(model.getCurFloorModelPointEntDataInfo().empty());
    EXPECT_TRUE(model.getCadFilterTextEdoDataInfo().empty());
    EXPECT_TRUE(model.getCadLayerInfo().empty());
    EXPECT_EQ(model.getProjectName() + model.getFloorName() + model.getFloorCode() + model.getDrawingName(), L"");
    EXPECT_EQ(model.getDWGXBaseOptions().maxOpeningWidth, 0);
}

TEST(ORVCADWallDataInputModelTest, destructorIsVirtualAndModelsCanBeCopied)
{
    EXPECT_TRUE(std::has_virtual_destructor_v<Model>);
    Model model(kType);
    model.setProjectName(L"Tower");
    Model copy(model);
    copy.setProjectName(L"Other");
    EXPECT_EQ(model.getProjectName(), L"Tower");
    model = copy;
    EXPECT_EQ(model.getProjectName(), L"Other");
}

TEST(ORVCADWallDataInputModelTest, settersReplaceAndGettersGiveCopies)
{
    Model model(kType);
    model.setCurFloorModelBrickLineEntDataInfo(Model::ModelLines(1));
    model.setCurFloorModelForceLineEntDataInfo(Model::ModelLines(2));
    model.setCurFloorModelAxisLineEntDataInfo(Model::ModelLines(3));
    model.setCurFloorModelPointEntDataInfo(Model::ModelPoints(4));
    model.setCadFilterTextEdoDataInfo(Model::DrawingTexts(5));
    model.getCurFloorModelBrickLineEntDataInfo().clear();
    EXPECT_EQ(model.getCurFloorModelBrickLineEntDataInfo().size(), 1U);
    EXPECT_EQ(model.getCurFloorModelForceLineEntDataInfo().size(), 2U);
    EXPECT_EQ(model.getCurFloorModelAxisLineEntDataInfo().size(), 3U);
    EXPECT_EQ(model.getCurFloorModelPointEntDataInfo().size(), 4U);
    EXPECT_EQ(model.getCadFilterTextEdoDataInfo().size(), 5U);
    model.setCurFloorModelBrickLineEntDataInfo({});
    EXPECT_TRUE(model.getCurFloorModelBrickLineEntDataInfo().empty());
    ORVCADCloudWalloptionDataStruct options;
    options.maxOpeningWidth = 1500;
    model.setDWGXBaseOptions(options);
    EXPECT_EQ(model.getDWGXBaseOptions().maxOpeningWidth, 1500);
    model.setFloorName(L"a");
    model.setFloorCode(L"b");
    model.setDrawingName(L"c");
    EXPECT_EQ(model.getFloorName() + model.getFloorCode() + model.getDrawingName(), L"abc");
}

TEST(ORVCADWallDataInputModelTest, copiedRecordSharesItsCurve)
{
    Model model(kType);
    ORVCADCloudHBXModelLineEdoStruct record;
    record.worldLine = line(0, 0, 1, 0);
    model.setCurFloorModelAxisLineEntDataInfo({record});
    EXPECT_EQ(model.getCurFloorModelAxisLineEntDataInfo().front().worldLine.get(), record.worldLine.get());
}

TEST(ORVCADWallDataInputModelTest, linesOfALayerAreAppendedToTheList)
{
    Model model(kType);
    model.setCadLineEdoDataInfo(L"WALL", {lineOf(1), lineOf(2)});
    Model::DrawingLines lines{lineOf(9)};
    model.getCadLineEdoDataInfo(L"WALL", lines);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines.front().edoId, 9);
    EXPECT_EQ(lines.back().edoId, 2);
}

TEST(ORVCADWallDataInputModelTest, unknownLayerLeavesTheListAsItIs)
{
    Model model(kType);
    Model::DrawingLines lines{lineOf(9)};
    Model::DrawingTexts texts(2);
    model.getCadLineEdoDataInfo(L"WALL", lines);
    model.getCadTextEdoDataInfo(L"WALL", texts);
    EXPECT_EQ(lines.size(), 1U);
    EXPECT_EQ(texts.size(), 2U);
}

TEST(ORVCADWallDataInputModelTest, settingALayerReplacesItsMembersAndNoOthers)
{
    Model model(kType);
    model.setCadLineEdoDataInfo(L"A", {lineOf(1), lineOf(2)});
    model.setCadLineEdoDataInfo(L"B", {lineOf(3)});
    model.setCadLineEdoDataInfo(L"A", {lineOf(4)});
    model.setCadTextEdoDataInfo(L"A", Model::DrawingTexts(2));
    Model::DrawingLines lines;
    Model::DrawingTexts texts;
    model.getCadLineEdoDataInfo(L"A", lines);
    model.getCadLineEdoDataInfo(L"B", lines);
    model.getCadTextEdoDataInfo(L"A", texts);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines.front().edoId, 4);
    EXPECT_EQ(lines.back().edoId, 3);
    EXPECT_EQ(texts.size(), 2U);
}

TEST(ORVCADWallDataInputModelTest, layersAreSetOneByOneAndAnEmptyMapChangesNothing)
{
    Model model(kType);
    model.setCadLayerInfo({{2, L"concrete"}, {3, L"brick"}});
    model.setCadLayerInfo({});
    model.setCadLayerInfo({{3, L"masonry"}});
    EXPECT_EQ(model.getCadLayerInfo(), (std::map<int, std::wstring>{{2, L"concrete"}, {3, L"masonry"}}));
}

TEST(ORVCADWallDataInputModelTest, bothSavesWriteElevenKeysInOneOrder)
{
    NotingArchive json;
    NotingArchive xml;
    Translator toJson(&json);
    Translator toXml(&xml);
    Model(kType).saveToJson(toJson);
    Model(kType).saveToXml(toXml);
    EXPECT_EQ(json.keys, kSaved);
    EXPECT_EQ(xml.keys, kSaved);
}

TEST(ORVCADWallDataInputModelTest, loadReadsOptionsBeforeLayersAndNotTheType)
{
    QStringList expected = kSaved.mid(0, 7) + QStringList{"DWGXBaseOptions", "CadLayerInfo", "ProjectName"};
    NotingArchive xml;
    Translator fromXml(&xml);
    Model model(kType);
    model.loadFromXml(fromXml);
    EXPECT_EQ(xml.keys, expected);
    NotingArchive json;
    Translator fromJson(&json);
    model.loadFromJson(fromJson);
    EXPECT_EQ(json.keys, expected + (QStringList{"floorName", "floorCode", "drawingName"}));
}

TEST(ORVCADWallDataInputModelTest, identifyTypeIsSavedAndNotLoaded)
{
    ORVCADJsonFileSerialization out{QString()};
    Translator save(&out);
    Model(EORVCADIdentifyType(3)).saveToJson(save);
    EXPECT_EQ(compact(out.rootObject().value("IdentifyType").toObject()), R"({"identifyTpe":"3"})");
    out.save({});
    ORVCADJsonFileSerialization in(out.content());
    ASSERT_TRUE(in.parse());
    Translator load(&in);
    Model model(kType);
    model.loadFromJson(load);
    EXPECT_EQ(model.identifyType(), 1);
}

template <typename Archive> Model namesOf(const char *text, void (Model::*loadFrom)(Translator &))
{
    Archive archive(QString::fromUtf8(text));
    EXPECT_TRUE(archive.parse());
    Translator translator(&archive);
    Model model(kType);
    (model.*loadFrom)(translator);
    return model;
}

TEST(ORVCADWallDataInputModelTest, loadFromXmlLeavesFloorAndDrawingEmptyAndLoadFromJsonDoesNot)
{
    const char *const xml = "<XmlRoot><ProjectName projectName='P'/><floorName floorName='F'/>"
                            "<floorCode floorCode='2'/><drawingName drawingName='D'/></XmlRoot>";
    const Model fromXml = namesOf<ORVCADXmlFileSerialization>(xml, &Model::loadFromXml);
    EXPECT_EQ(fromXml.getProjectName(), L"P");
    EXPECT_EQ(fromXml.getFloorName() + fromXml.getFloorCode() + fromXml.getDrawingName(), L"");
    const Model fromJson = namesOf<ORVCADXmlFileSerialization>(xml, &Model::loadFromJson);
    EXPECT_EQ(fromJson.getFloorName(), L"F");
    EXPECT_EQ(fromJson.getFloorCode(), L"2");
    EXPECT_EQ(fromJson.getDrawingName(), L"D");
}

} // namespace

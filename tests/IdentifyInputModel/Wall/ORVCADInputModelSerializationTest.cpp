#include "IdentifyInputModel/Wall/ORVCADInputModelSerialization.h"

#include "IdentifyInputModel/Wall/WallFixture.h"

namespace {

using Translator = ORVCADInputModelSerialization;
using Point = vks::CVec2<double>;

class ORVCADInputModelSerializationTest : public ArchiveTest<Translator>
{
protected:
    static ORVCADCloudEntBrickWallStruct brickWall()
    {
        ORVCADCloudEntBrickWallStruct wall;
        wall.throughBar = L"2B12";
        wall.transverseBar = L"A6@250";
        wall.material = L"MU10";
        wall.entName = L"Q1";
        wall.elementType = 1003;
        wall.elementSubType = 316;
        wall.width = 200;
        wall.edoId = 9007199254740993;
        wall.typePropertyValue = 2;
        wall.floorCode = L"2";
        wall.region = L"House";
        return wall;
    }
    static ORVCADCloudEntForceWallStruct forceWall()
    {
        ORVCADCloudEntForceWallStruct wall;
        wall.tieBar = L"A6@600";
        wall.hreBar = L"B12@200";
        wall.vreBar = L"B14@150";
        wall.entName = L"JLQ1";
        wall.elementType = 0;
        wall.elementSubType = 7;
        wall.width = 300;
        wall.edoId = 21;
        wall.floorCode = L"2";
        return wall;
    }
    static ORVCADCloudHBXModelLineEdoStruct modelLine()
    {
        ORVCADCloudHBXModelLineEdoStruct record;
        record.worldLine = line(0, 0, 1234.5678, 0);
        record.width = 1234.5678;
        record.edoId = -1;
        record.entName = L"Q1";
        record.elementType = 1003;
        record.elementSubType = 316;
        return record;
    }
    static ORVCADCloudTextEdoInfo text()
    {
        ORVCADCloudTextEdoInfo record;
        record.text = L"Q1";
        record.anglePts = {{0, 0}, {300, 0}, {300, 100}};
        record.color = 7;
        record.blockID = 3;
        record.dir = {1, 0};
        record.edoId = 55;
        record.filterTextEdo = {5, 56};
        return record;
    }
};

TEST_F(ORVCADInputModelSerializationTest, brickWallsHaveNineItemsWithoutFloorAndRegion)
{
    translator.saveCadEntBrickWallDataInfo({brickWall()});
    EXPECT_EQ(
        member("CadEntBrickWallDataInfo"),
        R"([{"edoId":"9007199254740993","elementSubType":"316","elementType":"1003","entName":"Q1",)"
        R"("material":"MU10","throughBar":"2B12","transverseBar":"A6@250","typePropertyValue":"2","width":"200"}])");
    EXPECT_EQ(xml([](Translator &t) { t.saveCadEntBrickWallDataInfo({brickWall()}); }),
              " <CadEntBrickWallDataInfo>\n"
              "  <CadEntBrickWallDataInfo edoId=\"9007199254740993\" entName=\"Q1\" elementType=\"1003\" "
              "elementSubType=\"316\" material=\"MU10\" throughBar=\"2B12\" transverseBar=\"A6@250\" width=\"200\" "
              "typePropertyValue=\"2\"/>\n"
              " </CadEntBrickWallDataInfo>\n");
}

TEST_F(ORVCADInputModelSerializationTest, forceWallsHaveEightItemsWithoutFloorAndRegion)
{
    EXPECT_EQ(xml([](Translator &t) { t.saveCadEntForceWallDataInfo({forceWall()}); }),
              " <CadEntForceWallDataInfo>\n"
              "  <CadEntForceWallDataInfo edoId=\"21\" entName=\"JLQ1\" elementType=\"0\" elementSubType=\"7\" "
              "hreBar=\"B12@200\" vreBar=\"B14@150\" tieBar=\"A6@600\" width=\"300\"/>\n"
              " </CadEntForceWallDataInfo>\n");
}

TEST_F(ORVCADInputModelSerializationTest, wallsReadBackFromJsonWithoutFloorAndRegion)
{
    translator.saveCadEntBrickWallDataInfo({brickWall()});
    translator.saveCadEntForceWallDataInfo({forceWall()});
    std::list<ORVCADCloudEntBrickWallStruct> brick(1);
    std::list<ORVCADCloudEntForceWallStruct> force;
    load(compact(json.rootObject()), [&](Translator &t) {
        t.loadCadEntBrickWallDataInfo(brick);
        t.loadCadEntForceWallDataInfo(force);
    });
    ASSERT_EQ(brick.size(), 2U); // appended
    EXPECT_EQ(brick.back().edoId, 9007199254740993);
    EXPECT_EQ(brick.back().entName, L"Q1");
    EXPECT_EQ(brick.back().elementType, 1003);
    EXPECT_EQ(brick.back().elementSubType, 316);
    EXPECT_EQ(brick.back().material, L"MU10");
    EXPECT_EQ(brick.back().throughBar, L"2B12");
    EXPECT_EQ(brick.back().transverseBar, L"A6@250");
    EXPECT_EQ(brick.back().width, 200);
    EXPECT_EQ(brick.back().typePropertyValue, 2);
    EXPECT_EQ(brick.back().floorCode, L"");
    EXPECT_EQ(brick.back().region, L"");
    ASSERT_EQ(force.size(), 1U);
    EXPECT_EQ(force.back().edoId, 21);
    EXPECT_EQ(force.back().hreBar, L"B12@200");
    EXPECT_EQ(force.back().vreBar, L"B14@150");
    EXPECT_EQ(force.back().tieBar, L"A6@600");
    EXPECT_EQ(force.back().width, 300);
    EXPECT_EQ(force.back().floorCode, L"");
}

TEST_F(ORVCADInputModelSerializationTest, modelLinesAreWrittenAlikeUnderThreeKeys)
{
    const char *const items = " edoId=\"-1\" width=\"1234.57\" entName=\"Q1\" elementType=\"1003\" "
                              "elementSubType=\"316\" Worldline=\"0,0,1234.57,0\"/>\n";
    const auto expected = [items](const char *key) {
        return QStringLiteral(" <%1>\n  <%1%2 </%1>\n").arg(QLatin1String(key), QLatin1String(items));
    };
    EXPECT_EQ(xml([](Translator &t) { t.saveCurFloorModelAxisLineEntDataInfo({modelLine()}); }),
              expected("CurFloorModelAxisLineEntDataInfo"));
    EXPECT_EQ(xml([](Translator &t) { t.saveCurFloorModelBrickLineEntDataInfo({modelLine()}); }),
              expected("CurFloorModelBrickLineEntDataInfo"));
    EXPECT_EQ(xml([](Translator &t) { t.saveCurFloorModelForceLineEntDataInfo({modelLine()}); }),
              expected("CurFloorModelForceLineEntDataInfo"));
}

TEST_F(ORVCADInputModelSerializationTest, modelLinesReadBackWithSixDigits)
{
    translator.saveCurFloorModelAxisLineEntDataInfo({modelLine()});
    translator.saveCurFloorModelBrickLineEntDataInfo({modelLine(), modelLine()});
    translator.saveCurFloorModelForceLineEntDataInfo({});
    Translator::ModelLines axis;
    Translator::ModelLines brick;
    Translator::ModelLines force;
    load(compact(json.rootObject()), [&](Translator &t) {
        t.loadCurFloorModelAxisLineEntDataInfo(axis);
        t.loadCurFloorModelBrickLineEntDataInfo(brick);
        t.loadCurFloorModelForceLineEntDataInfo(force);
    });
    ASSERT_EQ(axis.size(), 1U);
    EXPECT_EQ(axis.front().width, 1234.57);
    EXPECT_EQ(axis.front().edoId, -1);
    EXPECT_EQ(axis.front().entName, L"Q1");
    EXPECT_EQ(axis.front().elementType, 1003);
    EXPECT_EQ(axis.front().elementSubType, 316);
    ASSERT_TRUE(axis.front().worldLine);
    EXPECT_EQ(axis.front().worldLine->EndPoint(), Point(1234.57, 0));
    EXPECT_EQ(brick.size(), 2U);
    EXPECT_TRUE(force.empty());
}

TEST_F(ORVCADInputModelSerializationTest, modelPointsHaveSevenItemsAndReadBack)
{
    ORVCADCloudHBXModelPointEdoStruct point;
    point.worldPoly = square();
    point.edoId = 31;
    point.modelEdoType = 4;
    point.entName = L"KZ1";
    point.elementType = 25;
    point.elementSubType = 3;
    point.SectionTypeID = L"12";
    EXPECT_EQ(xml([&](Translator &t) { t.saveCurFloorModelPointEntDataInfo({point}); }),
              " <CurFloorModelPointEntDataInfo>\n"
              "  <CurFloorModelPointEntDataInfo edoId=\"31\" modelEdoType=\"4\" entName=\"KZ1\" elementType=\"25\" "
              "elementSubType=\"3\" worldPoly=\"0,0;400,0;400,400;0,400;\" SectionTypeID=\"12\"/>\n"
              " </CurFloorModelPointEntDataInfo>\n");
    translator.saveCurFloorModelPointEntDataInfo({point});
    std::list<ORVCADCloudHBXModelPointEdoStruct> points;
    load(compact(json.rootObject()), [&](Translator &t) { t.loadCurFloorModelPointEntDataInfo(points); });
    ASSERT_EQ(points.size(), 1U);
    EXPECT_EQ(points.front().edoId, 31);
    EXPECT_EQ(points.front().modelEdoType, 4);
    EXPECT_EQ(points.front().entName, L"KZ1");
    EXPECT_EQ(points.front().elementType, 25);
    EXPECT_EQ(points.front().elementSubType, 3);
    EXPECT_EQ(points.front().SectionTypeID, L"12");
    ASSERT_TRUE(points.front().worldPoly);
    EXPECT_EQ(points.front().worldPoly->LoopCount(), 1);
}

TEST_F(ORVCADInputModelSerializationTest, nullGeometryIsAnItemWithoutValueAndReadsAsNull)
{
    translator.saveCurFloorModelAxisLineEntDataInfo({ORVCADCloudHBXModelLineEdoStruct()});
    EXPECT_EQ(member("CurFloorModelAxisLineEntDataInfo"),
              R"([{"Worldline":"","edoId":"0","elementSubType":"0","elementType":"0","entName":"","width":"0"}])");
    Translator::ModelLines lines;
    load(compact(json.rootObject()), [&](Translator &t) { t.loadCurFloorModelAxisLineEntDataInfo(lines); });
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_FALSE(lines.front().worldLine);
}

TEST_F(ORVCADInputModelSerializationTest, drawingLinesAreAMapByLayer)
{
    ORVCADCloudLineEdoInfo one;
    one.color = 1;
    one.blockID = 2;
    one.edoId = 3;
    one.line = line(0, 0, 5, 0);
    const Translator::LayerLines lines{{L"WALL", {one, one}}, {L"AXIS", {}}};
    translator.saveCadLineEdoDataInfo(lines);
    EXPECT_EQ(member("CadLineEdoDataInfo"), R"({"key_0":{"AXIS":""},"key_1":{"WALL":""},"value_0":[],)"
                                            R"("value_1":[{"blockID":"2","color":"1","edoId":"3","line":"0,0,5,0"},)"
                                            R"({"blockID":"2","color":"1","edoId":"3","line":"0,0,5,0"}]})");
    EXPECT_EQ(xml([&](Translator &t) { t.saveCadLineEdoDataInfo(lines); }),
              " <CadLineEdoDataInfo>\n"
              "  <key_0 AXIS=\"\"/>\n"
              "  <key_1 WALL=\"\">\n"
              "   <value_0 edoId=\"3\" color=\"1\" blockID=\"2\" line=\"0,0,5,0\"/>\n"
              "   <value_1 edoId=\"3\" color=\"1\" blockID=\"2\" line=\"0,0,5,0\"/>\n"
              "  </key_1>\n"
              " </CadLineEdoDataInfo>\n");
    Translator::LayerLines loaded{{L"WALL", std::list<ORVCADCloudLineEdoInfo>(5)}, {L"OLD", {one}}};
    load(compact(json.rootObject()), [&](Translator &t) { t.loadCadLineEdoDataInfo(loaded); });
    EXPECT_EQ(loaded.size(), 3U);
    ASSERT_EQ(loaded[L"WALL"].size(), 2U); // replaced
    EXPECT_EQ(loaded[L"WALL"].front().edoId, 3);
    EXPECT_EQ(loaded[L"WALL"].front().color, 1);
    EXPECT_EQ(loaded[L"WALL"].front().blockID, 2);
    ASSERT_TRUE(loaded[L"WALL"].front().line);
    EXPECT_EQ(loaded[L"OLD"].size(), 1U);
}

TEST_F(ORVCADInputModelSerializationTest, layerNameWithASlashOrAColonIsCutWhenReadBack)
{
    translator.saveCadLineEdoDataInfo({{L"A/B", {}}, {L"C:D", {}}, {L"E:F:G", {}}, {L"P|Q", {}}});
    Translator::LayerLines loaded;
    load(compact(json.rootObject()), [&](Translator &t) { t.loadCadLineEdoDataInfo(loaded); });
    ASSERT_EQ(loaded.size(), 4U);
    for (const wchar_t *name : {L"A", L"C", L"E", L"P|Q"})
        EXPECT_EQ(loaded.count(name), 1U) << QString::fromWCharArray(name).toStdString();
}

TEST_F(ORVCADInputModelSerializationTest, drawingTextsDoNotTellWhatTheyStandFor)
{
    EXPECT_EQ(xml([](Translator &t) {
                  t.saveCadTextEdoDataInfo({{L"TEXT", {text()}}});
              }),
              " <CadTextEdoDataInfo>\n"
              "  <key_0 TEXT=\"\">\n"
              "   <value_0 edoId=\"55\" color=\"7\" blockID=\"3\" text=\"Q1\" dir=\"1,0\" "
              "anglePts=\"0,0;300,0;300,100;\"/>\n"
              "  </key_0>\n"
              " </CadTextEdoDataInfo>\n");
    translator.saveCadTextEdoDataInfo({{L"TEXT", {text()}}});
    Translator::LayerTexts loaded;
    load(compact(json.rootObject()), [&](Translator &t) { t.loadCadTextEdoDataInfo(loaded); });
    ASSERT_EQ(loaded[L"TEXT"].size(), 1U);
    const ORVCADCloudTextEdoInfo &read = loaded[L"TEXT"].front();
    EXPECT_EQ(read.text, L"Q1");
    EXPECT_EQ(read.anglePts, (std::vector<Point>{{0, 0}, {300, 0}, {300, 100}}));
    EXPECT_EQ(read.color, 7);
    EXPECT_EQ(read.blockID, 3);
    EXPECT_EQ(read.dir, Point(1, 0));
    EXPECT_EQ(read.edoId, 55);
    EXPECT_TRUE(read.filterTextEdo.empty());
}

TEST_F(ORVCADInputModelSerializationTest, filterTextsTellWhatTheyStandFor)
{
    EXPECT_EQ(xml([](Translator &t) { t.saveCadFilterTextEdoDataInfo({text()}); }),
              " <CadFilterTextEdoDataInfo>\n"
              "  <CadFilterTextEdoDataInfo edoId=\"55\" color=\"7\" blockID=\"3\" text=\"Q1\" dir=\"1,0\" "
              "anglePts=\"0,0;300,0;300,100;\" filterTextEdo=\"5,56\"/>\n"
              " </CadFilterTextEdoDataInfo>\n");
    translator.saveCadFilterTextEdoDataInfo({text()});
    std::list<ORVCADCloudTextEdoInfo> loaded;
    load(compact(json.rootObject()), [&](Translator &t) { t.loadCadFilterTextEdoDataInfo(loaded); });
    ASSERT_EQ(loaded.size(), 1U);
    EXPECT_EQ(loaded.front().filterTextEdo, (std::set<int>{5, 56}));
}

TEST_F(ORVCADInputModelSerializationTest, emptySetOfFilterTextsReadsBackAsZero)
{
    translator.saveCadFilterTextEdoDataInfo({ORVCADCloudTextEdoInfo()});
    std::list<ORVCADCloudTextEdoInfo> loaded;
    load(compact(json.rootObject()), [&](Translator &t) { t.loadCadFilterTextEdoDataInfo(loaded); });
    ASSERT_EQ(loaded.size(), 1U);
    EXPECT_EQ(loaded.front().filterTextEdo, std::set<int>{0});
}

TEST_F(ORVCADInputModelSerializationTest, drawingTextWithASlashOrAColonIsCutWhenReadBack)
{
    ORVCADCloudTextEdoInfo slash = text();
    slash.text = L"200/3";
    ORVCADCloudTextEdoInfo colon = text();
    colon.text = L"KZ:1";
    translator.saveCadFilterTextEdoDataInfo({slash, colon});
    std::list<ORVCADCloudTextEdoInfo> loaded;
    load(compact(json.rootObject()), [&](Translator &t) { t.loadCadFilterTextEdoDataInfo(loaded); });
    ASSERT_EQ(loaded.size(), 2U);
    EXPECT_EQ(loaded.front().text, L"200");
    EXPECT_EQ(loaded.back().text, L"KZ");
    EXPECT_EQ(loaded.front().filterTextEdo, (std::set<int>{5, 56})); // the rest of the record is unharmed
}

TEST_F(ORVCADInputModelSerializationTest, layersAreOneRecordWithAnItemEach)
{
    translator.saveCadLayerInfo({{4, L"brick"}, {11, L""}, {-1, L"x"}});
    EXPECT_EQ(member("CadLayerInfo"), R"({"layer_-1":"x","layer_11":"","layer_4":"brick"})");
    EXPECT_EQ(xml([](Translator &t) {
                  t.saveCadLayerInfo({{11, L""}, {4, L"brick"}});
              }),
              " <CadLayerInfo layer_4=\"brick\" layer_11=\"\"/>\n");
}

TEST_F(ORVCADInputModelSerializationTest, layersAreReadByTheNumberBehindTheFirstUnderscore)
{
    std::map<int, std::wstring> layers{{4, L"old"}, {9, L"kept"}};
    load(R"({"CadLayerInfo": {"layer_4": "brick", "any_7_8": "none", "x_5": "other", "noMark": "zero"}})",
         [&](Translator &t) { t.loadCadLayerInfo(layers); });
    // "7_8" is no number, and "noMark" has nothing behind a mark: both are 0, the later key in sorted order wins.
    EXPECT_EQ(layers, (std::map<int, std::wstring>{{0, L"zero"}, {4, L"brick"}, {5, L"other"}, {9, L"kept"}}));
}

TEST_F(ORVCADInputModelSerializationTest, emptyLayersReadBackAsOneLayerWithNumberZeroAndNoName)
{
    translator.saveCadLayerInfo({});
    EXPECT_EQ(member("CadLayerInfo"), R"({"":""})");
    std::map<int, std::wstring> layers;
    load(compact(json.rootObject()), [&](Translator &t) { t.loadCadLayerInfo(layers); });
    EXPECT_EQ(layers, (std::map<int, std::wstring>{{0, L""}}));
    EXPECT_EQ(xml([](Translator &t) { t.saveCadLayerInfo({}); }), " <CadLayerInfo/>\n");
}

TEST_F(ORVCADInputModelSerializationTest, optionsAreWrittenVerticalBeforeHorizontalAndReadBack)
{
    ORVCADCloudWalloptionDataStruct options;
    options.maxOpeningWidth = 1;
    options.maxWallLineWidth = 2;
    options.wallLineWidthDeviationRange = 3;
    options.wallEndExtensionRange = 4;
    options.wallAndWindowExtenHRange = 5;
    options.wallAndWindowExtenVRange = 6;
    EXPECT_EQ(xml([&](Translator &t) { t.saveDWGXBaseOptions(options); }),
              " <DWGXBaseOptions maxOpeningWidth=\"1\" maxWallLineWidth=\"2\" wallLineWidthDeviationRange=\"3\" "
              "wallEndExtensionRange=\"4\" wallAndWindowExtenVRange=\"6\" wallAndWindowExtenHRange=\"5\"/>\n");
    translator.saveDWGXBaseOptions(options);
    ORVCADCloudWalloptionDataStruct loaded;
    load(compact(json.rootObject()), [&](Translator &t) { t.loadDWGXBaseOptions(loaded); });
    EXPECT_EQ(loaded.maxOpeningWidth, 1);
    EXPECT_EQ(loaded.maxWallLineWidth, 2);
    EXPECT_EQ(loaded.wallLineWidthDeviationRange, 3);
    EXPECT_EQ(loaded.wallEndExtensionRange, 4);
    EXPECT_EQ(loaded.wallAndWindowExtenHRange, 5);
    EXPECT_EQ(loaded.wallAndWindowExtenVRange, 6);
}

TEST_F(ORVCADInputModelSerializationTest, singleValuesHaveTheirKeysWithinTheirKeys)
{
    translator.saveIdentifyType(EORVCADIdentifyType(3));
    translator.saveProjectName(L"Tower");
    translator.saveFloorCode(L"2");
    translator.saveFloorName(L"");
    translator.saveDrawingName(L"S-01");
    EXPECT_EQ(compact(json.rootObject()),
              R"({"IdentifyType":{"identifyTpe":"3"},"ProjectName":{"projectName":"Tower"},)"
              R"("drawingName":{"drawingName":"S-01"},"floorCode":{"floorCode":"2"},"floorName":{"floorName":""}})");
}

TEST_F(ORVCADInputModelSerializationTest, singleValuesReadBackWhateverTheInnerKeySays)
{
    auto type = EORVCADIdentifyType(1);
    std::wstring project;
    std::wstring code;
    std::wstring floor = L"old";
    std::wstring drawing;
    load(R"({"IdentifyType": {"x": "3"}, "ProjectName": {"": "Tower"}, "floorCode": {"floorName": "2"},
             "floorName": {"floorName": ""}, "drawingName": {"drawingName": "S-01"}})",
         [&](Translator &t) {
             t.loadIdentifyType(type);
             t.loadProjectName(project);
             t.loadFloorCode(code);
             t.loadFloorName(floor);
             t.loadDrawingName(drawing);
         });
    EXPECT_EQ(type, EORVCADIdentifyType(3));
    EXPECT_EQ(project, L"Tower");
    EXPECT_EQ(code, L"2");
    EXPECT_EQ(floor, L"");
    EXPECT_EQ(drawing, L"S-01");
}

TEST_F(ORVCADInputModelSerializationTest, singleTextWithASlashOrAColonIsCutWhenReadBack)
{
    translator.saveProjectName(L"KZ:1");
    translator.saveFloorName(L"200/3");
    std::wstring project;
    std::wstring floor;
    load(compact(json.rootObject()), [&](Translator &t) {
        t.loadProjectName(project);
        t.loadFloorName(floor);
    });
    EXPECT_EQ(project, L"KZ");
    EXPECT_EQ(floor, L"200");
}

TEST_F(ORVCADInputModelSerializationTest, missingKeysLeaveEverythingAsItIs)
{
    Translator::ModelLines lines(1);
    Translator::LayerLines layerLines{{L"A", {}}};
    std::map<int, std::wstring> layers{{4, L"brick"}};
    ORVCADCloudWalloptionDataStruct options;
    options.maxOpeningWidth = 9;
    std::wstring name = L"name";
    auto type = EORVCADIdentifyType(3);
    for (const char *text : {"{}", R"([{"ProjectName": {"projectName": "x"}}])"})
        load(text, [&](Translator &t) {
            t.loadCurFloorModelAxisLineEntDataInfo(lines);
            t.loadCadLineEdoDataInfo(layerLines);
            t.loadCadLayerInfo(layers);
            t.loadDWGXBaseOptions(options);
            t.loadProjectName(name);
            t.loadIdentifyType(type);
        });
    EXPECT_EQ(lines.size(), 1U);
    EXPECT_EQ(layerLines.size(), 1U);
    EXPECT_EQ(layers, (std::map<int, std::wstring>{{4, L"brick"}}));
    EXPECT_EQ(options.maxOpeningWidth, 9);
    EXPECT_EQ(name, L"name");
    EXPECT_EQ(type, EORVCADIdentifyType(3));
}

TEST_F(ORVCADInputModelSerializationTest, badValuesReadAsZeroEmptyOrNull)
{
    Translator::ModelLines lines;
    ORVCADCloudWalloptionDataStruct options;
    options.maxWallLineWidth = 9;
    load(R"({"CurFloorModelAxisLineEntDataInfo": [{"edoId": "x", "width": "wide", "Worldline": "1,2", "entName": 5}, 7],
             "DWGXBaseOptions": {"maxOpeningWidth": 12, "wallEndExtensionRange": "1.5"}})",
         [&](Translator &t) {
             t.loadCurFloorModelAxisLineEntDataInfo(lines);
             t.loadDWGXBaseOptions(options);
         });
    ASSERT_EQ(lines.size(), 2U);
    for (const ORVCADCloudHBXModelLineEdoStruct &one : lines) {
        EXPECT_EQ(one.edoId, 0);
        EXPECT_EQ(one.width, 0.0);
        EXPECT_EQ(one.entName, L"");
        EXPECT_FALSE(one.worldLine);
    }
    EXPECT_EQ(options.maxOpeningWidth, 0);       // a number is no text
    EXPECT_EQ(options.maxWallLineWidth, 0);      // missing in a record that is there
    EXPECT_EQ(options.wallEndExtensionRange, 0); // no integer
}

} // namespace

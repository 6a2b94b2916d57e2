#include "column/ORVCADColumnCloudIdentifyInputModel.h"

#include "ColumnDocuments.h"
#include "ColumnInputs.h"
#include "encoding/GeometryInfo.h"
#include "encoding/ORVCADJsonCGeometryObjOper.h"

namespace {

using Model = ORVCADColumnCloudIdentifyInputModel;

using columninputs::axisLine;

std::shared_ptr<ColumnElementInfo> sampleElement()
{
    auto element = std::make_shared<ColumnElementInfo>();
    element->name = "KZ-1";
    element->parame = "500*600";
    element->sectionWidth = 500;
    element->sectionHeight = 600;
    element->sectionTypeID = 2;
    element->elementTypeId = 25;
    element->poly = ORVCADJsonCGeometryObjOper().getPolyInfo(QStringLiteral("0,0;500,0;500,600;0,600;"));
    element->insertPt = {250, 300.5};
    element->bar = {"12C20", "4C22", "2C20", "3C18", "A8@100/200", "4*6", 41, 62};
    return element;
}

Model sample()
{
    Model model;
    model.eType = 7;
    model.columnOptions = columninputs::options();
    model.columnCodes = QStringList{"ZHZ1", "GZZ"};
    model.borderLayerNames = {"COLU", QStringLiteral("柱边线")};
    model.labelLayerNames = {"COLU_TEXT"};
    model.axisLineList = columninputs::axisLines();
    model.elements = {sampleElement()};
    model.oSemnTicParsePar.floorWordSetPar = {{QStringLiteral("首层"), "3.600", "-0.050"},
                                              {QStringLiteral("第2层"), "7.2", "3.6"}};
    model.oSemnTicParsePar.columnElevWordSetPar = {
        QStringLiteral("基础顶"), QStringLiteral("基础底"), QStringLiteral("层底"),
        QStringLiteral("层顶"),   QStringLiteral("屋面"),   QStringLiteral("首层底"),
        QStringLiteral("首层顶"), QStringLiteral("上层顶"), QStringLiteral("下层底")};
    model.oSemnTicParsePar.columnDetailElevPar = {QStringLiteral("最高"), QStringLiteral("最低"),
                                                  QStringLiteral("本层顶"), QStringLiteral("本层底")};
    auto &hoops = model.oHoopBarSettingPar;
    hoops.addHoopBarPicInfo(3, new ORVCADColumnHoopBarPicInfo{41, 4, QStringLiteral("四肢箍")});
    hoops.addHoopBarPicInfo(8, new ORVCADColumnHoopBarPicInfo{62, 6, QStringLiteral("六肢箍")});
    hoops.addHoopBarSetting(new ORVCADColumnHoopBarSetting{9, 45, 54, 5, 4});
    return model;
}

TEST(ORVCADColumnCloudIdentifyInputModelTest, everyFieldIsWrittenUnderItsKey)
{
    EXPECT_EQ(textOf(sample().toJson()), columnDocument("identify-input").toStdString());
}

TEST(ORVCADColumnCloudIdentifyInputModelTest, everyKeyIsReadIntoItsField)
{
    const auto model = filled<Model>(jsonOf(columnDocument("identify-input")));
    EXPECT_EQ(textOf(model.toJson()), columnDocument("identify-input").toStdString());
    EXPECT_EQ(model.eType, 7);
    EXPECT_EQ(model.columnOptions.ZHZMark, "ZHZ1");
    EXPECT_EQ(model.columnCodes, (QStringList{"ZHZ1", "GZZ"}));
    ASSERT_EQ(model.axisLineList.size(), 2U);
    EXPECT_EQ(model.axisLineList[0]->curve->EndPoint(), vks::CVec2<double>(10000, 0));
    ASSERT_EQ(model.elements.size(), 1U);
    const ColumnElementInfo &element = *model.elements[0];
    EXPECT_EQ(element.elementTypeId, 25);
    EXPECT_EQ(element.sectionTypeID, 2);
    EXPECT_NEAR(element.poly->Area(), 300000, 1e-6);
    EXPECT_EQ(element.insertPt, vks::CVec2<double>(250, 300.5));
    EXPECT_EQ(element.bar.strLimb, "4*6");
    EXPECT_EQ(element.bar.nHSidePicID, 62);
    qint64 b = 0;
    qint64 h = 0;
    EXPECT_TRUE(model.oHoopBarSettingPar.parseColumnCombLimbInfo(element.bar.strLimb.toStdWString(), b, h));
    EXPECT_EQ(b, 41);
    EXPECT_EQ(h, 62);
}

TEST(ORVCADColumnCloudIdentifyInputModelTest, numbersAreNumbersAndGeometryIsText)
{
    const QJsonObject element = sample().toJson()["elements"].toArray()[0].toObject();
    for (const char *key : {"sectionWidth", "sectionHeight", "sectionTypeID", "elementTypeId"})
        EXPECT_TRUE(element[key].isDouble()) << key;
    EXPECT_EQ(element["poly"], "0,0;500,0;500,600;0,600;");
    EXPECT_EQ(element["insertPt"], "250,300.5");
    EXPECT_EQ(sample().toJson()["axisLineList"], (QJsonArray{"0,0,10000,0", "0,0,0.5,6000,0"}));
}

TEST(ORVCADColumnCloudIdentifyInputModelTest, coordinatesHaveSixDigits)
{
    Model model;
    model.elements = {sampleElement()};
    model.elements[0]->insertPt = {123456.789, 1234567.891};
    model.axisLineList = {axisLine(new vks::CLine2d({0, 0}, {123456.789, 0}))};
    EXPECT_EQ(model.toJson()["elements"].toArray()[0].toObject()["insertPt"], "123457,1.23457e+06");
    EXPECT_EQ(model.toJson()["axisLineList"], QJsonArray{"0,0,123457,0"});
}

TEST(ORVCADColumnCloudIdentifyInputModelTest, newModelWritesEveryKey)
{
    EXPECT_EQ(Model().toJson().keys(),
              (QStringList{"axisLineList", "borderLayerNames", "columnCodes", "columnOptions", "eType", "elements",
                           "labelLayerNames", "oHoopBarSettingPar", "oSemnTicParsePar"}));
    EXPECT_EQ(Model().toJson()["columnOptions"].toObject().keys(),
              (QStringList{"AZMark", "DZMark", "GZZMark", "KJZMark", "KZZMark", "MaxSearchExtent", "ZHZMark",
                           "bSideBarAverageDistribution"}));
}

TEST(ORVCADColumnCloudIdentifyInputModelTest, parameterBlockIsSpelledWithACapitalT)
{
    QJsonObject json = jsonOf(columnDocument("identify-input"));
    json["oSemnticParsePar"] = json.take("oSemnTicParsePar");
    EXPECT_TRUE(filled<Model>(json).oSemnTicParsePar.floorWordSetPar.isEmpty());
}

TEST(ORVCADColumnCloudIdentifyInputModelTest, emptyObjectLeavesTheListsAndClearsTheRest)
{
    Model model = sample();
    model.fromJson(&model, {});
    EXPECT_EQ(model.eType, 0);
    EXPECT_EQ(model.columnOptions.getColumnCodes().join(""), "");
    EXPECT_FALSE(model.columnOptions.bSideBarAverageDistribution);
    EXPECT_EQ(model.columnOptions.MaxSearchExtent, 0);
    EXPECT_EQ(model.columnCodes.size(), 2);
    EXPECT_EQ(model.borderLayerNames.size(), 2U);
    EXPECT_EQ(model.labelLayerNames.size(), 1U);
    EXPECT_EQ(model.axisLineList.size(), 2U);
    EXPECT_EQ(model.elements.size(), 1U);
    EXPECT_EQ(model.oSemnTicParsePar.floorWordSetPar.size(), 2);
    EXPECT_EQ(model.oSemnTicParsePar.columnElevWordSetPar.sCurBtmElev, "");
    EXPECT_EQ(model.oHoopBarSettingPar.toJson()["ColumnHoopBarPicInfos"].toArray().size(), 2);
}

TEST(ORVCADColumnCloudIdentifyInputModelTest, documentWithoutElementsLeavesThemAsTheyWere)
{
    QJsonObject json = jsonOf(columnDocument("identify-input"));
    json.remove("elements");
    Model model;
    model.elements = {sampleElement()};
    const auto before = model.elements;
    model.fromJson(&model, json);
    EXPECT_EQ(model.elements, before);
}

TEST(ORVCADColumnCloudIdentifyInputModelTest, readingTwiceDoublesTheArrays)
{
    const QJsonObject json = jsonOf(columnDocument("identify-input"));
    Model model;
    model.fromJson(&model, json);
    model.fromJson(&model, json);
    EXPECT_EQ(model.columnCodes, (QStringList{"ZHZ1", "GZZ", "ZHZ1", "GZZ"}));
    EXPECT_EQ(model.borderLayerNames.size(), 4U);
    EXPECT_EQ(model.labelLayerNames.size(), 2U);
    EXPECT_EQ(model.axisLineList.size(), 4U);
    ASSERT_EQ(model.elements.size(), 2U);
    EXPECT_NE(model.elements[0], model.elements[1]);
    EXPECT_EQ(model.oSemnTicParsePar.floorWordSetPar.size(), 4);
    const QJsonObject hoops = model.oHoopBarSettingPar.toJson();
    EXPECT_EQ(hoops["ColumnHoopBarPicInfos"].toArray().size(), 2); // their ids are known
    EXPECT_EQ(hoops["ColumnHoopBarSettings"].toArray().size(), 2);
}

TEST(ORVCADColumnCloudIdentifyInputModelTest, mistypedDocumentReadsAsANewModel)
{
    expectSameJson(filled<Model>(mistypedThroughout(jsonOf(columnDocument("identify-input")))).toJson(),
                   Model().toJson());
    QJsonObject json = jsonOf(columnDocument("identify-input"));
    QJsonObject element = json["elements"].toArray()[0].toObject();
    QJsonObject bar = mistypedThroughout(element["bar"].toObject());
    element = mistypedThroughout(element);
    element["bar"] = bar;
    Model model;
    model.fromJson(&model, {{"columnOptions", mistypedThroughout(json["columnOptions"].toObject())},
                            {"elements", QJsonArray{element, 7}}});
    Model expected;
    expected.elements = {std::make_shared<ColumnElementInfo>(), std::make_shared<ColumnElementInfo>()};
    expectSameJson(model.toJson(), expected.toJson());
}

TEST(ORVCADColumnCloudIdentifyInputModelTest, numbersThatAreNoWhole32BitsReadAsZero)
{
    const auto model = filled<Model>(jsonOf(
        R"({"eType": 2147483648, "columnOptions": {"MaxSearchExtent": 0.5}, "elements": [{"sectionWidth": 1e300}]})"));
    EXPECT_EQ(model.eType, 0);
    EXPECT_EQ(model.columnOptions.MaxSearchExtent, 0);
    EXPECT_EQ(model.elements[0]->sectionWidth, 0);
}

TEST(ORVCADColumnCloudIdentifyInputModelTest, badGeometryIsNullOrTheOriginAndKeepsItsPlace)
{
    const auto model = filled<Model>(jsonOf(R"({"axisLineList": ["0,0", 7, "0,0,1,0"],
        "elements": [{"poly": "0,0;", "insertPt": "1;2"}]})"));
    ASSERT_EQ(model.axisLineList.size(), 3U);
    EXPECT_FALSE(model.axisLineList[0]->curve);
    EXPECT_FALSE(model.axisLineList[1]->curve);
    EXPECT_TRUE(model.axisLineList[2]->curve);
    EXPECT_FALSE(model.elements[0]->poly);
    EXPECT_EQ(model.elements[0]->insertPt, vks::CVec2<double>());
    EXPECT_EQ(model.toJson()["axisLineList"], (QJsonArray{"", "", "0,0,1,0"}));
    EXPECT_EQ(model.toJson()["elements"].toArray()[0].toObject()["poly"], "");
}

TEST(ORVCADColumnCloudIdentifyInputModelTest, outlineWithAHoleIsTheKernelsText)
{
    const QString text = "POLYGON((0 0, 500 0, 500 500, 0 500, 0 0),(100 100, 100 200, 200 200, 200 100, 100 100))";
    const auto model = filled<Model>({{"elements", QJsonArray{QJsonObject{{"poly", text}}}}});
    ASSERT_TRUE(model.elements[0]->poly);
    EXPECT_EQ(model.elements[0]->poly->LoopCount(), 2);
    const QString written = model.toJson()["elements"].toArray()[0].toObject()["poly"].toString();
    const auto again = filled<Model>({{"elements", QJsonArray{QJsonObject{{"poly", written}}}}});
    EXPECT_EQ(again.elements[0]->poly->Area(), 240000);
}

TEST(ORVCADColumnCloudIdentifyInputModelTest, nullPointersAreNotWritten)
{
    Model model;
    model.axisLineList = {nullptr, axisLine(nullptr)};
    model.elements = {nullptr};
    EXPECT_EQ(model.toJson()["axisLineList"], QJsonArray{""});
    EXPECT_EQ(model.toJson()["elements"], QJsonArray());
}

TEST(ORVCADColumnCloudIdentifyInputModelTest, copySharesElementsAndAxisLinesAndOutlivesItsSource)
{
    auto source = std::make_unique<Model>(sample());
    const Model copy = *source;
    EXPECT_EQ(copy.elements, source->elements);
    EXPECT_EQ(copy.axisLineList, source->axisLineList);
    source.reset();
    EXPECT_EQ(textOf(copy.toJson()), columnDocument("identify-input").toStdString());
}

TEST(ORVCADColumnCloudIdentifyInputModelTest, nullTargetDoesNothingAndTheReceiverPlaysNoPart)
{
    const Model receiver = sample();
    receiver.fromJson(nullptr, {{"eType", 9}});
    Model target;
    receiver.fromJson(&target, {{"eType", 9}});
    EXPECT_EQ(target.eType, 9);
    EXPECT_TRUE(target.elements.empty());
    EXPECT_EQ(textOf(receiver.toJson()), columnDocument("identify-input").toStdString());
}

} // namespace

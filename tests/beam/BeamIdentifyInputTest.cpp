#include "beam/BeamIdentifyInput.h"

#include "SeatHost.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/IHBXFloors.h"
#include "platform/host/IHBXRegions.h"
#include "platform/host/IHBXService.h"
#include "platform/services/HBXOptionNames.h"
#include "support/RecordingHost.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace {

using hbx::embedded::HBXProject;

struct Free
{
    void operator()(ORVCADBeamSDCIdentifyInputModel *model) const { freeBeamIdentifyInputModel(model); }
};
using Input = std::unique_ptr<ORVCADBeamSDCIdentifyInputModel, Free>;

QByteArray drawObject(const QByteArray &shape, const QByteArray &more = {})
{
    return R"({"shape": )" + shape + more + "}";
}

QByteArray element(const QByteArray &name, int type, const QByteArray &properties, const QByteArray &drawObjects,
                   const QByteArray &more = {})
{
    return R"({"name": ")" + name + R"(", "type": )" + QByteArray::number(type) + R"(, "properties": {)" + properties +
           R"(}, "drawObjects": [)" + drawObjects + "]" + more + "}";
}

QByteArray lineShape(const QByteArray &axis, int width = 200)
{
    return R"({"kind": "line", "axis": "LINESTRING()" + axis + ")\", \"width\": " + QByteArray::number(width) + "}";
}

/** A square solid, by its middle and half of its side. */
QByteArray pointShape(int x, int y, int half = 200)
{
    QByteArray ring;
    for (const auto &[dx, dy] : {std::pair{-1, -1}, {1, -1}, {1, 1}, {-1, 1}, {-1, -1}})
        ring += (ring.isEmpty() ? "" : ", ") + QByteArray::number(dx * half) + " " + QByteArray::number(dy * half);
    return R"({"kind": "point", "outline": "POLYGON(()" + ring + "))\", \"insertPoint\": [" + QByteArray::number(x) +
           ", " + QByteArray::number(y) + "]}";
}

/** A host with the region "House" and its floors "Level 0", a foundation floor, and "Level 1", which is the current one. */
class BeamIdentifyInputTest : public ::testing::Test
{
protected:
    void load(const QByteArray &elements = {}, const QByteArray &options = "[]", const QByteArray &planeRule = "22G",
              const QByteArray &elementsBelow = {})
    {
        const QByteArray building = R"({"format": "hbx-project", "version": 1, "name": "test", "planeRule": ")" +
                                    planeRule + R"(", "options": )" + options + R"(, "regions": [{"name": "House",
            "floors": [{"name": "Level 0", "code": "0", "bottomElev": -1.5, "height": 1.5, "foundation": true,
                        "elements": [)" +
                                    elementsBelow + R"(]},
                       {"name": "Level 1", "code": "1", "bottomElev": 0.05, "height": 3.1, "elements": [)" +
                                    elements + "]}]}]}";
        hbx::embedded::ProjectError error;
        m_project = HBXProject::fromJson(building, "test.json", error);
        ASSERT_TRUE(m_project) << error.text().toStdString();
        ASSERT_TRUE(m_project->setCurrent("House", "Level 1"));
    }
    Input create(bool withContext = false) const
    {
        return Input(createBeamIdentifyInputModel(m_project->service(), withContext));
    }
    IHBXFloor *floor(const QString &code = "1") const
    {
        return m_project->service()->model()->regions()->find("House")->floors()->findByCode(code);
    }
    static QByteArray options(const QList<QStringList> &rows)
    {
        QJsonArray array;
        for (const QStringList &row : rows)
            array.append(QJsonObject{{"group", row[0]}, {"name", row[1]}, {"value", row[2]}});
        return QJsonDocument(array).toJson();
    }

    std::unique_ptr<HBXProject> m_project;
};

TEST_F(BeamIdentifyInputTest, floorDataAreThoseOfTheCurrentFloor)
{
    load();
    Input input = create();
    EXPECT_FALSE(input->bIsCurFloorFD);
    EXPECT_EQ(input->curFloorBtmElev, 0.05);
    EXPECT_EQ(input->curFloorHeight, 3.1);
    EXPECT_EQ(input->nCurFloorID, floor()->id());
    EXPECT_EQ(input->hostValue, 0);
    m_project->setCurrent("House", "Level 0");
    input = create();
    EXPECT_TRUE(input->bIsCurFloorFD);
    EXPECT_EQ(input->curFloorBtmElev, -1.5);
}

TEST_F(BeamIdentifyInputTest, contextHoldsTheFloorAndTheOptionsOfTheBeamGroup)
{
    load({}, options({{ptnBeamSetting, "a", "1"}, {ptnColumnSetting, "b", "2"}, {ptnBeamSetting, "a", "3"}}));
    const Input input = create(true);
    EXPECT_TRUE(input->hasContext);
    ASSERT_TRUE(input->context);
    const FloorInfo &info = *input->context->floorInfo;
    EXPECT_EQ(info.FloorName, "Level 1");
    EXPECT_EQ(info.FloorCode, "1");
    EXPECT_EQ(info.BtmElev, 0.05);
    EXPECT_EQ(info.Height, 3.1);
    EXPECT_EQ(info.FloorID, floor()->id());
    EXPECT_EQ(input->context->cadOptions, (QMap<QString, QString>{{"a", "1"}}));
}

TEST_F(BeamIdentifyInputTest, withoutContextThereIsNone)
{
    load({}, options({{ptnBeamSetting, "a", "1"}}));
    const Input input = create(false);
    EXPECT_FALSE(input->hasContext);
    EXPECT_FALSE(input->context);
}

TEST_F(BeamIdentifyInputTest, layerNamesAreThoseThatTheBuildingKeepsElseTheTitles)
{
    load();
    EXPECT_EQ(create()->strBeamJZBZLayerName, L"梁集中标注");
    EXPECT_EQ(create()->strBeamYWBZLayerName, L"梁原位标注");
    EXPECT_EQ(create()->strBeamLineLayerName, L"");
    EXPECT_EQ(create()->strBeamBorderLayerName, L"");
    load({}, options({{ptnCADLayerNames, QStringLiteral("梁集中标注"), "S-BEAM"},
                      {ptnCADLayerNames, QStringLiteral("梁原位标注"), "S-BEAM-SPOT"}}));
    EXPECT_EQ(create()->strBeamJZBZLayerName, L"S-BEAM");
    EXPECT_EQ(create()->strBeamYWBZLayerName, L"S-BEAM-SPOT");
}

/** Every key of the beam codes, each with a value that names it. */
QList<QStringList> codeOptions()
{
    const QList<QPair<QString, QString>> codes = {
        {QStringLiteral("框架梁代号:"), "KL"},        {QStringLiteral("屋面框架梁代号:"), "WKL"},
        {QStringLiteral("框支梁代号:"), "KZL"},       {QStringLiteral("非框架梁代号:"), "L"},
        {QStringLiteral("井字梁代号:"), "JZL"},       {QStringLiteral("基础联系梁代号:"), "JLL"},
        {QStringLiteral("基础主梁代号:"), "JZ"},      {QStringLiteral("基础次梁代号:"), "JCL"},
        {QStringLiteral("承台梁代号:"), "CTL"},       {QStringLiteral("连梁代号:"), "LL"},
        {QStringLiteral("地框梁代号"), "DKL"},        {QStringLiteral("基础连梁代号:"), "JL"},
        {QStringLiteral("地框梁代号:"), "with colon"}};
    QList<QStringList> rows;
    for (const auto &code : codes)
        rows.append({ptnBeamSetting, code.first, code.second});
    return rows;
}

TEST_F(BeamIdentifyInputTest, beamCodesUnderTheRules11GAnd16GStandInTheirOrder)
{
    for (const char *rule : {"11G", "16G"}) {
        load({}, options(codeOptions()), rule);
        const Input input = create();
        EXPECT_TRUE(input->bIs11or16G);
        EXPECT_EQ(
            input->strRawBeamCodes,
            (QList<QStringList>{{"KL"}, {"WKL"}, {"KZL"}, {"L"}, {"JZL"}, {"JLL"}, {"JZ"}, {"JCL"}, {"CTL"}, {"LL"}}));
    }
}

TEST_F(BeamIdentifyInputTest, beamCodesUnderAnotherRuleStandInAnotherOrderAndOneKeyHasNoColon)
{
    load({}, options(codeOptions()), "22G");
    const Input input = create();
    EXPECT_FALSE(input->bIs11or16G);
    EXPECT_EQ(input->strRawBeamCodes,
              (QList<QStringList>{{"KL"}, {"WKL"}, {"KZL"}, {"L"}, {"JZL"}, {"DKL"}, {"JL"}, {"JZ"}, {"JCL"}, {"LL"}}));
}

TEST_F(BeamIdentifyInputTest, withoutOptionsThereAreTenEmptyLists)
{
    for (const char *rule : {"11G", "22G"}) {
        load({}, "[]", rule);
        EXPECT_EQ(create(true)->strRawBeamCodes, (QList<QStringList>{{}, {}, {}, {}, {}, {}, {}, {}, {}, {}}));
    }
}

TEST_F(BeamIdentifyInputTest, emptyPartsOfAnOptionAreLeftOut)
{
    load({}, options({{ptnBeamSetting, QStringLiteral("框架梁代号:"), QStringLiteral("KL,,KBL; ，XL")}}));
    EXPECT_EQ(create()->strRawBeamCodes.value(0), (QStringList{"KL", "KBL", "XL"}));
}

/** One object of every type that a beam may rest on, and of some others, in no particular order. */
QByteArray everySeat()
{
    return QList<QByteArray>{
        element("LL9", 18, "", drawObject(lineShape("0 0, 6000 0"))),
        element("L9", 17, "", drawObject(lineShape("0 1000, 6000 1000"))),
        element("KL1", 15, "", drawObject(lineShape("0 2000, 6000 2000"))),
        element("CT1", 53, "", drawObject(pointShape(0, 20000))),
        element("DJ1", 52, "", drawObject(pointShape(2000, 20000))),
        element("ZJ1", 54, "", drawObject(pointShape(4000, 20000))),
        element("QT1", 1003, R"("Thickness": 240)", drawObject(lineShape("0 3000, 6000 3000", 240))),
        element("Q1", 0, R"("Thickness": 500)", drawObject(lineShape("0 4000, 6000 4000", 500))),
        element("ZZ1", 1002, "", drawObject(pointShape(0, 10000))),
        element("GZ1", 26, "", drawObject(pointShape(2000, 10000))),
        element("KZ1", 25, R"("Type": 2)", drawObject(pointShape(4000, 10000))),
        element("JL1", 47, "", drawObject(lineShape("0 5000, 6000 5000")))}
        .join(",");
}

TEST_F(BeamIdentifyInputTest, seatsStandInTheOrderOfTheirTypes)
{
    load(everySeat());
    const Input input = create();
    QStringList names;
    for (const ORVBeamSDCSeatInfoModel *seat : qAsConst(input->beamSeatInfos))
        names.append(seat->EntName);
    EXPECT_EQ(names.join(' ').toStdString(), "KZ1 GZ1 ZZ1 Q1 QT1 ZJ1 DJ1 CT1 KL1 L9 LL9");
    EXPECT_TRUE(input->beamSeatInfos[0]->bIsAColumn);
    EXPECT_EQ(input->beamSeatInfos[0]->FloorName, "Level 1");
    EXPECT_EQ(input->beamSeatInfos[0]->RegionName, "House");
    EXPECT_EQ(input->beamSeatInfos[3]->dOffsetDist, 180.0);
    EXPECT_DOUBLE_EQ(input->beamSeatInfos[4]->dOffsetDist, 98.4);
}

TEST_F(BeamIdentifyInputTest, seatOfABeamIsInTheInputAndNotInTheJson)
{
    load(everySeat());
    const QJsonObject json = create()->beamSeatInfoToJsonObj();
    const auto nameIn = [&json](const char *key) { return json[key].toArray()[0].toObject()["EntName"].toString(); };
    EXPECT_EQ(nameIn("etTieBeam"), "LL9");
    EXPECT_EQ(nameIn("etIsolatedFD"), "DJ1");
    EXPECT_EQ(nameIn("etPile"), "ZJ1");
    EXPECT_EQ(nameIn("etPileCap"), "CT1");
    int count = 0;
    for (const QJsonValue array : json)
        count += array.toArray().size();
    EXPECT_EQ(count, 4);
}

TEST_F(BeamIdentifyInputTest, seatOfABeamHasItsStripItsLinesAndItsBox)
{
    load(element("KL1", 15, R"("SectionWidth": 300)", drawObject(lineShape("0 2000, 6000 2000", 300))));
    const Input input = create();
    ASSERT_EQ(input->beamSeatInfos.size(), 1);
    const ORVBeamSDCSeatInfoModel &seat = *input->beamSeatInfos[0];
    EXPECT_EQ(seat.eLineShapeClass, 1);
    EXPECT_TRUE(seat.bLineShape);
    EXPECT_NEAR(seat.ipWorldPoly->Area(), 1800000.0, 1e-6);
    EXPECT_EQ(seat.ipCenterLine->ToText(), "LINESTRING(0 2000, 6000 2000)");
    EXPECT_EQ(seat.ipWallLine->ToText(), "LINESTRING(0 2000, 6000 2000)");
    EXPECT_EQ(seat.ipSeatLine->ToText(), "LINESTRING(0 2000, 6000 2000)");
    EXPECT_EQ(seat.box, vks::CBox3<double>({0, 1850, 0}, {6000, 2150, 0}));
}

TEST_F(BeamIdentifyInputTest, seatOfATieBeamHasItsSectionAndElevations)
{
    load(element("LL1", 18, R"("SectionWidth": 300, "SectionHeight": 600, "AxisOffset": 25, "Type1": 1,
                               "StartPtTopElev": "3.0", "EndPtTopElev": "3.1")",
                 drawObject(lineShape("0 0, 6000 0", 300), R"(, "properties": {"EndPtTopElev": "3.2"})")));
    const Input input = create();
    const ORVBeamSDCSeatInfoModel &seat = *input->beamSeatInfos.value(0);
    EXPECT_EQ(seat.SectionWidth, 300);
    EXPECT_EQ(seat.SectionHeight, 600);
    EXPECT_EQ(seat.AxisOffset, 25.0);
    EXPECT_EQ(seat.Type, "1");
    EXPECT_EQ(seat.TopElev, "3.0");
    EXPECT_EQ(seat.BtmElev, "3.1");
    EXPECT_EQ(seat.EDOTopElev, "3.0");
    EXPECT_EQ(seat.EDOBtmElev, "3.2");
}

TEST_F(BeamIdentifyInputTest, seatOfAFoundationHasTheOutlineOfItsHighestUnitAndItsHeight)
{
    const QByteArray units = R"(, "units": [
        {"name": "DJ1-1", "type": 82, "orderNumber": 1, "properties": {"SectionWidth": 2000, "SectionHeight": 2000}},
        {"name": "DJ1-2", "type": 82, "orderNumber": 2, "properties": {"SectionWidth": 1000, "SectionHeight": 500}}])";
    const QByteArray children = R"(, "children": [{"unit": 0, "shape": )" + pointShape(3000, 4000, 1000) +
                                R"(}, {"unit": 1, "shape": )" + pointShape(3000, 4000, 250) + "}]";
    load(element("DJ1", 52, R"("Height": 700, "TopElev": "-1.0", "BottomElev": "-1.7")",
                 drawObject(pointShape(3000, 4000, 1000), children), units));
    const Input input = create();
    ASSERT_EQ(input->beamSeatInfos.size(), 1);
    const ORVBeamSDCSeatInfoModel &seat = *input->beamSeatInfos[0];
    EXPECT_NEAR(seat.ipWorldPoly->Area(), 250000.0, 1e-6);
    EXPECT_EQ(seat.Height, 700.0);
    EXPECT_EQ(seat.TopElev, "-1.0");
    EXPECT_EQ(seat.BtmElev, "-1.7");
    EXPECT_EQ(seat.EDOTopElev, "-1.0");
}

TEST_F(BeamIdentifyInputTest, seatsAreThoseOfTheFloorsAskedForAndAreAdded)
{
    load(everySeat(), "[]", "22G", element("KZ9", 25, "", drawObject(pointShape(0, 0))));
    ORVCADBeamSDCIdentifyInputModel input(false);
    IHBXModel *model = m_project->service()->model();
    getBeamSeatInfo(input, model, {floor("0")->id()});
    ASSERT_EQ(input.beamSeatInfos.size(), 1);
    EXPECT_EQ(input.beamSeatInfos[0]->FloorName, "Level 0");
    getBeamSeatInfo(input, model, {floor("0")->id(), floor("1")->id()});
    EXPECT_EQ(input.beamSeatInfos.size(), 13);
    getBeamSeatInfo(input, model, {});
    EXPECT_EQ(input.beamSeatInfos.size(), 13);
}

TEST_F(BeamIdentifyInputTest, axisLinesOfAllFourDirectionsAreTakenIntoTheWorld)
{
    load(element("Grid", 74, "", drawObject(R"grid({"kind": "grid",
        "coordinates": {"origin": [100, 0, 0], "u": [1, 0, 0], "v": [0, 1, 0]},
        "outline": "POLYGON((0 0, 6000 0, 6000 4000, 0 4000, 0 0))", "axes": [
            [{"label": "1", "curve": "LINESTRING(0 0, 0 4000)"}, {"label": "2", "curve": "LINESTRING(6000 0, 6000 4000)"}],
            [{"label": "1/1", "curve": "LINESTRING(3000 0, 3000 4000)"}],
            [{"label": "A", "curve": "LINESTRING(0 0, 6000 0)"}],
            [{"label": "B", "curve": "LINESTRING(0 4000, 6000 4000)"}]]})grid")));
    const Input input = create();
    QStringList lines;
    for (const auto &line : input->axisLines)
        lines.append(QString::fromStdString(line->ToText()));
    EXPECT_EQ(lines.join("\n").toStdString(), "LINESTRING(100 0, 100 4000)\n"
                                              "LINESTRING(6100 0, 6100 4000)\n"
                                              "LINESTRING(3100 0, 3100 4000)\n"
                                              "LINESTRING(100 0, 6100 0)\n"
                                              "LINESTRING(100 4000, 6100 4000)");
}

TEST_F(BeamIdentifyInputTest, axisLineWithoutAProjectionIsANullOne)
{
    load(element("Grid", 74, "", drawObject(R"grid({"kind": "grid",
        "coordinates": {"origin": [0, 0, 0], "u": [0, 0, 1], "v": [0, 1, 0]},
        "outline": null, "axes": [
            [{"label": "1", "curve": "LINESTRING(0 0, 6000 0)"}, {"label": "2", "curve": "LINESTRING(0 0, 0 4000)"}],
            [], [], []]})grid")));
    const Input input = create();
    ASSERT_EQ(input->axisLines.size(), 2U);
    EXPECT_FALSE(input->axisLines[0]);
    ASSERT_TRUE(input->axisLines[1]);
    EXPECT_EQ(input->axisLines[1]->Length(), 4000.0);
}

TEST_F(BeamIdentifyInputTest, axisArcThatLeansIsANullOne)
{
    load(element("Grid", 74, "", drawObject(R"grid({"kind": "grid",
        "coordinates": {"origin": [0, 0, 0], "u": [0.6, 0, 0.8], "v": [0, 1, 0]},
        "outline": null, "axes": [
            [{"label": "1", "curve": "CIRCULARSTRING(1000 0, 0 1000, -1000 0)"}], [], [], []]})grid")));
    const Input input = create();
    ASSERT_EQ(input->axisLines.size(), 1U);
    EXPECT_FALSE(input->axisLines[0]); // it is part of an ellipse
}

TEST_F(BeamIdentifyInputTest, hostIsAskedForEachTypeByItselfAndForTheGridsLast)
{
    load(everySeat());
    RecordingHost host(*m_project->service());
    const Input input(createBeamIdentifyInputModel(host.service(), true));
    EXPECT_EQ(input->beamSeatInfos.size(), 11);
    QStringList expected;
    const QString floorId = QString::number(floor()->id());
    for (const int type : {25, 26, 1002, 0, 1003, 54, 52, 53, 15, 17, 18})
        expected.append(QStringLiteral("queryDrawObjs({%1}, {%2}, true)").arg(floorId).arg(type));
    expected.append(QStringLiteral("queryDrawObjsOfFloor(%1, 74, -1, true)").arg(floorId));
    EXPECT_EQ(host.calls().join("\n").toStdString(), expected.join("\n").toStdString());
}

TEST_F(BeamIdentifyInputTest, whatTheHostThrowsPassesThroughAndSeatsThatWereReadStay)
{
    load(everySeat());
    RecordingHost host(*m_project->service());
    host.beforeCall([](const QString &call) {
        if (call.contains("{0}"))
            throw HBXModelException("no walls");
    });
    ORVCADBeamSDCIdentifyInputModel input(false);
    EXPECT_THROW(getBeamSeatInfo(input, host.service()->model(), {floor()->id()}), HBXModelException);
    EXPECT_EQ(input.beamSeatInfos.size(), 3);
    EXPECT_THROW(createBeamIdentifyInputModel(host.service(), true), HBXModelException);
}

TEST_F(BeamIdentifyInputTest, nullObjectsAndObjectsWithoutAnOutlineArePassedOver)
{
    seathost::FaceSolid shape;
    shape.outline = seathost::rectangle(0, 0, 400, 400);
    seathost::DrawObj withOutline;
    withOutline.number = 26;
    withOutline.placed = &shape;
    seathost::DrawObj without;
    without.number = 26;
    seathost::Model model;
    model.objects = {nullptr, &without, &withOutline};
    ORVCADBeamSDCIdentifyInputModel input(false);
    getBeamSeatInfo(input, &model, {2});
    EXPECT_EQ(input.beamSeatInfos.size(), 1);
    getBeamSeatInfo(input, nullptr, {2});
    EXPECT_EQ(input.beamSeatInfos.size(), 1);
}

TEST_F(BeamIdentifyInputTest, withoutACurrentFloorThereAreNoFloorDataSeatsAndAxisLines)
{
    load(everySeat(), options(codeOptions()));
    HBXProject other;
    const Input input(createBeamIdentifyInputModel(other.service(), true));
    EXPECT_EQ(input->nCurFloorID, 0);
    EXPECT_EQ(input->context->floorInfo->FloorName, "");
    EXPECT_TRUE(input->beamSeatInfos.isEmpty());
    EXPECT_TRUE(input->axisLines.empty());
    EXPECT_EQ(input->strRawBeamCodes.size(), 10);
}

TEST_F(BeamIdentifyInputTest, nullServiceGivesAnEmptyModelAndNullIsFreed)
{
    const Input input(createBeamIdentifyInputModel(nullptr, true));
    ASSERT_TRUE(input);
    EXPECT_TRUE(input->context);
    EXPECT_TRUE(input->strRawBeamCodes.isEmpty());
    freeBeamIdentifyInputModel(nullptr);
}

} // namespace

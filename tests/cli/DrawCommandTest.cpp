#include "CliFixture.h"

#include <QDomDocument>
#include <QRegularExpression>

namespace {

class DrawCommandTest : public CliFixture
{
protected:
    /** Draws a floor of house.hbxdb and parses the picture. */
    QDomElement draw(const QString &floor, const QString &region = QString())
    {
        QStringList arguments{"draw", "house.hbxdb", "--floor", floor, "-o", "plan.svg", "--json"};
        if (!region.isEmpty())
            arguments += {"--region", region};
        const Result result = run(arguments);
        EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
        m_summary = result.json();
        QString message;
        EXPECT_TRUE(m_picture.setContent(read("plan.svg"), &message)) << message.toStdString();
        return m_picture.documentElement();
    }
    /** The group of a class; null when there is none. */
    static QDomElement group(const QDomElement &picture, const QString &cssClass)
    {
        const QDomNodeList groups = picture.elementsByTagName("g");
        for (int i = 0; i < groups.size(); ++i)
            if (groups.at(i).toElement().attribute("class") == cssClass)
                return groups.at(i).toElement();
        return {};
    }
    static QStringList texts(const QDomElement &element)
    {
        QStringList texts;
        const QDomNodeList nodes = element.elementsByTagName("text");
        for (int i = 0; i < nodes.size(); ++i)
            texts.append(nodes.at(i).toElement().text());
        return texts;
    }
    /** Paths of placed objects; the panes of windows are none. */
    static int pathCount(const QDomElement &element)
    {
        const QDomNodeList paths = element.elementsByTagName("path");
        int count = 0;
        for (int i = 0; i < paths.size(); ++i)
            count += paths.at(i).toElement().hasAttribute("class") ? 0 : 1;
        return count;
    }
    /** The points of the lines of the first path of an element, sorted. */
    static std::string corners(const QDomElement &element)
    {
        const QString data = element.firstChildElement("path").attribute("d");
        QStringList points;
        QRegularExpressionMatchIterator match = QRegularExpression("[ML]([-\\d.]+ [-\\d.]+)").globalMatch(data);
        while (match.hasNext())
            points.append(match.next().captured(1));
        points.removeDuplicates();
        points.sort();
        return points.join(", ").toStdString();
    }
    /** A brick wall 200 mm wide along the x axis, at a height of the plan. */
    static QByteArray wall(const QString &name, int from, int to, int y)
    {
        const char *element = R"~({"name": "%1", "type": 1003, "drawObjects": [
            {"shape": {"kind": "line", "axis": "LINESTRING(%2 %4, %3 %4)", "width": 200}}]})~";
        return QString(element).arg(name).arg(from).arg(to).arg(y).toUtf8();
    }
    void importHouse(const QByteArray &elements)
    {
        write("house.json",
              R"~({"format": "hbx-project", "version": 1, "name": "House & garden", "regions": [{"name": "R",
            "floors": [{"name": "F", "code": "1", "bottomElev": 0, "height": 3, "elements": [)~" +
                  elements + "]}]}]}");
        const Result result = run({"project", "import", "house.json", "-o", "house.hbxdb"});
        ASSERT_EQ(result.exitCode, 0) << result.err.toStdString();
    }
    /** A picture whose legend counts what its groups hold. */
    void checkLegend(const QDomElement &picture, const QMap<int, QPair<int, QString>> &expected)
    {
        const QStringList entries = texts(group(picture, "legend"));
        for (auto type = expected.cbegin(); type != expected.cend(); ++type) {
            const QString entry = QStringLiteral("%1 × %2").arg(type->first).arg(type->second);
            EXPECT_TRUE(entries.contains(entry)) << entry.toStdString() << " in " << entries.join("; ").toStdString();
            EXPECT_EQ(pathCount(group(picture, QStringLiteral("type-%1").arg(type.key()))), type->first) << type.key();
        }
        EXPECT_EQ(entries.size(), expected.size());
    }

    QJsonObject m_summary;

private:
    QDomDocument m_picture;
};

TEST_F(DrawCommandTest, summaryHasItsKeys)
{
    importSmallHouse();
    draw("Level 1");
    EXPECT_EQ(m_summary, (QJsonObject{{"output", "plan.svg"}, {"drawn", 1}, {"withoutGeometry", 0}, {"scale", 20}}));
    EXPECT_EQ(run({"draw", "house.hbxdb", "--floor", "1", "-o", "plan.svg"}).out,
              "Drew 1 placed object of Level 1 at 1:20\n");
}

TEST_F(DrawCommandTest, pictureWithoutAFileGoesToStandardOutput)
{
    importSmallHouse();
    draw("Level 1");
    const Result result = run({"draw", "house.hbxdb", "--floor", "Level 1"});
    EXPECT_EQ(result.out, read("plan.svg"));
    EXPECT_EQ(result.err, "Drew 1 placed object of Level 1 at 1:20\n");
}

TEST_F(DrawCommandTest, pageIsA3AndTellsBuildingRegionFloorAndScale)
{
    importSmallHouse();
    const QDomElement picture = draw("Level 1");
    EXPECT_EQ(picture.tagName(), "svg");
    EXPECT_EQ(picture.attribute("width"), "420mm");
    EXPECT_EQ(picture.attribute("height"), "297mm");
    EXPECT_EQ(picture.attribute("viewBox"), "0 0 420 297");
    EXPECT_EQ(picture.firstChildElement("title").text(), QStringLiteral("Small house – House, Level 1"));
    const QStringList all = texts(picture);
    for (const char *text :
         {"Level 1", "Small house", "House", "Floor code 1", "Bottom 0 m, height 3 m", "Scale 1:20 (A3)"})
        EXPECT_TRUE(all.contains(QLatin1String(text))) << text;
}

TEST_F(DrawCommandTest, wallIsDrawnToScaleWithItsWidthInTheMiddleOfThePlan)
{
    importSmallHouse();
    // At 1:20 the wall of 5000 by 200 mm is 250 by 10 mm on paper. 1:10 would make it 500 mm, and the plan has room for 320.
    // Its middle comes to the plan's, which is 334 by 273 mm from (12, 12): 179 and 148.5.
    EXPECT_EQ(corners(group(draw("Level 1"), "type-1003")), "304 143.5, 304 153.5, 54 143.5, 54 153.5");
}

TEST_F(DrawCommandTest, wallOfASampleIsDrawnToScale)
{
    importSample("precast-hall");
    const QDomElement picture = draw("Ground floor");
    const double scale = m_summary["scale"].toDouble();
    EXPECT_TRUE(texts(picture).contains(QStringLiteral("Scale 1:%1 (A3)").arg(scale)));
    EXPECT_EQ(pathCount(group(picture, "type-0")), 50);
}

TEST_F(DrawCommandTest, northIsUp)
{
    const char *column = R"~({"name": "K%1", "type": %1, "drawObjects": [
        {"shape": {"kind": "point", "outline": "POLYGON((-100 -100, 100 -100, 100 100, -100 100, -100 -100))",
                   "insertPoint": [0, %2]}}]})~";
    importHouse(QString(column).arg(25).arg(0).toUtf8() + ',' + QString(column).arg(26).arg(4000).toUtf8());
    const QDomElement picture = draw("F");
    // 200 by 4200 mm: 1:20 makes it 210 mm high. The plan's middle, at (179, 148.5), is world point (0, 2000).
    EXPECT_EQ(corners(group(picture, "type-25")), "174 243.5, 174 253.5, 184 243.5, 184 253.5");
    EXPECT_EQ(corners(group(picture, "type-26")), "174 43.5, 174 53.5, 184 43.5, 184 53.5");
}

TEST_F(DrawCommandTest, curvedWallIsDrawnWithArcs)
{
    importSample("made-building");
    const QDomElement walls = group(draw("第1层", "主楼"), "type-1003");
    bool hasArc = false;
    for (QDomElement path = walls.firstChildElement("path"); !path.isNull(); path = path.nextSiblingElement("path"))
        hasArc = hasArc || path.attribute("d").contains(" A");
    EXPECT_TRUE(hasArc);
}

TEST_F(DrawCommandTest, everyTypeHasItsGroupItsCountAndItsLegendEntry)
{
    importSample("masonry-block");
    const QDomElement picture = draw("Level 1");
    EXPECT_EQ(m_summary["drawn"], 266);
    EXPECT_EQ(m_summary["withoutGeometry"], 0);
    checkLegend(picture, {{4, {29, "door"}},
                          {5, {11, "window"}},
                          {15, {129, "beam"}},
                          {19, {21, "slab"}},
                          {25, {19, "column"}},
                          {1003, {57, "brick wall"}}});
}

TEST_F(DrawCommandTest, everyTypeHasAColourOfItsOwnInPlanAndLegend)
{
    importSample("masonry-block");
    const QDomElement picture = draw("Level 1");
    QStringList colours;
    const QDomNodeList swatches = group(picture, "legend").elementsByTagName("rect");
    for (int i = 0; i < swatches.size(); ++i)
        colours.append(swatches.at(i).toElement().attribute("stroke"));
    EXPECT_EQ(colours.removeDuplicates(), 0) << colours.join(' ').toStdString();
    for (const char *type : {"4", "5", "15", "19", "25", "1003"})
        EXPECT_TRUE(colours.contains(
            group(picture, QLatin1String("type-") + type).firstChildElement("path").attribute("stroke")))
            << type;
}

TEST_F(DrawCommandTest, openingsLieOverTheirWallsAndColumnsOverBoth)
{
    importSample("masonry-block");
    const QDomElement picture = draw("Level 1");
    QStringList order;
    for (QDomElement each = picture.firstChildElement("g"); !each.isNull(); each = each.nextSiblingElement("g"))
        order.append(each.attribute("class"));
    EXPECT_EQ(order.join(' ').toStdString(),
              "type-19 type-15 type-1003 type-25 type-5 type-4 names legend elevations scale-bar");
}

TEST_F(DrawCommandTest, foundationHasItsFootingsPilesAndBeams)
{
    importSample("precast-hall");
    checkLegend(draw("Foundation"), {{15, {3, "beam"}}, {52, {24, "isolated footing"}}, {54, {48, "pile"}}});
}

TEST_F(DrawCommandTest, elementsWithRoomCarryTheirNames)
{
    importSmallHouse();
    EXPECT_EQ(texts(group(draw("Level 1"), "names")), QStringList{"Q1"});
}

TEST_F(DrawCommandTest, elementsWithoutRoomCarryNone)
{
    importHouse(wall("Q-200", 0, 50000, 0) + ',' + wall("Q-201", 0, 900, 3000));
    EXPECT_EQ(texts(group(draw("F"), "names")), QStringList{"Q-200"});
}

TEST_F(DrawCommandTest, axesCarryTheirLabels)
{
    importSample("made-building");
    const QStringList labels = texts(group(draw("第1层", "主楼"), "type-74"));
    for (const char *label : {"1", "2", "3", "A", "B"})
        EXPECT_TRUE(labels.contains(QLatin1String(label))) << label;
}

TEST_F(DrawCommandTest, slabsAreShadedByElevationTheLowerTheDarker)
{
    const char *slab = R"~({"name": "B%1", "type": 19, "properties": {"Thickness": 100}, "drawObjects": [
        {"properties": {"TopElev": "%2"}, "shape": {"kind": "face",
         "outline": "POLYGON((%1 0, %3 0, %3 900, %1 900, %1 0))"}}]})~";
    const auto at = [slab](int x, const char *elevation) {
        return QString(slab).arg(x).arg(elevation).arg(x + 900).toUtf8();
    };
    importHouse(at(0, "3") + ',' + at(1000, "2.95") + ',' + at(2000, "3"));
    const QDomElement picture = draw("F");
    EXPECT_EQ(texts(group(picture, "elevations")), (QStringList{"Top of slabs", "2 at +3.000 m", "1 at +2.950 m"}));
    const QDomNodeList paths = group(picture, "type-19").elementsByTagName("path");
    ASSERT_EQ(paths.size(), 3);
    const auto opacity = [&paths](int i) { return paths.at(i).toElement().attribute("fill-opacity").toDouble(); };
    EXPECT_DOUBLE_EQ(opacity(0), 0.15);
    EXPECT_DOUBLE_EQ(opacity(1), 0.35);
    EXPECT_DOUBLE_EQ(opacity(2), 0.15);
}

TEST_F(DrawCommandTest, holesHaveACrossAndBarsTheirTexts)
{
    importSample("made-building");
    const QDomElement picture = draw(QStringLiteral("第1层"), QStringLiteral("主楼"));
    const auto pathsOfClass = [&picture](const char *type, const char *cssClass) {
        const QDomNodeList paths = group(picture, type).elementsByTagName("path");
        int count = 0;
        for (int i = 0; i < paths.size(); ++i)
            count += paths.at(i).toElement().attribute("class") == QLatin1String(cssClass) ? 1 : 0;
        return count;
    };
    EXPECT_EQ(pathCount(group(picture, "type-24")), 5);
    EXPECT_GE(pathsOfClass("type-24", "void"), 6);
    EXPECT_EQ(pathsOfClass("type-22", "bar"), 2);
    EXPECT_EQ(pathsOfClass("type-23", "bar"), 2);
    EXPECT_TRUE(texts(group(picture, "names")).contains("C10@200"));
}

TEST_F(DrawCommandTest, scaleBarHasARoundLengthToScale)
{
    importSmallHouse();
    const QDomElement picture = draw("Level 1");
    // At 1:20 two metres would take 100 mm, so the bar stands for two halves of a metre: 25 mm each.
    const QDomNodeList parts = group(picture, "scale-bar").elementsByTagName("rect");
    ASSERT_EQ(parts.size(), 2);
    EXPECT_EQ(parts.at(0).toElement().attribute("width"), "25");
    EXPECT_EQ(parts.at(1).toElement().attribute("width"), "25");
    const QStringList marks = texts(group(picture, "scale-bar"));
    EXPECT_EQ(marks, (QStringList{"0", "0.5", "1 m"}));
}

TEST_F(DrawCommandTest, objectsWithoutGeometryAreCountedAndNotDrawn)
{
    importSample("made-building");
    draw("第2层", "主楼");
    EXPECT_EQ(m_summary["drawn"], 7);
    EXPECT_EQ(m_summary["withoutGeometry"], 3); // a beam without axis, a slab and a column without outline
    EXPECT_EQ(run({"draw", "house.hbxdb", "--region", "主楼", "--floor", "2", "-o", "plan.svg"}).exitCode, 0);
}

TEST_F(DrawCommandTest, emptyFloorIsAnEmptyPlan)
{
    importHouse("");
    const QDomElement picture = draw("F");
    EXPECT_EQ(m_summary["drawn"], 0);
    EXPECT_EQ(texts(picture).filter("Scale 1:").size(), 1);
}

TEST_F(DrawCommandTest, buildingFarFromTheOriginIsDrawnAsNearIt)
{
    importHouse(wall("Q1", 10000000, 10005000, 10000000));
    EXPECT_EQ(corners(group(draw("F"), "type-1003")), "304 143.5, 304 153.5, 54 143.5, 54 153.5");
}

TEST_F(DrawCommandTest, everyFloorOfEverySampleIsWellFormed)
{
    for (const char *building : {"duplex-apartment", "masonry-block", "precast-hall", "made-building"}) {
        importSample(building);
        const QJsonObject info = run({"project", "info", "house.hbxdb", "--json"}).json();
        for (const QJsonValue region : info["regions"].toArray())
            for (const QJsonValue floor : region.toObject()["floors"].toArray()) {
                int placed = 0;
                for (const QJsonValue type : floor.toObject()["types"].toArray())
                    placed += type.toObject()["drawObjects"].toInt();
                draw(floor.toObject()["name"].toString(), region.toObject()["name"].toString());
                EXPECT_EQ(m_summary["drawn"].toInt() + m_summary["withoutGeometry"].toInt(), placed);
            }
    }
}

TEST_F(DrawCommandTest, nameWithMarkupCharactersStaysText)
{
    importHouse(wall("<Q> & 1", 0, 5000, 0));
    const QDomElement picture = draw("F");
    EXPECT_EQ(texts(group(picture, "names")), QStringList{"<Q> & 1"});
    EXPECT_TRUE(texts(picture).contains("House & garden"));
}

TEST_F(DrawCommandTest, unknownRegionAndFloorListTheKnownOnes)
{
    importSample("made-building");
    EXPECT_EQ(refusal({"draw", "house.hbxdb", "--region", "Barn", "--floor", "1"}, "house.hbxdb")["reason"].toString(),
              QStringLiteral("no region \"Barn\"; known regions: \"主楼\", \"附楼 Annex\""));
    EXPECT_EQ(refusal({"draw", "house.hbxdb", "--region", "附楼 Annex", "--floor", "第1层"}, "house.hbxdb")["reason"]
                  .toString(),
              QStringLiteral("no floor \"第1层\" in region \"附楼 Annex\"; known floors: \"Roof\", \"Ground\""));
}

} // namespace

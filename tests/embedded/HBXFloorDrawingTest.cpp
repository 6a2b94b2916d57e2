#include "platform/embedded/HBXFloorDrawing.h"

#include "embedded/EmbeddedBuilding.h"
#include "platform/dwgx/HBXCADFileHelper.h"
#include "platform/dwgx/HBXCADIOperator.h"
#include "platform/embedded/HBXProject.h"
#include "platform/geometry/CArc2d.h"
#include "support/BuildingHost.h"

#include <QFile>
#include <QTemporaryDir>

namespace {

using dwgx::DWGXLayer;
using dwgx::DWGXModel;
using dwgx::DWGXText;
using hbx::embedded::expectBox;
using hbx::embedded::HBXProject;
using Vec = vks::CVec2<double>;

constexpr double kQuarterTurn = 1.5707963267948966; // rad
constexpr double kNear = 1e-6;                      // mm, rad

class HBXFloorDrawingTest : public ::testing::Test
{
protected:
    /** Draws a floor that holds these elements; ' stands for ". */
    void draw(const QString &elements, const QString &options = "[]")
    {
        const QString json = QStringLiteral("{'format':'hbx-project','version':1,'name':'Test','options':%1,"
                                            "'regions':[{'name':'House','floors':["
                                            "{'name':'Level 1','code':'1','bottomElev':0,'height':3,'elements':[%2]},"
                                            "{'name':'Level 2','code':'2','bottomElev':3,'height':3}]}]}")
                                 .arg(options, elements);
        hbx::embedded::ProjectError error;
        m_project = HBXProject::fromJson(QString(json).replace('\'', '"').toUtf8(), "test.json", error);
        ASSERT_TRUE(m_project) << qPrintable(error.text());
        m_drawing = hbx::embedded::makeFloorDrawing(model(), floor("Level 1"));
        ASSERT_TRUE(m_drawing);
    }
    IHBXModel *model() const { return m_project->service()->model(); }
    IHBXFloor *floor(const QString &name) const { return model()->regions()->find("House")->floors()->find(name); }

    static QString element(int type, const QString &name, const QString &shape)
    {
        return QStringLiteral("{'name':'%1','type':%2,'drawObjects':[{'shape':%3}]}").arg(name).arg(type).arg(shape);
    }
    static QString wall(const QString &axis, int width = 200)
    {
        return QStringLiteral("{'kind':'line','axis':'%1','width':%2}").arg(axis).arg(width);
    }
    const DWGXLayer &layer(const char *name) const
    {
        static const DWGXLayer none;
        const DWGXLayer *found = m_drawing->layer(QString::fromUtf8(name));
        EXPECT_TRUE(found) << name;
        return found ? *found : none;
    }
    static vks::CBox2<double> boxOf(const DWGXLayer &layer)
    {
        vks::CBox2<double> box;
        for (const dwgx::DWGXLine &line : layer.lines)
            box.Add(line.curve->Box());
        return box;
    }
    static void expectText(const DWGXText &text, const QString &content, const Vec &middle, double angle)
    {
        EXPECT_EQ(text.content.toStdString(), content.toStdString());
        const auto corners = text.corners();
        EXPECT_NEAR((corners[0].x + corners[2].x) / 2, middle.x, kNear) << qPrintable(content);
        EXPECT_NEAR((corners[0].y + corners[2].y) / 2, middle.y, kNear) << qPrintable(content);
        EXPECT_NEAR(text.angle, angle, kNear) << qPrintable(content);
    }

    std::unique_ptr<HBXProject> m_project;
    std::unique_ptr<DWGXModel> m_drawing;
};

TEST_F(HBXFloorDrawingTest, emptyFloorGivesAnEmptyDrawing)
{
    draw("");
    EXPECT_TRUE(m_drawing->layers().empty());
    EXPECT_TRUE(m_drawing->getFilePath().isEmpty());
}

TEST_F(HBXFloorDrawingTest, nullModelAndNullFloorGiveNull)
{
    draw("");
    EXPECT_EQ(hbx::embedded::makeFloorDrawing(nullptr, floor("Level 1")), nullptr);
    EXPECT_EQ(hbx::embedded::makeFloorDrawing(model(), nullptr), nullptr);
}

TEST_F(HBXFloorDrawingTest, onlyTheFloorItselfIsDrawn)
{
    draw(element(1003, "M200", wall("LINESTRING(0 0, 4000 0)")));
    EXPECT_TRUE(hbx::embedded::makeFloorDrawing(model(), floor("Level 2"))->layers().empty());
}

TEST_F(HBXFloorDrawingTest, wallIsDrawnAsTheStripOfItsWidthWithItsNameAlongTheAxis)
{
    draw(element(1003, "M200", wall("LINESTRING(0 0, 4000 0)")));
    ASSERT_EQ(m_drawing->layers().size(), 2U);
    const DWGXLayer &lines = layer("砌体墙线");
    EXPECT_EQ(lines.lines.size(), 4U);
    expectBox(boxOf(lines), 0, -100, 4000, 100);
    const DWGXLayer &texts = layer("墙标注");
    ASSERT_EQ(texts.texts.size(), 1U);
    expectText(texts.texts[0], "M200", {2000, 0}, 0.0);
}

TEST_F(HBXFloorDrawingTest, namesReadFromBelowOrFromTheRightWhicheverWayTheAxisRuns)
{
    draw(QStringList{
        element(0, "W1", wall("LINESTRING(4000 0, 0 0)")), element(0, "W2", wall("LINESTRING(0 6000, 0 0)")),
        element(0, "W3", wall("LINESTRING(0 0, 0 6000)")), element(0, "W4", wall("LINESTRING(0 0, -1000 -1000)"))}
             .join(','));
    const auto &texts = layer("墙标注").texts;
    ASSERT_EQ(texts.size(), 4U);
    expectText(texts[0], "W1", {2000, 0}, 0.0);
    expectText(texts[1], "W2", {0, 3000}, kQuarterTurn);
    expectText(texts[2], "W3", {0, 3000}, kQuarterTurn);
    expectText(texts[3], "W4", {-500, -500}, kQuarterTurn / 2);
}

TEST_F(HBXFloorDrawingTest, curvedWallKeepsItsArcs)
{
    draw(element(0, "W1", wall("CIRCULARSTRING(3000 0, 0 3000, -3000 0)")));
    int arcs = 0;
    for (const dwgx::DWGXLine &line : layer("混凝土墙线").lines)
        arcs += line.curve->Type() == vks::CCurve2d::kArc ? 1 : 0;
    EXPECT_EQ(arcs, 2);
    expectText(layer("墙标注").texts.at(0), "W1", {0, 3000}, 0.0);
}

TEST_F(HBXFloorDrawingTest, pointSolidIsDrawnInTheWorldWithItsNameInTheMiddle)
{
    draw(element(25, "KZ1",
                 "{'kind':'point','outline':'POLYGON((-250 -300, 250 -300, 250 300, -250 300, -250 -300))',"
                 "'insertPoint':[4000,6000],'angle':1.5707963267948966}"));
    EXPECT_EQ(layer("柱边线").lines.size(), 4U);
    expectBox(boxOf(layer("柱边线")), 3700, 5750, 4300, 6250);
    expectText(layer("柱标注").texts.at(0), "KZ1", {4000, 6000}, 0.0);
}

TEST_F(HBXFloorDrawingTest, slabIsDrawnWithItsHoles)
{
    draw(element(19, "B120",
                 "{'kind':'face','height':-120,'outline':'POLYGON((0 0, 5000 0, 5000 4000, 0 4000, 0 0),"
                 "(1000 1000, 1000 2000, 2000 2000, 2000 1000, 1000 1000))'}"));
    EXPECT_EQ(layer("现浇板").lines.size(), 8U);
    EXPECT_EQ(layer("现浇板标注").texts.at(0).content, "B120");
}

TEST_F(HBXFloorDrawingTest, axesAreDrawnWithABubbleAtBothEnds)
{
    draw(element(74, "Grid",
                 "{'kind':'grid','outline':null,'axes':[[{'label':'1','curve':'LINESTRING(0 0, 0 6000)'}],"
                 "[],[{'label':'A','curve':'LINESTRING(0 0, 4000 0)'}],[]],"
                 "'coordinates':{'origin':[100,200,0],'u':[1,0,0],'v':[0,1,0]}}"));
    const DWGXLayer &lines = layer("轴网");
    ASSERT_EQ(lines.lines.size(), 6U); // two axes, four bubbles
    expectBox(boxOf(lines), -700, -600, 4900, 7000);
    const auto &texts = layer("轴网标注").texts;
    ASSERT_EQ(texts.size(), 4U);
    expectText(texts[0], "1", {100, -200}, 0.0);
    expectText(texts[1], "1", {100, 6600}, 0.0);
    expectText(texts[2], "A", {-300, 200}, 0.0);
    expectText(texts[3], "A", {4500, 200}, 0.0);
}

TEST_F(HBXFloorDrawingTest, planLinesAreDrawnAsTheyRun)
{
    draw(element(75, "Axis", "{'kind':'line2d','curve':'LINESTRING(0 0, 3000 4000)'}"));
    ASSERT_EQ(layer("辅助轴线").lines.size(), 1U);
    EXPECT_EQ(layer("辅助轴线").lines[0].curve->ToText(), "LINESTRING(0 0, 3000 4000)");
    expectText(layer("辅助轴线标注").texts.at(0), "Axis", {1500, 2000}, std::atan2(4.0, 3.0));
}

TEST_F(HBXFloorDrawingTest, foundationIsDrawnByItsUnits)
{
    draw("{'name':'J1','type':52,'drawObjects':[{'shape':{'kind':'point','outline':null,'insertPoint':[1000,1000]},"
         "'children':[{'unit':0,'shape':{'kind':'point','insertPoint':[1000,1000],"
         "'outline':'POLYGON((-500 -500, 500 -500, 500 500, -500 500, -500 -500))'}}]}],"
         "'units':[{'name':'J1-1','type':82}]}");
    EXPECT_EQ(m_drawing->layer(QStringLiteral("独立基础")), nullptr);
    EXPECT_EQ(layer("独立基础单元").lines.size(), 4U);
    EXPECT_EQ(layer("独立基础单元标注").texts.at(0).content, "J1-1");
}

TEST_F(HBXFloorDrawingTest, objectsWithoutGeometryAreLeftOut)
{
    draw(QStringList{element(1003, "M200", "{'kind':'line','axis':null,'width':200}"),
                     element(19, "B120", "{'kind':'face','outline':null,'height':-120}"),
                     element(75, "Axis", "{'kind':'line2d','curve':null}")}
             .join(','));
    EXPECT_TRUE(m_drawing->layers().empty());
}

TEST_F(HBXFloorDrawingTest, layersComeInOrderOfTheTypesAndLinesAreInkedByType)
{
    draw(QStringList{element(1003, "M200", wall("LINESTRING(0 0, 4000 0)")),
                     element(15, "KL1", wall("LINESTRING(0 0, 4000 0)")),
                     element(0, "W1", wall("LINESTRING(0 0, 4000 0)"))}
             .join(','));
    QStringList names;
    for (const DWGXLayer &each : m_drawing->layers())
        names.append(each.name);
    EXPECT_EQ(names.join(' ').toStdString(), "混凝土墙线 墙标注 梁 梁集中标注 砌体墙线");
    EXPECT_EQ(layer("墙标注").color, dwgx::kColorInk);
    EXPECT_EQ(layer("墙标注").texts.size(), 2U);
}

TEST_F(HBXFloorDrawingTest, layerNamesThatTheProjectKeepsAreUsed)
{
    draw(element(1003, "M200", wall("LINESTRING(0 0, 4000 0)")),
         "[{'group':'CADLayerNames','name':'砌体墙线','value':'A-WALL-BRICK'}]");
    EXPECT_EQ(layer("A-WALL-BRICK").lines.size(), 4U);
    EXPECT_EQ(m_drawing->layer(QStringLiteral("砌体墙线")), nullptr);
}

/** Each sample building of tests/data. */
class SampleFloorDrawingTest : public ::testing::TestWithParam<const char *>
{
protected:
    /** Names of the elements behind the floor's objects that have an outline and no children, in alphabetical order. */
    QStringList namesOfOutlines(const IHBXFloor &floor) const
    {
        QStringList names;
        for (IHBXElementDrawObj *object : m_building.drawObjsOf(floor)) {
            vks::CRefPtr<vks::CPolygon> outline;
            QString name;
            const bool drawn = object->shape() && object->childCount() == 0 && object->type() != 74;
            if (drawn && object->shape()->worldPoly(outline, IHBXModel::g_bDefaultAutoCalc))
                names.append(object->element()->name(name));
        }
        names.sort();
        return names;
    }

    BuildingHost m_building{GetParam()};
};

TEST_P(SampleFloorDrawingTest, everyObjectWithAnOutlineIsNamedOnce)
{
    int named = 0;
    m_building.forEachFloor([&](IHBXFloor &floor) {
        const auto drawing = hbx::embedded::makeFloorDrawing(&m_building.model(), &floor);
        QStringList texts;
        for (const DWGXLayer &layer : drawing->layers())
            for (const DWGXText &text : layer.texts)
                texts.append(text.content);
        for (const QString &name : namesOfOutlines(floor)) {
            EXPECT_TRUE(texts.removeOne(name)) << qPrintable(name);
            ++named;
        }
    });
    EXPECT_GT(named, 20);
}

TEST_P(SampleFloorDrawingTest, drawingReadsBackFromItsFileAsItWas)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("floor.cadi2");
    const std::unique_ptr<HBXCADIOperator> files(HBXCADFileHelper::getInstance()->createCADIOperator());
    const auto content = [&] {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    };
    m_building.forEachFloor([&](IHBXFloor &floor) {
        const auto drawing = hbx::embedded::makeFloorDrawing(&m_building.model(), &floor);
        ASSERT_TRUE(files->write(path, drawing.get(), floor.name(), QString()));
        const QByteArray first = content();
        const std::unique_ptr<DWGXModel> back(DWGXModel::createObject());
        ASSERT_TRUE(files->read(path, back.get()))
            << qPrintable(files->lastErrorPlace()) << qPrintable(files->lastErrorReason());
        EXPECT_EQ(back->lineCount(), drawing->lineCount());
        EXPECT_EQ(back->textCount(), drawing->textCount());
        ASSERT_TRUE(files->write(path, back.get(), QString(), QString()));
        EXPECT_EQ(content(), first);
    });
}

INSTANTIATE_TEST_SUITE_P(Buildings, SampleFloorDrawingTest,
                         ::testing::Values("duplex-apartment", "masonry-block", "precast-hall", "made-building"));

} // namespace

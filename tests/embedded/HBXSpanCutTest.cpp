#include "platform/embedded/HBXSpanCut.h"

#include "embedded/EmbeddedBuilding.h"

#include <gmock/gmock.h>

namespace hbx::embedded {
namespace {

using testing::IsEmpty;

/** A beam of 300 by 600 along the x axis from 0 to 10000 on the floor from 0 m to 3 m, and what it rests on. */
class HBXSpanCutTest : public EmbeddedBuilding
{
protected:
    HBXSpanCutTest() { beam = piece(newBeam("KL1", 600), "LINESTRING(0 0, 10000 0)"); }

    IHBXElement *newBeam(const char *name, double height)
    {
        IHBXElement *of = element(15, name);
        of->properties()->setDouble(L"SectionWidth", 300, true);
        of->properties()->setDouble(L"SectionHeight", height, true);
        return of;
    }
    IHBXElementDrawObj *piece(IHBXElement *of, const char *axis)
    {
        IHBXElementDrawObj *object = placed(of);
        as<IHBXCustomLineSolidShape>(object)->setLine(curveOf(axis));
        return object;
    }
    /** A square column about a point. */
    void column(double x, double y, double side = 500, qint64 type = 25)
    {
        IHBXElement *of = element(type);
        of->properties()->setDouble(L"SectionWidth", side, true);
        of->properties()->setDouble(L"SectionHeight", side, true);
        const Point point(x, y);
        as<IHBXCustomPointSolidShape>(placed(of))->setInsertPoint(&point);
    }
    /** Length and measures of each span. */
    QStringList cut(IHBXElementDrawObj *head = nullptr) const
    {
        QStringList texts;
        for (const QJsonObject &span : HBXSpanCut(head ? *head : *beam).spans())
            texts.append(QString::number(span.value("SpanLength").toDouble(), 'g', 8) + ": " +
                         span.value("SpanA1_A4").toString());
        return texts;
    }

    IHBXElementDrawObj *beam = nullptr;
};

TEST_F(HBXSpanCutTest, beamOnNothingIsOneSpan) { EXPECT_EQ(cut(), QStringList{"10000: 0,0,0,0"}); }

TEST_F(HBXSpanCutTest, spansRunBetweenTheMiddlesOfColumns)
{
    column(0, 0);
    column(4000, 0);
    column(10000, 0);
    EXPECT_EQ(cut(), (QStringList{"4000: 250,250,250,250", "6000: 250,250,250,250"}));
}

TEST_F(HBXSpanCutTest, freeEndsAreSpansOfTheirOwn)
{
    column(2000, 0);
    column(9000, 0);
    EXPECT_EQ(cut(), (QStringList{"2000: 0,0,250,250", "7000: 250,250,250,250", "1000: 250,250,0,0"}));
}

TEST_F(HBXSpanCutTest, wallCutsTheBeamHoweverFarItReaches)
{
    for (const double reach : {200.0, 1500.0, 3999.0, 4001.0, 70000.0, 5e6, 1e11}) {
        IHBXElement *of = element(1003);
        of->properties()->setDouble(L"Thickness", 200, true);
        IHBXElementDrawObj *wall = placed(of);
        as<IHBXCustomLineSolidShape>(wall)->setLine(
            curveOf(QStringLiteral("LINESTRING(5000 -%1, 5000 100)").arg(reach, 0, 'f', 0).toLatin1()));
        EXPECT_EQ(cut(), (QStringList{"5000: 0,0,100,100", "5000: 100,100,0,0"})) << reach;
        wall->remove();
        EXPECT_EQ(cut(), QStringList{"10000: 0,0,0,0"}) << reach;
    }
}

TEST_F(HBXSpanCutTest, columnThatWasMovedIsFoundWhereItStandsNow)
{
    column(4000, 0);
    ASSERT_EQ(cut().size(), 2);
    QList<IHBXElementDrawObj *> columns;
    beam->floor()->drawObjsOfTypes(columns, {25}, true);
    const Point away(4000, 50000);
    as<IHBXCustomPointSolidShape>(columns.first())->setInsertPoint(&away);
    EXPECT_EQ(cut(), QStringList{"10000: 0,0,0,0"});
    const Point back(6000, 0);
    as<IHBXCustomPointSolidShape>(columns.first())->setInsertPoint(&back);
    EXPECT_EQ(cut(), (QStringList{"6000: 0,0,250,250", "4000: 250,250,0,0"}));
}

TEST_F(HBXSpanCutTest, singleColumnInTheMiddleLeavesTwoFreeSpans)
{
    column(4000, 0);
    EXPECT_EQ(cut(), (QStringList{"4000: 0,0,250,250", "6000: 250,250,0,0"}));
}

TEST_F(HBXSpanCutTest, singleColumnAtAnEndLeavesOneSpan)
{
    column(0, 0);
    EXPECT_EQ(cut(), QStringList{"10000: 250,250,0,0"});
}

TEST_F(HBXSpanCutTest, columnUnderTheEndOfTheBeamLeavesNoFreeEnd)
{
    column(200, 0); // from -50 to 450
    column(9800, 0);
    EXPECT_EQ(cut(), QStringList{"9600: 250,250,250,250"});
}

TEST_F(HBXSpanCutTest, columnThatTheBeamEndsAtIsMetWithinFiveMillimetres)
{
    column(-254, 0);  // 4 mm before the start
    column(10256, 0); // 6 mm behind the end
    EXPECT_EQ(cut(), QStringList{"10000: 504,-4,0,0"});
}

TEST_F(HBXSpanCutTest, columnBesideTheBeamIsNoSupport)
{
    column(5000, 400);
    EXPECT_EQ(cut(), QStringList{"10000: 0,0,0,0"});
}

TEST_F(HBXSpanCutTest, supportsThatOverlapUnderTheBeamAreOne)
{
    column(0, 0);
    column(10000, 0);
    column(5000, 0);
    wall("LINESTRING(5200 -3000, 5200 3000)", 200); // from 5100 to 5300
    EXPECT_EQ(cut(), (QStringList{"5025: 250,250,275,275", "4975: 275,275,250,250"}));
}

TEST_F(HBXSpanCutTest, wallsAcrossAreSupports)
{
    wall("LINESTRING(0 -3000, 0 3000)", 240);
    wall("LINESTRING(10000 -3000, 10000 3000)", 200, 0);
    EXPECT_EQ(cut(), QStringList{"10000: 120,120,100,100"});
}

TEST_F(HBXSpanCutTest, wallUnderMostOfTheBeamIsNoSupport)
{
    column(0, 0);
    column(10000, 0);
    wall("LINESTRING(1000 0, 9000 0)", 240);
    EXPECT_EQ(cut(), QStringList{"10000: 250,250,250,250"});
}

TEST_F(HBXSpanCutTest, wallInLineWithTheBeamHoldsItsEnd)
{
    wall("LINESTRING(-4000 0, 0 0)", 300);
    wall("LINESTRING(10000 0, 14000 0)", 300);
    EXPECT_EQ(cut(), QStringList{"10000: 4000,0,0,4000"});
}

TEST_F(HBXSpanCutTest, deeperBeamsAreSupportsAndOthersAreNot)
{
    piece(newBeam("KL2", 800), "LINESTRING(4000 -3000, 4000 3000)");
    piece(newBeam("KL3", 600), "LINESTRING(6000 -3000, 6000 3000)");
    piece(newBeam("KL4", 400), "LINESTRING(8000 -3000, 8000 3000)");
    EXPECT_EQ(cut(), (QStringList{"4000: 0,0,150,150", "6000: 150,150,0,0"}));
}

TEST_F(HBXSpanCutTest, outlinedSectionIsAsDeepAsItsBox)
{
    IHBXElementDrawObj *outlined = piece(element(15, "KL2"), "LINESTRING(4000 -3000, 4000 3000)");
    outlined->properties()->setPolygon(L"SectionPoly", polygonOf("POLYGON((0 0, 400 0, 400 700, 0 700, 0 0))"), true);
    outlined->properties()->setDouble(L"SectionWidth", 400, true);
    EXPECT_EQ(cut(), (QStringList{"4000: 0,0,200,200", "6000: 200,200,0,0"}));
    EXPECT_EQ(HBXSpanCut(*outlined).spans().at(0).value("Section").toString(), "400*700");
    EXPECT_EQ(cut(outlined), QStringList{"6000: 0,0,0,0"});
}

struct SupportCase
{
    qint64 type;
    bool counts;
};
class HBXSpanCutSupportTest : public HBXSpanCutTest, public ::testing::WithParamInterface<SupportCase>
{};

TEST_P(HBXSpanCutSupportTest, columnsWallsAndFoundationsAreSupports)
{
    column(5000, 0, 400, GetParam().type);
    EXPECT_EQ(cut().size(), GetParam().counts ? 2 : 1);
}
INSTANTIATE_TEST_SUITE_P(Types, HBXSpanCutSupportTest,
                         ::testing::Values(SupportCase{25, true}, SupportCase{26, true}, SupportCase{1002, true},
                                           SupportCase{52, true}, SupportCase{53, true}, SupportCase{54, true},
                                           SupportCase{24, false}));

TEST_F(HBXSpanCutTest, objectsOfOtherFloorsAreNoSupports)
{
    IHBXElement *of = element(25, "KZ", "F2");
    of->properties()->setDouble(L"SectionWidth", 500, true);
    of->properties()->setDouble(L"SectionHeight", 500, true);
    const Point point(5000, 0);
    as<IHBXCustomPointSolidShape>(placed(of))->setInsertPoint(&point);
    EXPECT_EQ(cut().size(), 1);
}

TEST_F(HBXSpanCutTest, chainIsCutAsAWholeWhateverItsPieces)
{
    IHBXElement *of = newBeam("KL2", 600);
    IHBXElementDrawObj *first = piece(of, "LINESTRING(0 5000, 3000 5000)");
    IHBXElementDrawObj *second = piece(of, "LINESTRING(3000 5000, 8000 5000)");
    first->linkNext(second);
    column(0, 5000);
    column(3000, 5000); // at the joint, met by both pieces
    column(8000, 5000);
    EXPECT_EQ(cut(first), (QStringList{"3000: 250,250,250,250", "5000: 250,250,250,250"}));
    column(1500, 9000);
    EXPECT_EQ(cut(first).size(), 2);
}

TEST_F(HBXSpanCutTest, arcIsCutAlongItself)
{
    IHBXElementDrawObj *arc = piece(newBeam("KL2", 600), "CIRCULARSTRING(20000 0, 24000 4000, 20000 8000)");
    wall("LINESTRING(22000 4000, 26000 4000)", 200);
    const auto spans = HBXSpanCut(*arc).spans();
    ASSERT_EQ(spans.size(), 2U);
    EXPECT_NEAR(spans[0].value("SpanLength").toDouble(), 6283.185, 0.01);
    EXPECT_EQ(spans[0].value("SpanA1_A4").toString(), "0,0,100,100");
}

TEST_F(HBXSpanCutTest, arcThatEndsAtTheFaceOfAWallRestsOnIt)
{
    IHBXElementDrawObj *arc = piece(newBeam("KL2", 600), "CIRCULARSTRING(20000 0, 24000 4000, 20000 8000)");
    wall("LINESTRING(19900 -3000, 19900 11000)", 200); // its face is at 20000
    EXPECT_EQ(cut(arc), QStringList{"12566.371: 200,0,0,200"});
}

TEST_F(HBXSpanCutTest, fullCircleIsOneSpan)
{
    IHBXElementDrawObj *ring = piece(newBeam("KL2", 600), "CIRCULARSTRING(20000 0, 30000 0, 20000 0)");
    EXPECT_EQ(cut(ring), QStringList{"31415.927: 0,0,0,0"});
    wall("LINESTRING(30000 -1000, 30000 1000)", 200);
    EXPECT_EQ(cut(ring).size(), 2);
}

TEST_F(HBXSpanCutTest, elevationsFollowThePieces)
{
    beam->properties()->setString(L"StartPtTopElev", QStringLiteral("层顶标高"), true);
    beam->properties()->setString(L"EndPtTopElev", QStringLiteral("层顶标高-1"), true);
    column(0, 0);
    column(4000, 0);
    column(10000, 0);
    const auto spans = HBXSpanCut(*beam).spans();
    ASSERT_EQ(spans.size(), 2U);
    EXPECT_NEAR(spans[0].value("StartElev").toDouble(), 3.0, 1e-9);
    EXPECT_NEAR(spans[0].value("EndElev").toDouble(), 2.6, 1e-9);
    EXPECT_NEAR(spans[1].value("StartElev").toDouble(), 2.6, 1e-9);
    EXPECT_NEAR(spans[1].value("EndElev").toDouble(), 2.0, 1e-9);
}

TEST_F(HBXSpanCutTest, numberSectionOffsetAndBarsAreThoseOfTheBeam)
{
    IHBXProperties *properties = beam->element()->properties();
    properties->setDouble(L"AxisOffset", 25, true);
    for (const wchar_t *name : {L"TopThroughBar", L"BottomThroughBar", L"SideBar", L"TieBar", L"HoopBar"})
        properties->setString(name, QString::fromWCharArray(name), true);
    properties->setString(L"Limb", "4", true);
    column(4000, 0);
    const auto spans = HBXSpanCut(*beam).spans();
    ASSERT_EQ(spans.size(), 2U);
    EXPECT_EQ(spans[0].value("SpanIndex").toInt(), 1);
    EXPECT_EQ(spans[1].value("SpanIndex").toInt(), 2);
    EXPECT_EQ(spans[1].value("Section").toString(), "300*600");
    EXPECT_EQ(spans[1].value("AxisOffset").toDouble(), 25);
    EXPECT_EQ(spans[1].value("HoopBarLimbCount").toInt(), 4);
    for (const char *key : {"TopThroughBar", "BottomThroughBar", "SideBar", "TieBar", "HoopBar"})
        EXPECT_EQ(spans[1].value(QLatin1String(key)).toString(), key);
}

TEST_F(HBXSpanCutTest, chainWithoutAnAxisHasNoSpans)
{
    as<IHBXCustomLineSolidShape>(beam)->setLine(nullptr);
    EXPECT_THAT(HBXSpanCut(*beam).spans(), IsEmpty());
    as<IHBXCustomLineSolidShape>(beam)->setLine(curveOf("LINESTRING(5 5, 5 5)"));
    EXPECT_THAT(HBXSpanCut(*beam).spans(), IsEmpty());
}

} // namespace
} // namespace hbx::embedded

#include "cli/PlanLegend.h"

#include "HouseFixture.h"
#include "Picture.h"
#include "cli/PlanShades.h"
#include "cli/SvgPage.h"

using namespace orvcad;

namespace {

class PlanLegendTest : public HouseFixture
{
protected:
    Picture picture() const { return Picture(page.document("", "")); }
    /** The first text of those words. */
    static QDomElement textOf(const QDomElement &element, const QString &words)
    {
        const QDomNodeList nodes = element.elementsByTagName("text");
        for (int i = 0; i < nodes.size(); ++i)
            if (nodes.at(i).toElement().text() == words)
                return nodes.at(i).toElement();
        return {};
    }
    static int count(const QDomElement &element, const char *tag) { return element.elementsByTagName(tag).size(); }

    SvgPage page{420, 297};
    PlanLegend legend{page};
};

TEST_F(PlanLegendTest, titleNamesFloorBuildingRegionCodeElevationAndScale)
{
    openHouse();
    legend.paintTitle(floor(), "House & garden", 100);
    EXPECT_EQ(Picture::texts(picture().root()), (QStringList{"F", "House & garden", "House", "Floor code 1",
                                                             "Bottom 0 m, height 3 m", "Scale 1:100 (A3)"}));
}

TEST_F(PlanLegendTest, titleThatIsTooLongIsMadeSmaller)
{
    openHouse();
    const QString longName(100, 'x'); // 187 mm at full size, of which 52 are there
    legend.paintTitle(floor(), longName, 100);
    const QDomElement root = picture().root();
    const double full = textOf(root, "House").attribute("font-size").toDouble();
    EXPECT_NEAR(textOf(root, longName).attribute("font-size").toDouble(), full * 52 / 187, 0.001);
}

TEST_F(PlanLegendTest, areasHaveASwatchLinesALineAndWindowsBoth)
{
    legend.paintEntries({{0, {19, 3, true}}, {1, {23, 1, false}}, {2, {5, 2, true}}});
    const Picture all = picture();
    const QDomElement entries = all.group("legend");
    EXPECT_EQ(Picture::texts(entries), (QStringList{QStringLiteral("3 × slab"), QStringLiteral("1 × slab negative bar"),
                                                    QStringLiteral("2 × window")}));
    EXPECT_EQ(count(entries, "rect"), 2);
    EXPECT_EQ(count(entries, "path"), 2);
}

TEST_F(PlanLegendTest, elevationsStandBelowTheEntriesTypeByType)
{
    PlanShades slabs;
    slabs.add(3000);
    slabs.add(2950);
    PlanShades rafts;
    rafts.add(-1500);
    legend.paintEntries({{0, {19, 2, true}}});
    legend.paintElevations({{19, slabs}, {48, rafts}});
    const Picture all = picture();
    const QDomElement elevations = all.group("elevations");
    EXPECT_EQ(Picture::texts(elevations), (QStringList{"Top of slabs", "1 at +3.000 m", "1 at +2.950 m", "Top of rafts",
                                                       QStringLiteral("1 at −1.500 m")}));
    double above = textOf(all.group("legend"), QStringLiteral("2 × slab")).attribute("y").toDouble();
    for (const QString &line : Picture::texts(elevations)) {
        const double y = textOf(elevations, line).attribute("y").toDouble();
        EXPECT_GT(y, above) << line.toStdString();
        above = y;
    }
}

TEST_F(PlanLegendTest, buildingWithoutSlabsHasNoElevations)
{
    legend.paintElevations({});
    EXPECT_EQ(Picture::texts(picture().root()), QStringList());
}

/** A scale, and the bar that is drawn to it. */
struct Bar
{
    double scale;
    QString half; ///< length of each half, mm of paper
    QStringList marks;
};

TEST_F(PlanLegendTest, scaleBarIsTheLongestRoundOneThatFits)
{
    // Two halves have 50 mm of paper.
    for (const Bar &bar :
         {Bar{100, "20", {"0", "2", "4 m"}}, Bar{20, "25", {"0", "0.5", "1 m"}}, Bar{10000, "5", {"0", "50", "100 m"}},
          Bar{1, "100", {"0", "0.1", "0.2 m"}}}) { // none fits: the shortest
        SvgPage sheet(420, 297);
        PlanLegend(sheet).paintScaleBar(bar.scale);
        const Picture drawn(sheet.document("", ""));
        const QDomNodeList halves = drawn.group("scale-bar").elementsByTagName("rect");
        ASSERT_EQ(halves.size(), 2);
        EXPECT_EQ(halves.at(0).toElement().attribute("width"), bar.half) << bar.scale;
        EXPECT_EQ(halves.at(1).toElement().attribute("width"), bar.half) << bar.scale;
        EXPECT_EQ(Picture::texts(drawn.group("scale-bar")), bar.marks) << bar.scale;
    }
}

} // namespace

#include "cli/HtmlPlan.h"

#include "HouseFixture.h"
#include "Picture.h"
#include "cli/HtmlModel.h"
#include "platform/embedded/HBXModelStore.h"

namespace {

class HtmlPlanTest : public HouseFixture
{
protected:
    /** The section of the floor as XML, which it is as well. */
    Picture sectionOf(const QByteArray &elements)
    {
        openHouse(elements);
        const hbx::embedded::ProjectRecord record = project->store().snapshot();
        orvcad::HtmlModel html(record, nullptr, nullptr);
        html.addFloor("F", "House", 0, floor().id());
        orvcad::HtmlPlan plan(html, "House & F");
        plan.add(model(), floor());
        types = plan.types();
        drawn = plan.drawn();
        return Picture(plan.section(3, floor()));
    }

    QList<qint64> types;
    int drawn = 0;
};

TEST_F(HtmlPlanTest, objectsCarryTheirPlaceInTheModel)
{
    const Picture section = sectionOf(wall("Q1", "LINESTRING(0 0, 5000 0)") + ',' + column("K1", 0, 0));
    EXPECT_EQ(section.root().attribute("id"), "floor-3");
    EXPECT_EQ(section.root().firstChildElement("h2").text(), "House & F bottom 0 m, height 3 m");
    EXPECT_EQ(section.groupOfType(1003).firstChildElement("g").attribute("data-o"), "0");
    EXPECT_EQ(section.groupOfType(25).firstChildElement("g").attribute("data-o"), "1");
    EXPECT_FALSE(section.groupOfType(25).firstChildElement("g").hasAttribute("data-d"));
    EXPECT_EQ(types, (QList<qint64>{1003, 25}));
    EXPECT_EQ(drawn, 2);
}

TEST_F(HtmlPlanTest, viewHoldsThePlanWithRoomAroundIt)
{
    // 5000 by 200 mm at 1:20 is 250 by 10 mm of paper, with 8 mm on each side
    const Picture section = sectionOf(wall("Q1", "LINESTRING(0 0, 5000 0)"));
    const QStringList view = section.root().firstChildElement("svg").attribute("viewBox").split(' ');
    ASSERT_EQ(view.size(), 4);
    EXPECT_EQ(view[2], "266.00");
    EXPECT_EQ(view[3], "26.00");
}

TEST_F(HtmlPlanTest, legendForPaperCountsTypes)
{
    const Picture section = sectionOf(column("K1", 0, 0) + ',' + column("K2", 900, 0));
    EXPECT_EQ(section.root().firstChildElement("ul").text().simplified(), QStringLiteral("2 × column"));
}

TEST_F(HtmlPlanTest, emptyFloorHasAPlanAllTheSame)
{
    const Picture section = sectionOf({});
    EXPECT_EQ(section.root().firstChildElement("svg").attribute("viewBox").split(' ').size(), 4);
    EXPECT_EQ(drawn, 0);
}

} // namespace

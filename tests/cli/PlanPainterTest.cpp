#include "cli/PlanPainter.h"

#include "HouseFixture.h"
#include "Picture.h"
#include "cli/PlanContents.h"
#include "cli/SvgPage.h"
#include "platform/host/IHBXElementDrawObj.h"

using orvcad::PlanMarks;
using orvcad::PlanPainter;

namespace {

class PlanPainterTest : public HouseFixture
{
protected:
    Picture paint(const PlanMarks &marks = {})
    {
        const orvcad::PlanContents contents = orvcad::planContentsOf(model(), floor());
        orvcad::SvgPage page(420, 297);
        scale = PlanPainter::layOut(page, contents.box);
        PlanPainter painter(page, contents, marks);
        painter.paintObjects();
        painter.paintNames(scale);
        return Picture(page.document("plan", ""));
    }

    double scale = 0.0;
};

TEST_F(PlanPainterTest, scaleIsTheLargestRoundOneAtWhichThePlanFits)
{
    openHouse(wall("Q1", "LINESTRING(0 0, 6000 0)")); // 6 m on 321.2 mm of paper
    paint();
    EXPECT_EQ(scale, 20);
    openHouse(wall("Q1", "LINESTRING(0 0, 6500 0)"));
    paint();
    EXPECT_EQ(scale, 25);
}

TEST_F(PlanPainterTest, nothingIsAddedWithoutMarks)
{
    openHouse(column("K1", 0, 0, 25));
    EXPECT_EQ(Picture::pathCount(paint().groupOfType(25)), 1);
    EXPECT_TRUE(paint().group("o").isNull());
}

TEST_F(PlanPainterTest, markedObjectsStandInGroupsAndTheirNamesAreMarkedToo)
{
    openHouse(wall("Q1", "LINESTRING(0 0, 5000 0)"));
    const PlanMarks marks{[](const orvcad::PlanObject &) { return QStringLiteral("data-o=\"7\""); },
                          [](const orvcad::PlanObject &) { return QStringLiteral(" data-t=\"1003\""); }};
    const Picture picture = paint(marks);
    EXPECT_EQ(picture.groupOfType(1003).firstChildElement("g").attribute("data-o"), "7");
    const QDomElement name = picture.group("names").firstChildElement("text");
    EXPECT_EQ(name.text(), "Q1");
    EXPECT_EQ(name.attribute("data-t"), "1003");
}

} // namespace

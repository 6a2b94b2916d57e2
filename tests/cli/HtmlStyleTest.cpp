#include "cli/HtmlStyle.h"

#include <gtest/gtest.h>

namespace {

TEST(HtmlStyleTest, linesHaveTheWidthAndDashesOfTheirTypeInPixels)
{
    const QByteArray style = orvcad::typeStyle({25, 15});
    EXPECT_TRUE(style.contains(".floor .type-25 path{stroke-width:1.08px;stroke-dasharray:none}"))
        << style.toStdString();
    EXPECT_TRUE(style.contains(".floor .type-15 path{stroke-width:0.78px;stroke-dasharray:6.4 3.2}"))
        << style.toStdString();
}

TEST(HtmlStyleTest, coloursAreThoseOfTheTypeAndLighterOnDarkScreens)
{
    const QByteArray style =
        orvcad::typeStyle({25}); // #a61e4d: brightness 76 becomes 168, which is 92 of 179 parts of white
    EXPECT_TRUE(style.contains(".type-25{--c:#a61e4d;--b:#a61e4d}")) << style.toStdString();
    const int dark = style.indexOf("@media screen and (prefers-color-scheme:dark){");
    ASSERT_GT(dark, 0);
    EXPECT_GT(style.indexOf(".type-25{--c:#d391a8;--b:#d391a8}"), dark) << style.toStdString();
}

TEST(HtmlStyleTest, whatIsNoBodyIsFilledWithPaperOnDarkScreens)
{
    EXPECT_TRUE(orvcad::typeStyle({4}).contains("--b:var(--paper)}"));
}

} // namespace

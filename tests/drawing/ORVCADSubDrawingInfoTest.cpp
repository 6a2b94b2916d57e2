#include "drawing/ORVCADSubDrawingInfo.h"

#include "SubDrawingPart.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace drawing_test;

namespace {

TEST(ORVCADSubDrawingInfoTest, freshPartHasNoNumberAndTheEmptyBox)
{
    const ORVCADSubDrawingInfo info;
    EXPECT_EQ(info.drawingPath, "");
    EXPECT_EQ(info.secondText, "");
    EXPECT_EQ(info.number, -1);
    EXPECT_TRUE(std::isinf(info.xMin) && info.xMin > 0);
    EXPECT_TRUE(std::isinf(info.yMin) && info.yMin > 0);
    EXPECT_TRUE(std::isinf(info.xMax) && info.xMax < 0);
    EXPECT_TRUE(std::isinf(info.yMax) && info.yMax < 0);
}

TEST(ORVCADSubDrawingInfoTest, partsAreToldApartByPathSecondTextAndNumber)
{
    EXPECT_TRUE(part("a", "b", 1) == part("a", "b", 1));
    EXPECT_TRUE(part("a", "b", 1) != part("x", "b", 1));
    EXPECT_TRUE(part("a", "b", 1) != part("a", "x", 1));
    EXPECT_TRUE(part("a", "b", 1) != part("a", "b", 2));
    ORVCADSubDrawingInfo other = part("a", "b", 1);
    other.xMin = 0.0;
    other.reserved = 7;
    EXPECT_TRUE(part("a", "b", 1) == other);
}

} // namespace

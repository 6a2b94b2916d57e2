#include "platform/embedded/HBXElevationText.h"

#include <gtest/gtest.h>

namespace hbx::embedded {
namespace {

constexpr double kTop = 6.5;    // m
constexpr double kBottom = 3.0; // m

struct ReadableText
{
    const char *text;
    double millimetres;
};

class ReadableElevationTest : public ::testing::TestWithParam<ReadableText>
{};

TEST_P(ReadableElevationTest, givesMillimetresAgainstTheFloor)
{
    const auto elevation = HBXElevationText::parse(QString::fromUtf8(GetParam().text));
    ASSERT_TRUE(elevation) << GetParam().text;
    EXPECT_NEAR(elevation->millimetres(kTop, kBottom), GetParam().millimetres, 1e-9);
}

INSTANTIATE_TEST_SUITE_P(Texts, ReadableElevationTest,
                         ::testing::Values(ReadableText{"3.5", 3500.0}, ReadableText{"-0.05", -50.0},
                                           ReadableText{"+1", 1000.0}, ReadableText{"1.2e1", 12000.0},
                                           ReadableText{"  2.9\t", 2900.0}, ReadableText{"0", 0.0},
                                           ReadableText{"层顶标高", 6500.0}, ReadableText{"层底标高", 3000.0},
                                           ReadableText{" 层顶标高-0.05 ", 6450.0},
                                           ReadableText{"层底标高+0.15", 3150.0},
                                           ReadableText{"层顶标高+1e-1", 6600.0}));

class UnreadableElevationTest : public ::testing::TestWithParam<const char *>
{};

TEST_P(UnreadableElevationTest, isNoElevation)
{
    EXPECT_FALSE(HBXElevationText::parse(QString::fromUtf8(GetParam()))) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(Texts, UnreadableElevationTest,
                         ::testing::Values("", "   ", "top", "3.5m", "inf", "-inf", "nan", "1e999", "-1e308", "0x10",
                                           "1,5", "3 5", "层顶", "层顶标高0.1", "层顶标高+", "层顶标高+-1",
                                           "层顶标高+0.1+0.1", "层顶标高+inf", "层顶标高 + 0.1", "0.1+层顶标高",
                                           "层顶标高层底标高", "+", "e5"));

TEST(HBXElevationTextTest, baseAndMetresAreToldApart)
{
    const auto elevation = HBXElevationText::parse(QString::fromUtf8("层底标高-1.25"));
    ASSERT_TRUE(elevation);
    EXPECT_EQ(elevation->base(), HBXElevationText::kFloorBottom);
    EXPECT_DOUBLE_EQ(elevation->metres(), -1.25);
    EXPECT_EQ(HBXElevationText::parse(QStringLiteral("2"))->base(), HBXElevationText::kZero);
}

} // namespace
} // namespace hbx::embedded

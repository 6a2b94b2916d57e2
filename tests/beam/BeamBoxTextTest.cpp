#include "beam/BeamBoxText.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>

namespace {

using Box = vks::CBox3<double>;

const QString kZero = QStringLiteral("0.00000000000000000000");

TEST(BeamBoxTextTest, numbersHaveTwentyDecimalsMinimumFirst)
{
    EXPECT_EQ(BeamBoxText::write(Box({0, -1.5, 2}, {10, 0.25, 1000000})),
              "Box3d=[(0.00000000000000000000 -1.50000000000000000000 2.00000000000000000000),"
              "(10.00000000000000000000 0.25000000000000000000 1000000.00000000000000000000)]");
}

TEST(BeamBoxTextTest, decimalsAreThoseOfTheStoredNumber)
{
    EXPECT_EQ(BeamBoxText::write(Box({0.1, 0, 0}, {0, 0, 0})), "Box3d=[(0.10000000000000000555 " + kZero + " " + kZero +
                                                                   "),(" + kZero + " " + kZero + " " + kZero + ")]");
}

TEST(BeamBoxTextTest, emptyBoxIsWrittenAsInfinityAndReadBack)
{
    EXPECT_EQ(BeamBoxText::write(Box()), "Box3d=[(inf inf inf),(-inf -inf -inf)]");
    EXPECT_EQ(BeamBoxText::read("Box3d=[(inf inf inf),(-inf -inf -inf)]"), Box());
}

TEST(BeamBoxTextTest, greatestNumbersReadBack)
{
    const Box box({-1.7976931348623157e308, 0, 0}, {1.7976931348623157e308, 0, 0});
    EXPECT_EQ(BeamBoxText::read(BeamBoxText::write(box)), box);
}

TEST(BeamBoxTextTest, numbersOfOrdinarySizeReadBackExactly)
{
    const Box box({0.1, -1234.56789, 1e-3}, {5.0 / 3, 98765.4321, 3.3});
    EXPECT_EQ(BeamBoxText::read(BeamBoxText::write(box)), box);
}

TEST(BeamBoxTextTest, shortNumbersAndMoreWhiteSpaceAreRead)
{
    EXPECT_EQ(BeamBoxText::read("Box3d=[( 1 2\t3),(4  5e1 +6)]"), Box({1, 2, 3}, {4, 50, 6}));
}

TEST(BeamBoxTextTest, anyOtherTextIsTheEmptyBox)
{
    for (const char *text : {"", "box", "Box3d=[(1 2 3),(4 5)]", "Box3d=[(1 2 3),(4 5 6", "Box3d=[(1 2 3),(4 5 6)] ",
                             "Box3d=[(1,2,3),(4,5,6)]", "Box3d=[(1 2 x),(4 5 6)]", "box3d=[(1 2 3),(4 5 6)]",
                             "Box3d=[(1 2 3) (4 5 6)]", " Box3d=[(1 2 3),(4 5 6)]"})
        EXPECT_EQ(BeamBoxText::read(text), Box()) << text;
}

TEST(BeamBoxTextTest, localeChangesNothing)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char *locale : {"de_DE.UTF-8", "de_DE", ""})
        if (std::setlocale(LC_ALL, locale))
            break;
    const Box box({0.5, 0, 0}, {1, 1, 1});
    EXPECT_TRUE(BeamBoxText::write(box).contains("0.50000000000000000000"));
    EXPECT_EQ(BeamBoxText::read(BeamBoxText::write(box)), box);
    std::setlocale(LC_ALL, before.c_str());
}

} // namespace

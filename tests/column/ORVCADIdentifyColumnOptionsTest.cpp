#include "column/ORVCADIdentifyColumnOptions.h"

#include <gmock/gmock.h>

using ::testing::UnorderedElementsAre;

namespace {

TEST(ORVCADIdentifyColumnOptionsTest, newOptionsHaveEmptyMarksAndNoSettings)
{
    const ORVCADIdentifyColumnOptions options;
    EXPECT_EQ(options.getColumnCodes(), (QStringList{"", "", "", "", "", ""}));
    EXPECT_FALSE(options.bSideBarAverageDistribution);
    EXPECT_EQ(options.MaxSearchExtent, 0);
}

TEST(ORVCADIdentifyColumnOptionsTest, longerMarksStandBeforeShorterOnes)
{
    ORVCADIdentifyColumnOptions options;
    options.KJZMark = "KZ";
    options.AZMark = "A";
    options.DZMark = "D";
    options.KZZMark = "KZZ";
    options.ZHZMark = "Z";
    options.GZZMark = "GZZ";
    const QStringList codes = options.getColumnCodes();
    ASSERT_EQ(codes.size(), 6);
    EXPECT_THAT(codes.mid(0, 2), UnorderedElementsAre("KZZ", "GZZ"));
    EXPECT_EQ(codes[2], "KZ");
    EXPECT_THAT(codes.mid(3), UnorderedElementsAre("A", "D", "Z"));
}

TEST(ORVCADIdentifyColumnOptionsTest, emptyMarksStayAndStandAtTheEnd)
{
    ORVCADIdentifyColumnOptions options;
    options.AZMark = "AZ";
    options.GZZMark = "G";
    EXPECT_EQ(options.getColumnCodes(), (QStringList{"AZ", "G", "", "", "", ""}));
}

TEST(ORVCADIdentifyColumnOptionsTest, lengthCountsAndNotTheAlphabet)
{
    ORVCADIdentifyColumnOptions options;
    options.KJZMark = "Z";
    options.AZMark = QStringLiteral("框架柱");
    options.DZMark = "AB";
    EXPECT_EQ(options.getColumnCodes().mid(0, 3), (QStringList{QStringLiteral("框架柱"), "AB", "Z"}));
}

TEST(ORVCADIdentifyColumnOptionsTest, equalMarksAreAllThere)
{
    ORVCADIdentifyColumnOptions options;
    options.KJZMark = options.ZHZMark = "KZ";
    EXPECT_EQ(options.getColumnCodes().count("KZ"), 2);
}

} // namespace

#include "cli/TextTable.h"

#include <gtest/gtest.h>

using orvcad::TextTable;

TEST(TextTableTest, columnsAreAsWideAsTheirWidestCell)
{
    TextTable table({{"name"}, {"m", TextTable::Align::Right}, {"last"}});
    table.add({"a", "12.5", "x"});
    table.add({"longer", "3", ""});
    EXPECT_EQ(table.lines(), (QStringList{"name       m  last", "a       12.5  x", "longer     3"}));
}

TEST(TextTableTest, chineseCharactersCountTwice)
{
    TextTable table({{"type"}, {"n", TextTable::Align::Right}});
    table.add({QStringLiteral("现浇板"), "1"});
    table.add({QStringLiteral("ＡＢ梁"), "2"});
    EXPECT_EQ(table.lines(), (QStringList{"type    n", QStringLiteral("现浇板  1"), QStringLiteral("ＡＢ梁  2")}));
}

TEST(TextTableTest, cellsAloneArePaddedAlike)
{
    EXPECT_EQ(TextTable::padded(QStringLiteral("梁1"), 5, TextTable::Align::Left), QStringLiteral("梁1  "));
    EXPECT_EQ(TextTable::padded(QStringLiteral("梁1"), 5, TextTable::Align::Right), QStringLiteral("  梁1"));
    EXPECT_EQ(TextTable::padded(QStringLiteral("框架梁"), 5, TextTable::Align::Left), QStringLiteral("框架梁"));
}

TEST(TextTableTest, controlCharactersBecomeBlanks)
{
    TextTable table({{"name"}, {"n"}});
    table.add({"a\nb\x1b[31m", "1"});
    EXPECT_EQ(table.lines(), (QStringList{"name      n", "a b [31m  1"}));
}

TEST(TextTableTest, tableWithoutRowsIsEmptyAndHasItsHeading)
{
    const TextTable table({{"name"}});
    EXPECT_TRUE(table.isEmpty());
    EXPECT_EQ(table.lines(), QStringList{"name"});
}

#include "drawing/DWGXFloorWordFuns.h"

#include <QHash>

#include <gmock/gmock.h>

#include <limits>

namespace {

// clang-format off
/** The numerals of 1 to 199, as they are spoken. */
const QStringList kNumerals = QString::fromUtf8(
    "一 二 三 四 五 六 七 八 九 十 "
    "十一 十二 十三 十四 十五 十六 十七 十八 十九 二十 "
    "二十一 二十二 二十三 二十四 二十五 二十六 二十七 二十八 二十九 三十 "
    "三十一 三十二 三十三 三十四 三十五 三十六 三十七 三十八 三十九 四十 "
    "四十一 四十二 四十三 四十四 四十五 四十六 四十七 四十八 四十九 五十 "
    "五十一 五十二 五十三 五十四 五十五 五十六 五十七 五十八 五十九 六十 "
    "六十一 六十二 六十三 六十四 六十五 六十六 六十七 六十八 六十九 七十 "
    "七十一 七十二 七十三 七十四 七十五 七十六 七十七 七十八 七十九 八十 "
    "八十一 八十二 八十三 八十四 八十五 八十六 八十七 八十八 八十九 九十 "
    "九十一 九十二 九十三 九十四 九十五 九十六 九十七 九十八 九十九 一百 "
    "一百零一 一百零二 一百零三 一百零四 一百零五 一百零六 一百零七 一百零八 一百零九 一百一十 "
    "一百一十一 一百一十二 一百一十三 一百一十四 一百一十五 一百一十六 一百一十七 一百一十八 一百一十九 一百二十 "
    "一百二十一 一百二十二 一百二十三 一百二十四 一百二十五 一百二十六 一百二十七 一百二十八 一百二十九 一百三十 "
    "一百三十一 一百三十二 一百三十三 一百三十四 一百三十五 一百三十六 一百三十七 一百三十八 一百三十九 一百四十 "
    "一百四十一 一百四十二 一百四十三 一百四十四 一百四十五 一百四十六 一百四十七 一百四十八 一百四十九 一百五十 "
    "一百五十一 一百五十二 一百五十三 一百五十四 一百五十五 一百五十六 一百五十七 一百五十八 一百五十九 一百六十 "
    "一百六十一 一百六十二 一百六十三 一百六十四 一百六十五 一百六十六 一百六十七 一百六十八 一百六十九 一百七十 "
    "一百七十一 一百七十二 一百七十三 一百七十四 一百七十五 一百七十六 一百七十七 一百七十八 一百七十九 一百八十 "
    "一百八十一 一百八十二 一百八十三 一百八十四 一百八十五 一百八十六 一百八十七 一百八十八 一百八十九 一百九十 "
    "一百九十一 一百九十二 一百九十三 一百九十四 一百九十五 一百九十六 一百九十七 一百九十八 一百九十九").split(QLatin1Char(' '));
// clang-format on

QString utf8(const char *text) { return QString::fromUtf8(text); }

QStringList words(const char *separatedByBlanks) { return utf8(separatedByBlanks).split(QLatin1Char(' ')); }

/** The floor that a title names: every number whose written forms hold the title. */
QList<int> floorsOfTitle(const char *title)
{
    QList<int> floors;
    for (int number = -999; number <= 999; ++number)
        if (DWGXFloorWordFuns::toFloorNames(number).contains(utf8(title)))
            floors.append(number);
    return floors;
}

/** A title on a drawing and the floor it names, 0 for none. */
struct Title
{
    const char *text;
    int floor;
};

} // namespace

TEST(DWGXFloorWordFunsTest, standardNameIsTheNumberBetweenTwoWords)
{
    EXPECT_EQ(DWGXFloorWordFuns::toFloorName(3), utf8("第3层"));
    EXPECT_EQ(DWGXFloorWordFuns::toFloorName(-1), utf8("第-1层"));
    EXPECT_EQ(DWGXFloorWordFuns::toFloorName(999), utf8("第999层"));
    EXPECT_EQ(DWGXFloorWordFuns::toFloorName(-999), utf8("第-999层"));
}

TEST(DWGXFloorWordFunsTest, numbersThatNoFloorHasGiveNothing)
{
    for (const int number : {0, 1000, -1000, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        EXPECT_TRUE(DWGXFloorWordFuns::toFloorName(number).isEmpty()) << number;
        EXPECT_TRUE(DWGXFloorWordFuns::toFloorNames(number).isEmpty()) << number;
    }
}

TEST(DWGXFloorWordFunsTest, floorAboveGroundHasNineNamesInOrder)
{
    EXPECT_EQ(DWGXFloorWordFuns::toFloorNames(1), words("一 一层 第一 地上一 第一层 地上一层 1F 1层 第1层"));
    EXPECT_EQ(DWGXFloorWordFuns::toFloorNames(12),
              words("十二 十二层 第十二 地上十二 第十二层 地上十二层 12F 12层 第12层"));
}

TEST(DWGXFloorWordFunsTest, floorBelowGroundHasNineNamesInOrder)
{
    EXPECT_EQ(DWGXFloorWordFuns::toFloorNames(-1),
              words("第负一 负一 地下一 第负一层 负一层 地下一层 -1F -1层 第-1层"));
    EXPECT_EQ(DWGXFloorWordFuns::toFloorNames(-20),
              words("第负二十 负二十 地下二十 第负二十层 负二十层 地下二十层 -20F -20层 第-20层"));
}

TEST(DWGXFloorWordFunsTest, numeralsOfAllFloorsFrom1To199)
{
    ASSERT_EQ(kNumerals.size(), 199);
    for (int number = 1; number <= 199; ++number) {
        const QString &numeral = kNumerals.at(number - 1);
        EXPECT_EQ(DWGXFloorWordFuns::toFloorNames(number).value(0), numeral) << number;
        EXPECT_EQ(DWGXFloorWordFuns::toFloorNames(number).value(4), utf8("第") + numeral + utf8("层")) << number;
        EXPECT_EQ(DWGXFloorWordFuns::toFloorNames(-number).value(1), utf8("负") + numeral) << number;
        EXPECT_EQ(DWGXFloorWordFuns::toFloorNames(-number).value(5), utf8("地下") + numeral + utf8("层")) << number;
    }
}

TEST(DWGXFloorWordFunsTest, numeralsOfHundreds)
{
    const QHash<int, const char *> numerals = {{200, "二百"},       {201, "二百零一"}, {210, "二百一十"},
                                               {219, "二百一十九"}, {300, "三百"},     {345, "三百四十五"},
                                               {909, "九百零九"},   {990, "九百九十"}, {999, "九百九十九"}};
    for (auto row = numerals.begin(); row != numerals.end(); ++row)
        EXPECT_EQ(DWGXFloorWordFuns::toFloorNames(row.key()).value(0), utf8(row.value())) << row.key();
}

TEST(DWGXFloorWordFunsTest, tensDigitOfOneIsDroppedInTenAndSpokenBehindAHundred)
{
    EXPECT_EQ(DWGXFloorWordFuns::toFloorNames(10).value(0), utf8("十"));
    EXPECT_EQ(DWGXFloorWordFuns::toFloorNames(110).value(0), utf8("一百一十"));
}

TEST(DWGXFloorWordFunsTest, titlesNameTheirFloors)
{
    const Title titles[] = {
        {"一层", 1},         {"首层", 0},     {"二层", 2},    {"地下二层", -2},    {"地下室", 0},
        {"第负一", -1},      {"负一层", -1},  {"-1F", -1},    {"B1", 0},           {"5F", 5},
        {"5f", 0},           {"十", 10},      {"十层", 10},   {"一十层", 0},       {"第十二层", 12},
        {"12层", 12},        {"第12层", 12},  {"第12", 0},    {"二十一层", 21},    {"二一层", 0},
        {"地上三层", 3},     {"地上3层", 0},  {"地下3层", 0}, {"第-3层", -3},      {"第负3层", 0},
        {"十2层", 0},        {"1十层", 0},    {"二十2层", 0}, {"一百零五层", 105}, {"一百五层", 0},
        {"一百一十层", 110}, {"一百十层", 0}, {"零层", 0},    {"0层", 0},          {"标准层", 0},
        {"屋面层", 0},       {"三~五层", 0},  {"3-5层", 0},   {"+3层", 0},         {"03层", 0},
        {" 3层", 0},         {"３层", 0},     {"两层", 0},    {"地下负一层", 0},   {"第一层平面图", 0},
    };
    for (const Title &title : titles)
        EXPECT_EQ(floorsOfTitle(title.text), title.floor == 0 ? QList<int>() : QList<int>{title.floor}) << title.text;
}

TEST(DWGXFloorWordFunsTest, noTwoFloorsShareAName)
{
    QHash<QString, int> floors;
    for (int number = -999; number <= 999; ++number) {
        for (const QString &name : DWGXFloorWordFuns::toFloorNames(number)) {
            EXPECT_FALSE(floors.contains(name)) << name.toStdString() << " of " << number;
            floors.insert(name, number);
        }
    }
    EXPECT_EQ(floors.size(), 1998 * 9);
}

TEST(DWGXFloorWordFunsTest, topFloorWordHasOneOtherForm)
{
    EXPECT_EQ(DWGXFloorWordFuns::toFloorNames(utf8("屋面")), words("屋面层"));
    EXPECT_EQ(DWGXFloorWordFuns::toFloorNames(utf8("屋面层")), words("屋面"));
    EXPECT_EQ(DWGXFloorWordFuns::toFloorNames(utf8("阁楼层")), words("阁楼"));
    EXPECT_EQ(DWGXFloorWordFuns::toFloorNames(utf8("阁楼")), words("阁楼层"));
}

TEST(DWGXFloorWordFunsTest, formsOfAWordDoNotHoldTheWordItself)
{
    for (const char *word : {"屋面", "屋面层", "阁楼层", "阁楼"})
        EXPECT_FALSE(DWGXFloorWordFuns::toFloorNames(utf8(word)).contains(utf8(word))) << word;
}

TEST(DWGXFloorWordFunsTest, everyOtherWordHasNoOtherForm)
{
    for (const char *word : {"", "标准层", "地下二层", "一层", "屋顶", "屋面 ", "屋面层1", "阁 楼", "3"})
        EXPECT_TRUE(DWGXFloorWordFuns::toFloorNames(utf8(word)).isEmpty()) << word;
}

#include "drawing/DWGXFloorWordFuns.h"

#include <QFile>
#include <QHash>

#include <gmock/gmock.h>

#include <cstdlib>
#include <limits>

namespace {

/** The numerals of 1 to 999, as they are spoken; empty when the file of them is missing. */
QStringList spokenNumerals()
{
    QFile file(QStringLiteral(ORVCAD_TEST_DATA "/drawing/numerals.txt"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).simplified().split(QLatin1Char(' '))
                                          : QStringList();
}

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

TEST(DWGXFloorWordFunsTest, everyNumberFromMinus1000To1000HasTheNineFormsOrNone)
{
    const QStringList numerals = spokenNumerals();
    ASSERT_EQ(numerals.size(), 999);
    for (int number = -1000; number <= 1000; ++number) {
        QStringList expected;
        if (number != 0 && std::abs(number) < 1000) {
            const QString &numeral = numerals.at(std::abs(number) - 1);
            const char *patterns = number > 0 ? "# #层 第# 地上# 第#层 地上#层 %F %层 第%层"
                                              : "第负# 负# 地下# 第负#层 负#层 地下#层 %F %层 第%层";
            expected = utf8(patterns).replace('#', numeral).replace('%', QString::number(number)).split(' ');
        }
        EXPECT_EQ(DWGXFloorWordFuns::toFloorNames(number), expected) << number;
        EXPECT_EQ(DWGXFloorWordFuns::toFloorName(number), expected.value(8)) << number;
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

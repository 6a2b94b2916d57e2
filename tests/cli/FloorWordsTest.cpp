#include "cli/FloorWords.h"

#include "CommandFailures.h"

#include <QJsonArray>

using clitest::failureOf;
using namespace orvcad;

namespace {

TEST(FloorWordsTest, numberHasANameAndNineWrittenForms)
{
    const FloorWords words = floorWords("5");
    EXPECT_EQ(words.asked, "5");
    EXPECT_EQ(words.number, 5);
    EXPECT_EQ(words.name, QStringLiteral("第5层"));
    EXPECT_EQ(words.names.size(), 9);
    EXPECT_TRUE(words.otherWords.isEmpty());
    EXPECT_EQ(words.text().left(11), QStringLiteral("Floor 5: 第5"));
}

TEST(FloorWordsTest, highestNumbersOfBothDirectionsHaveNames)
{
    EXPECT_EQ(floorWords("999").name, QStringLiteral("第999层"));
    EXPECT_EQ(floorWords("-999").name, QStringLiteral("第-999层"));
}

TEST(FloorWordsTest, everyWrittenFormOfANumberNamesIt)
{
    for (const char *number : {"1", "-3", "12"})
        for (const QString &word : floorWords(number).names)
            EXPECT_EQ(floorWords(word).number, QString(number).toInt()) << word.toStdString();
}

TEST(FloorWordsTest, wordOfATopFloorHasNoNumber)
{
    const FloorWords words = floorWords(QStringLiteral("屋面"));
    EXPECT_EQ(words.number, 0);
    EXPECT_EQ(words.otherWords, QStringList{QStringLiteral("屋面层")});
    EXPECT_TRUE(words.toJson()["number"].isNull());
    EXPECT_TRUE(words.toJson()["name"].isNull());
}

TEST(FloorWordsTest, wordThatNamesNoFloorIsAnsweredWithNothing)
{
    const FloorWords words = floorWords("castle");
    EXPECT_EQ(words.text(), "No floor is written \"castle\"");
    EXPECT_EQ(words.toJson()["names"], QJsonValue(QJsonArray()));
}

TEST(FloorWordsTest, signAloneIsNoNumber) { EXPECT_EQ(floorWords("-").number, 0); }

TEST(FloorWordsTest, numberThatNoFloorHasIsWrongUsage)
{
    for (const char *number : {"0", "1000", "-1000", "99999999999"})
        EXPECT_EQ(failureOf([&] { floorWords(number); }, kWrongUsage),
                  std::string("FLOOR: no floor has the number ") + number +
                      "; floors go from 1 to 999 and from -1 to -999");
}

} // namespace

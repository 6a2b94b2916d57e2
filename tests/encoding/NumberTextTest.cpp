#include "encoding/NumberText.h"

#include "encoding/NumberCases.h"

#include <gmock/gmock.h>

#include <limits>
#include <random>

using encoding::appendNumber;
using encoding::readNumber;

namespace {

constexpr int kRuns = 1'000'000;

QString textOf(double value)
{
    QString text;
    appendNumber(text, value);
    return text;
}

/** The text that this system's forms are defined by. */
QString definedText(double value) { return QStringLiteral("%1").arg(value, 0, 'g', -1, QLatin1Char(' ')); }

std::uint64_t bitsOf(double value)
{
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

/** Empty when both readers agree on text, else what they differ in. */
std::string differenceInReading(const QString &text)
{
    bool ours = false;
    bool theirs = false;
    const double value = readNumber(text, &ours);
    const double expected = text.toDouble(&theirs);
    if (ours == theirs && (bitsOf(value) == bitsOf(expected) || (std::isnan(value) && std::isnan(expected))))
        return {};
    return "\"" + text.toStdString() + "\": " + std::to_string(value) + (ours ? " good" : " bad") + ", expected " +
           std::to_string(expected) + (theirs ? " good" : " bad");
}

struct NumberAndText
{
    double number;
    const char *text;
};

struct TextAndNumber
{
    const char *text;
    bool isNumber;
    double number;
};

} // namespace

TEST(NumberTextTest, sixSignificantDigitsAreWritten)
{
    constexpr NumberAndText rows[] = {
        {1000, "1000"},
        {0.414214, "0.414214"},
        {123456.789, "123457"},
        {1234567.891, "1.23457e+06"},
        {12.5, "12.5"},
        {-12.5, "-12.5"},
        {999999, "999999"},
        {-999999, "-999999"},
        {0.1, "0.1"},
        {1.0 / 3.0, "0.333333"},
        {2.0 / 3.0, "0.666667"},
        {100, "100"},
        {99999.96, "100000"},
        {0.001234567, "0.00123457"},
        {7, "7"},
        {-3, "-3"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(textOf(row.number).toStdString(), row.text);
}

TEST(NumberTextTest, tiesAreRoundedAwayFromZero)
{
    constexpr NumberAndText rows[] = {
        {12345.25, "12345.3"},  {-12345.25, "-12345.3"}, {100000.5, "100001"},       {100001.5, "100002"},
        {-100000.5, "-100001"}, {1234.125, "1234.13"},   {1234565.0, "1.23457e+06"}, {-1000.125, "-1000.13"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(textOf(row.number).toStdString(), row.text);
}

TEST(NumberTextTest, exponentIsWrittenFromAMillionAndBelowATenThousandth)
{
    constexpr NumberAndText rows[] = {
        {1e6, "1e+06"},
        {999999.5, "1e+06"},
        {999999.4, "999999"},
        {1e-4, "0.0001"},
        {1e-5, "1e-05"},
        {-1e-5, "-1e-05"},
        {1e15, "1e+15"},
        {1e100, "1e+100"},
        {1.5e-7, "1.5e-07"},
        {1e-100, "1e-100"},
        {0.00012345678, "0.000123457"},
        {-2.5e200, "-2.5e+200"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(textOf(row.number).toStdString(), row.text);
}

TEST(NumberTextTest, smallestAndLargestNumbersAreWritten)
{
    EXPECT_EQ(textOf(std::numeric_limits<double>::denorm_min()), "4.94066e-324");
    EXPECT_EQ(textOf(std::numeric_limits<double>::max()), "1.79769e+308");
    EXPECT_EQ(textOf(std::numeric_limits<double>::lowest()), "-1.79769e+308");
}

TEST(NumberTextTest, longestTextFillsThePlaceThatIsAskedFor)
{
    EXPECT_EQ(textOf(-1.23457e+308).size(), encoding::kLongestNumberText);
    EXPECT_EQ(textOf(-1.23457e-300).size(), encoding::kLongestNumberText);
}

TEST(NumberTextTest, negativeZeroIsWrittenWithoutASign)
{
    EXPECT_EQ(textOf(0.0), "0");
    EXPECT_EQ(textOf(-0.0), "0");
}

TEST(NumberTextTest, whatIsNotFiniteIsWrittenAsAWord)
{
    EXPECT_EQ(textOf(std::numeric_limits<double>::infinity()), "inf");
    EXPECT_EQ(textOf(-std::numeric_limits<double>::infinity()), "-inf");
    EXPECT_EQ(textOf(std::numeric_limits<double>::quiet_NaN()), "nan");
    EXPECT_EQ(textOf(-std::numeric_limits<double>::quiet_NaN()), "nan");
}

TEST(NumberTextTest, numberIsAppendedToWhatIsThere)
{
    QString text = QStringLiteral("墙,");
    appendNumber(text, 0.5);
    EXPECT_EQ(text, QStringLiteral("墙,0.5"));
}

TEST(NumberTextTest, writerAgreesWithQStringArgInAMillionCases)
{
    NumberCases cases(20240501);
    for (int i = 0; i < kRuns; ++i) {
        const double number = cases.number();
        ASSERT_EQ(textOf(number), definedText(number)) << "bits " << bitsOf(number);
    }
}

TEST(NumberTextTest, numbersAreReadInEveryPlainForm)
{
    constexpr TextAndNumber rows[] = {
        {"0", true, 0.0},
        {"5", true, 5.0},
        {"-5", true, -5.0},
        {"5.", true, 5.0},
        {".5", true, 0.5},
        {"-.5", true, -0.5},
        {"00012", true, 12.0},
        {"1e3", true, 1000.0},
        {"1E3", true, 1000.0},
        {"1e+05", true, 100000.0},
        {"5.e3", true, 5000.0},
        {"1.5e-07", true, 1.5e-7},
        {"0e5", true, 0.0},
        {"0e-999", true, 0.0},
        {"0.1", true, 0.1},
        {"1.23457e+06", true, 1234570.0},
        {"4.9e-324", true, 4.9e-324},
        {"1.7976931348623157e308", true, 1.7976931348623157e308},
    };
    for (const auto &row : rows) {
        bool ok = !row.isNumber;
        EXPECT_EQ(readNumber(QString::fromUtf8(row.text), &ok), row.number) << row.text;
        EXPECT_EQ(ok, row.isNumber) << row.text;
    }
}

TEST(NumberTextTest, whatIsNoNumberIsRefused)
{
    constexpr const char *texts[] = {"",         "-",    "+",     ".",      "e",      "e5",    "1e",  "1e+",   "--1",
                                     "+-1",      "1e5.", "1 2",   "1,0",    "1,000",  "0x10",  "1d5", "1.2.3", "12a",
                                     "infinity", "-nan", "1e400", "-1e400", "1e-400", "1_000", "１",  "٣"};
    for (const char *text : texts) {
        bool ok = true;
        readNumber(QString::fromUtf8(text), &ok);
        EXPECT_FALSE(ok) << text;
    }
}

/** ı, Ů and ᄹ stand at 0x131, 0x16e and 0x1139: their low bytes are those of 1, n and 9. */
TEST(NumberTextTest, characterThatOnlyEndsLikeADigitIsNone)
{
    for (const char *text : {"ı", "ı2", "1ᄹ", "1.ı", "Ůan"}) {
        bool ok = true;
        EXPECT_EQ(readNumber(QString::fromUtf8(text), &ok), 0.0) << text;
        EXPECT_FALSE(ok) << text;
        EXPECT_EQ(encoding::readInt(QString::fromUtf8(text)), 0) << text;
        EXPECT_EQ(encoding::readLongLong(QString::fromUtf8(text)), 0) << text;
    }
}

TEST(NumberTextTest, whiteSpaceAndALeadingPlusPass)
{
    for (const char *text : {" 5", "5 ", "\t5\n", "+5", " +5 ", "\u00a05"}) {
        bool ok = false;
        EXPECT_EQ(readNumber(QString::fromUtf8(text), &ok), 5.0) << text;
        EXPECT_TRUE(ok) << text;
    }
}

TEST(NumberTextTest, wordsForWhatIsNotFiniteAreRead)
{
    bool ok = false;
    EXPECT_EQ(readNumber(QStringLiteral("inf"), &ok), std::numeric_limits<double>::infinity());
    EXPECT_TRUE(ok);
    EXPECT_EQ(readNumber(QStringLiteral("-inf"), &ok), -std::numeric_limits<double>::infinity());
    EXPECT_TRUE(ok);
    EXPECT_TRUE(std::isnan(readNumber(QStringLiteral("nan"), &ok)));
    EXPECT_TRUE(ok);
}

TEST(NumberTextTest, negativeZeroKeepsItsSignOnReading)
{
    EXPECT_TRUE(std::signbit(readNumber(QStringLiteral("-0"), nullptr)));
}

TEST(NumberTextTest, longTextsAreReadExactly)
{
    EXPECT_EQ(readNumber(QString(400, u'0') + QStringLiteral("17"), nullptr), 17.0);
    EXPECT_EQ(readNumber(QStringLiteral("0.") + QString(400, u'3'), nullptr), 1.0 / 3.0);
    EXPECT_EQ(readNumber(QStringLiteral("1.00000000000000000000000000000000000000000000001"), nullptr), 1.0);
    bool ok = true;
    readNumber(QString(400, u'9'), &ok);
    EXPECT_FALSE(ok);
}

TEST(NumberTextTest, numberIsReadOutOfALongerText)
{
    const QString text = QStringLiteral("12,34,56");
    bool ok = false;
    EXPECT_EQ(readNumber(QStringView(text).mid(3, 2), &ok), 34.0);
    EXPECT_TRUE(ok);
    readNumber(QStringView(), &ok);
    EXPECT_FALSE(ok);
}

TEST(NumberTextTest, readerAgreesWithQStringToDoubleOnOddTexts)
{
    for (const char *text : {"1e400",
                             "-1e400",
                             "1e-400",
                             "2e-324",
                             "3e-324",
                             "1.7976931348623159e308",
                             "0x1p3",
                             "INF",
                             "NaN",
                             "+inf",
                             "1e\u22125",
                             "１２",
                             "1\u00a0",
                             "1 ",
                             "\u30001",
                             "1e2147483648",
                             "1e-2147483648",
                             "1e99999999999999999999",
                             "0e99999999999999999999",
                             "9007199254740993",
                             "1'000",
                             "1.e",
                             "e",
                             ""})
        EXPECT_EQ(differenceInReading(QString::fromUtf8(text)), "");
    EXPECT_EQ(differenceInReading(QStringLiteral("1") + QChar(0) + QStringLiteral("2")), "");
    EXPECT_EQ(differenceInReading(QString(QChar(0xd800))), "");
}

TEST(NumberTextTest, readerAgreesWithQStringToDoubleInAMillionCases)
{
    NumberCases cases(19991231);
    for (int i = 0; i < kRuns; ++i)
        ASSERT_EQ(differenceInReading(cases.text()), "");
}

TEST(NumberTextTest, shortDecimalsAreReadToTheLastBit)
{
    std::mt19937_64 random(15);
    for (int i = 0; i < 20'000; ++i) {
        QString digits = QString::number(random() >> random() % 64);
        if (i % 5 == 0)
            digits.prepend(QString(static_cast<int>(random() % 10), u'0'));
        for (int point = 0; point <= digits.size(); ++point) {
            const QString text = QString(digits).insert(point, u'.');
            ASSERT_EQ(differenceInReading(text), "");
            ASSERT_EQ(differenceInReading(u'-' + text), "");
        }
        ASSERT_EQ(differenceInReading(digits), "");
        ASSERT_EQ(differenceInReading(digits + QStringLiteral("e-3")), "");
    }
    for (const char *text : {".", "-", "-.", "--1", "1..2", "1.2.3", "1-2", "-0.0", "00", "0.", ".0"})
        EXPECT_EQ(differenceInReading(QString::fromUtf8(text)), "") << text;
}

TEST(NumberTextTest, integersAreWrittenInPlainDecimal)
{
    QString text = QStringLiteral("=");
    for (const qint64 value :
         {qint64(0), qint64(-7), std::numeric_limits<qint64>::max(), std::numeric_limits<qint64>::min()})
        encoding::appendInteger(text, value);
    EXPECT_EQ(text, "=0-79223372036854775807-9223372036854775808");
}

TEST(NumberTextTest, integersAreReadAsQStringDoes)
{
    for (const char *text : {"0",
                             "12",
                             "-12",
                             "+12",
                             " 12 ",
                             "-",
                             "",
                             "1.5",
                             "1e3",
                             "0x10",
                             "12a",
                             "- 1",
                             "--1",
                             "007",
                             "999999999",
                             "2147483647",
                             "2147483648",
                             "-2147483648",
                             "-2147483649",
                             "999999999999999999",
                             "9223372036854775807",
                             "9223372036854775808",
                             "-9223372036854775808",
                             "1,000",
                             "１２"}) {
        const QString wide = QString::fromUtf8(text);
        EXPECT_EQ(encoding::readInt(wide), wide.toInt()) << text;
        EXPECT_EQ(encoding::readLongLong(wide), wide.toLongLong()) << text;
    }
}

TEST(NumberTextTest, integerThatDoesNotFitReadsAsZero)
{
    EXPECT_EQ(encoding::readInt(u"2147483648"), 0);
    EXPECT_EQ(encoding::readLongLong(u"2147483648"), 2147483648);
    EXPECT_EQ(encoding::readLongLong(u"9223372036854775808"), 0);
    EXPECT_EQ(encoding::readInt(u"12 mm"), 0);
}

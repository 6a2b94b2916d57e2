#include "encoding/NumberText.h"

#include <double-conversion/double-conversion.h>
#include <fast_float/fast_float.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <limits>

namespace encoding {

namespace {

constexpr int kSignificantDigits = 6;
constexpr int kLowestPlainExponent = -4; // of the leading digit; below it an exponent is written
constexpr double kFirstWithExponent = 1e6;
constexpr int kLongestQuickRead = 32; // characters; longer texts are rare and take the slow way

char *writeText(char *out, const char *text, int length)
{
    std::memcpy(out, text, static_cast<std::size_t>(length));
    return out + length;
}

char *writeZeros(char *out, int count)
{
    std::memset(out, '0', static_cast<std::size_t>(count));
    return out + count;
}

/** Decimal digits without leading zeros. */
char *writeInteger(char *out, unsigned value)
{
    char digits[10];
    char *const end = digits + sizeof digits;
    char *first = end;
    do {
        *--first = static_cast<char>('0' + value % 10);
        value /= 10;
    } while (value > 0);
    return writeText(out, first, static_cast<int>(end - first));
}

char *writeExponent(char *out, int exponent)
{
    *out++ = 'e';
    *out++ = exponent < 0 ? '-' : '+';
    const auto amount = static_cast<unsigned>(std::abs(exponent));
    if (amount < 10)
        *out++ = '0';
    return writeInteger(out, amount);
}

/** @param point  how many digits stand before the decimal point; at or below 0 zeros follow the point first */
char *writePlain(char *out, const char *digits, int count, int point)
{
    if (point <= 0) {
        out = writeZeros(writeText(out, "0.", 2), -point);
        return writeText(out, digits, count);
    }
    if (point >= count)
        return writeZeros(writeText(out, digits, count), point - count);
    out = writeText(out, digits, point);
    *out++ = '.';
    return writeText(out, digits + point, count - point);
}

char *writeScientific(char *out, const char *digits, int count, int exponent)
{
    *out++ = digits[0];
    if (count > 1) {
        *out++ = '.';
        out = writeText(out, digits + 1, count - 1);
    }
    return writeExponent(out, exponent);
}

/** Six digits at most, without zeros at the end, and how many of them stand before the decimal point. */
struct Digits
{
    char text[kSignificantDigits + 2];
    int count = 0;
    int point = 0;
};

/** Digits of a number that needs no exponent, by one multiplication; false where the product's own rounding error could
 *  decide which way the last digit goes. */
bool quickDigits(double value, Digits &digits)
{
    constexpr double leastValues[] = {1e5, 1e4, 1e3, 1e2, 1e1, 1e0, 1e-1, 1e-2, 1e-3, 1e-4};
    constexpr double powers[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9}; // exact, all of them
    constexpr double doubt = 1e-9; // from a tie; the product is below 1e6 and within 2e-10 of its true value
    if (!(value >= leastValues[9] && value < kFirstWithExponent))
        return false;
    const auto row = std::find_if(leastValues, std::end(leastValues), [=](double least) { return value >= least; });
    const auto power = row - leastValues;
    const double product = value * powers[power];
    auto integer = static_cast<unsigned>(product);
    const double rest = product - integer;
    if (std::fabs(rest - 0.5) < doubt)
        return false;
    integer += rest > 0.5 ? 1 : 0;
    digits.count = static_cast<int>(writeInteger(digits.text, integer) - digits.text);
    digits.point = digits.count - static_cast<int>(power); // 999999.7 has grown a seventh digit by now
    return true;
}

void exactDigits(double value, Digits &digits)
{
    using Converter = double_conversion::DoubleToStringConverter;
    bool negative = false;
    Converter::DoubleToAscii(value, Converter::PRECISION, kSignificantDigits, digits.text, sizeof digits.text,
                             &negative, &digits.count, &digits.point);
}

/** A number that is finite and above zero. */
char *writePositive(char *out, double value)
{
    Digits digits;
    if (!quickDigits(value, digits))
        exactDigits(value, digits);
    while (digits.count > 1 && digits.text[digits.count - 1] == '0')
        --digits.count;
    const int exponent = digits.point - 1;
    if (exponent < kLowestPlainExponent || exponent >= kSignificantDigits)
        return writeScientific(out, digits.text, digits.count, exponent);
    return writePlain(out, digits.text, digits.count, digits.point);
}

bool isNumberCharacter(char16_t c)
{
    return (c >= u'0' && c <= u'9') || c == u'.' || c == u'-' || c == u'+' || c == u'e' || c == u'E';
}

/** Digits from a place on, appended to a number. @return the first place that holds none */
const char16_t *readDigits(const char16_t *at, const char16_t *end, qint64 &number)
{
    for (; at != end && *at >= u'0' && *at <= u'9'; ++at)
        number = number * 10 + (*at - u'0');
    return at;
}

/** Reads what most numbers of a drawing are: a sign or none, digits, a point with digits behind it or none, all so short
 *  that the digits and the power of ten are exact, and their quotient is what any reader rounds to. */
bool readShortDecimal(QStringView text, double &value)
{
    constexpr int longest = 15; // digits; below 2 to the 53rd
    constexpr double powers[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    const char16_t *start = text.utf16();
    const char16_t *const end = start + text.size();
    const bool negative = start != end && *start == u'-';
    start += negative ? 1 : 0;
    if (end - start > longest + 1)
        return false;
    qint64 digits = 0;
    const char16_t *const point = readDigits(start, end, digits);
    const char16_t *const fraction = point != end && *point == u'.' ? point + 1 : point;
    const char16_t *const last = readDigits(fraction, end, digits);
    const bool isShort = point - start + (last - fraction) <= longest;
    if (point == start || last != end || (fraction != point && last == fraction) || !isShort)
        return false;
    const double amount = static_cast<double>(digits) / powers[last - fraction];
    value = negative ? -amount : amount;
    return true;
}

/** Reads the common forms: digits with a sign, a point and an exponent. False for whatever else may be a number. */
bool readPlainNumber(QStringView text, double &value)
{
    const auto size = static_cast<int>(text.size());
    if (size < 1 || size > kLongestQuickRead)
        return false;
    char narrow[kLongestQuickRead];
    const char16_t *const wide = text.utf16();
    bool mayUnderflow = false;
    for (int i = 0; i < size; ++i) {
        if (!isNumberCharacter(wide[i]))
            return false;
        mayUnderflow |= (wide[i] | 0x20) == u'e';
        narrow[i] = static_cast<char>(wide[i]);
    }
    const auto result = fast_float::from_chars(narrow, narrow + size, value);
    const bool whole = result.ec == std::errc() && result.ptr == narrow + size;
    // A zero that comes of underflow and an overflow are for the careful way to judge.
    return whole && std::isfinite(value) && !(mayUnderflow && value == 0.0);
}

/** Reads a sign and digits, so few of them that the number fits; false for whatever else may be an integer. */
template <typename T> bool readPlainInteger(QStringView text, T &value)
{
    const bool negative = text.startsWith(u'-');
    const QStringView digits = negative ? text.mid(1) : text;
    if (digits.isEmpty() || digits.size() > std::numeric_limits<T>::digits10)
        return false;
    T number = 0;
    for (const QChar digit : digits) {
        if (digit < u'0' || digit > u'9')
            return false;
        number = number * 10 + (digit.unicode() - u'0');
    }
    value = negative ? -number : number;
    return true;
}

} // namespace

char *writeNumber(char *out, double value)
{
    if (std::isnan(value))
        return writeText(out, "nan", 3);
    if (value < 0) {
        *out++ = '-';
        value = -value;
    }
    if (std::isinf(value))
        return writeText(out, "inf", 3);
    if (value == 0.0) // -0.0, too
        return writeText(out, "0", 1);
    return writePositive(out, value);
}

void appendNumber(QString &text, double value)
{
    char number[kLongestNumberText];
    const auto length = static_cast<int>(writeNumber(number, value) - number);
    text.append(QLatin1String(number, length));
}

double readNumber(QStringView text, bool *ok)
{
    double value = 0.0;
    if (!readShortDecimal(text, value) && !readPlainNumber(text, value))
        return text.toString().toDouble(ok);
    if (ok)
        *ok = true;
    return value;
}

void appendInteger(QString &text, qint64 value)
{
    char digits[std::numeric_limits<qint64>::digits10 + 2]; // and a sign
    const auto result = std::to_chars(digits, std::end(digits), value);
    text.append(QLatin1String(digits, static_cast<int>(result.ptr - digits)));
}

int readInt(QStringView text)
{
    int value = 0;
    return readPlainInteger(text, value) ? value : text.toString().toInt();
}

qint64 readLongLong(QStringView text)
{
    qint64 value = 0;
    return readPlainInteger(text, value) ? value : text.toString().toLongLong();
}

} // namespace encoding

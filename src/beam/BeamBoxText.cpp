#include "beam/BeamBoxText.h"

#include "encoding/NumberText.h"

#include <QRegularExpression>

#include <charconv>
#include <limits>

namespace {

constexpr int kDecimals = 20;
/** Sign, digits of the greatest double, point and decimals. */
constexpr int kLongestNumber = 1 + std::numeric_limits<double>::max_exponent10 + 1 + 1 + kDecimals;

QString number(double value)
{
    char digits[kLongestNumber];
    const auto end = std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed, kDecimals).ptr;
    return QString::fromLatin1(digits, static_cast<int>(end - digits));
}

QString point(const vks::CVec3<double> &place)
{
    return '(' + number(place.x) + ' ' + number(place.y) + ' ' + number(place.z) + ')';
}

/** Three numbers within brackets. */
QString pointPattern()
{
    const QString word = QStringLiteral("\\s*([^\\s()]+)");
    return "\\(" + word + "\\s" + word + "\\s" + word + "\\)";
}

} // namespace

QString BeamBoxText::write(const vks::CBox3<double> &box)
{
    return "Box3d=[" + point(box.minPt) + ',' + point(box.maxPt) + ']';
}

vks::CBox3<double> BeamBoxText::read(const QString &text)
{
    static const QRegularExpression pattern("\\ABox3d=\\[" + pointPattern() + ',' + pointPattern() + "\\]\\z");
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return {};
    double numbers[6] = {};
    for (int i = 0; i < 6; ++i) {
        bool isNumber = false;
        numbers[i] = encoding::readNumber(match.capturedView(i + 1), &isNumber);
        if (!isNumber)
            return {};
    }
    return {{numbers[0], numbers[1], numbers[2]}, {numbers[3], numbers[4], numbers[5]}};
}

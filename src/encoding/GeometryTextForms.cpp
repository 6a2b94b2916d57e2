#include "encoding/GeometryTextForms.h"

#include <array>

namespace encoding {

namespace {

/** Which of the characters below 128 belong to a set. */
using CharacterSet = std::array<bool, 128>;

constexpr CharacterSet setOf(const char *characters)
{
    CharacterSet set{};
    for (; *characters != '\0'; ++characters)
        set[static_cast<unsigned char>(*characters)] = true;
    return set;
}

constexpr CharacterSet kCurveCharacters = setOf("0123456789-.e+,");
constexpr CharacterSet kPolygonCharacters = setOf("0123456789-.e+,;");

bool consistsOf(QStringView text, const CharacterSet &set)
{
    for (const QChar c : text)
        if (c.unicode() >= set.size() || !set[c.unicode()])
            return false;
    return !text.isEmpty();
}

} // namespace

bool isCurveText(QStringView text) { return consistsOf(text, kCurveCharacters); }

bool isPolygonText(QStringView text) { return consistsOf(text, kPolygonCharacters); }

} // namespace encoding

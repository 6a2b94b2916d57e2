#include "platform/embedded/HBXElevationText.h"

#include <algorithm>
#include <cmath>

namespace hbx::embedded {
namespace {

struct BaseWord
{
    const char *word; ///< UTF-8
    HBXElevationText::Base base;
};
constexpr BaseWord kBaseWords[] = {{kFloorTopWord, HBXElevationText::kFloorTop},
                                   {kFloorBottomWord, HBXElevationText::kFloorBottom}};

/** Decimal numbers only: Qt's reader also knows words for what is not finite. */
std::optional<double> metresOf(const QString &text)
{
    const QLatin1String allowed("0123456789+-.eE");
    const auto isAllowed = [allowed](QChar c) { return std::find(allowed.begin(), allowed.end(), c) != allowed.end(); };
    bool isNumber = std::all_of(text.begin(), text.end(), isAllowed);
    const double metres = isNumber ? text.toDouble(&isNumber) : 0.0;
    return isNumber && std::isfinite(metres * kMillimetresPerMetre) ? std::optional(metres) : std::nullopt;
}

/** Behind a base word: nothing, or a number with its sign. */
std::optional<double> offsetOf(const QString &text)
{
    if (text.isEmpty())
        return 0.0;
    const bool isSigned = text.startsWith(QLatin1Char('+')) || text.startsWith(QLatin1Char('-'));
    return isSigned ? metresOf(text) : std::nullopt;
}

} // namespace

std::optional<HBXElevationText> HBXElevationText::parse(const QString &text)
{
    const QString trimmed = text.trimmed();
    const auto *baseWord = std::find_if(std::begin(kBaseWords), std::end(kBaseWords), [&](const BaseWord &candidate) {
        return trimmed.startsWith(QString::fromUtf8(candidate.word));
    });
    const bool isPlain = baseWord == std::end(kBaseWords);
    const std::optional<double> metres =
        isPlain ? metresOf(trimmed) : offsetOf(trimmed.mid(QString::fromUtf8(baseWord->word).size()));
    if (!metres)
        return std::nullopt;
    HBXElevationText elevation;
    elevation.m_base = isPlain ? kZero : baseWord->base;
    elevation.m_metres = *metres;
    return elevation;
}

double HBXElevationText::millimetres(double floorTop, double floorBottom) const
{
    const double base = m_base == kFloorTop ? floorTop : m_base == kFloorBottom ? floorBottom : 0.0;
    return (base + m_metres) * kMillimetresPerMetre;
}

} // namespace hbx::embedded

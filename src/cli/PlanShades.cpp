#include "cli/PlanShades.h"

#include <algorithm>
#include <cmath>

namespace orvcad {

namespace {

constexpr int kMostBands = 8;      // more are not told apart by eye
constexpr double kLightest = 0.15; // opacity
constexpr double kDarkest = 0.75;
constexpr double kWidestStep = 0.2;
constexpr double kHighest = 1e9; // mm: beyond, elevations are no longer told apart

qint64 wholeMillimetres(double elevation)
{
    return std::isnan(elevation) ? 0 : std::llround(std::clamp(elevation, -kHighest, kHighest));
}

QString metres(double elevation)
{
    const QString number = QString::number(std::fabs(elevation) / 1000.0, 'f', 3);
    const QChar sign = elevation > 0 ? QLatin1Char('+') : QChar(0x2212); // a minus as long as the plus
    return wholeMillimetres(elevation) == 0 ? QChar(0xB1) + number : sign + number;
}

} // namespace

QString PlanShades::Band::text() const
{
    const QString lowest = metres(from);
    return (from == to ? lowest : lowest + QStringLiteral(" … ") + metres(to)) + QStringLiteral(" m");
}

void PlanShades::add(double elevation) { ++m_numbers[wholeMillimetres(elevation)]; }

std::vector<PlanShades::Band> PlanShades::bands() const
{
    const int count = std::min(kMostBands, static_cast<int>(m_numbers.size()));
    const double step = count > 1 ? std::min(kWidestStep, (kDarkest - kLightest) / (count - 1)) : 0.0;
    std::vector<Band> bands(static_cast<std::size_t>(count));
    int place = 0; // of the elevation, from the lowest up
    for (auto elevation = m_numbers.cbegin(); elevation != m_numbers.cend(); ++elevation, ++place) {
        const int fromTop = count - 1 - place * count / static_cast<int>(m_numbers.size());
        Band &band = bands[static_cast<std::size_t>(fromTop)];
        const auto millimetres = static_cast<double>(elevation.key());
        if (band.number == 0)
            band.from = millimetres;
        band.to = millimetres;
        band.number += elevation.value();
        band.opacity = kLightest + step * fromTop;
    }
    return bands;
}

double PlanShades::opacity(double elevation) const
{
    const auto wanted = static_cast<double>(wholeMillimetres(elevation));
    for (const Band &band : bands())
        if (band.from <= wanted && wanted <= band.to)
            return band.opacity;
    return kLightest;
}

} // namespace orvcad

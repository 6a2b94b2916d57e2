#pragma once

#include <QString>

#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <random>

/** Endless supply of numbers and of texts that are, or nearly are, numbers; the same ones in every run. */
class NumberCases
{
public:
    explicit NumberCases(std::uint64_t seed) : m_random(seed) {}

    /** All kinds take turns: any bit pattern, half and hundredth millimetres, ties at the seventh digit, all sizes. */
    double number()
    {
        switch (m_random() % 7) {
        case 0:
            return bits();
        case 1:
            return halfMillimetre();
        case 2:
            return tie();
        case 3:
            return static_cast<double>(below(2'000'000'000)) / 100.0;
        case 4:
            return static_cast<double>(below(4'000'000)) - 2'000'000.0;
        case 5:
            return nearTie();
        default:
            return std::ldexp(static_cast<double>(m_random() >> 11) + 0.5, static_cast<int>(below(140)) - 100);
        }
    }

    /** The text of a number in some form, as it is, damaged, or put together at random from pieces of numbers. */
    QString text()
    {
        switch (m_random() % 5) {
        case 0:
            return QString::number(bits(), "eEgfG"[below(5)], static_cast<int>(below(20)));
        case 1:
            return QString::number(number(), 'g', 17);
        case 2:
            return QString::number(halfMillimetre(), 'f', static_cast<int>(below(4)));
        case 3:
            return damaged(QString::number(number(), 'g', static_cast<int>(below(17)) + 1));
        default:
            return soup();
        }
    }

private:
    std::uint64_t below(std::uint64_t limit) { return m_random() % limit; }

    double bits()
    {
        const std::uint64_t pattern = m_random();
        double value = 0.0;
        std::memcpy(&value, &pattern, sizeof value);
        return value;
    }
    double halfMillimetre() { return (static_cast<double>(below(4'000'000)) - 2'000'000.0) / 2.0; }
    /** Exactly half way between two numbers of six digits, where the binary fraction can say so. */
    double tie()
    {
        const auto digits = static_cast<double>(100'000 + below(900'000));
        return std::ldexp(digits * 2.0 + 1.0, -1) * scale() * (below(2) == 0 ? 1.0 : -1.0);
    }
    double scale()
    {
        static constexpr std::array<double, 12> scales = {1,     0.5, 0.25, 0.125, 0.1, 0.01,
                                                          0.001, 10,  100,  1e6,   1e9, 1e15};
        return scales[below(scales.size())];
    }
    double nearTie()
    {
        const double value = tie();
        return std::nextafter(value, below(2) == 0 ? 0.0 : 2.0 * value);
    }

    QChar piece()
    {
        static const QString pieces = QStringLiteral("0123456789012345678901234567890123456789....--++eeEE ,\t\n\r"
                                                     "xXnaifNAIF_'\u00a0\u2212\uff11\u0661\u066b\u3000");
        return pieces.at(static_cast<int>(below(static_cast<std::uint64_t>(pieces.size()))));
    }
    QString damaged(QString text)
    {
        const auto at = static_cast<int>(below(static_cast<std::uint64_t>(text.size()) + 1));
        switch (below(4)) {
        case 0:
            return text.insert(at, piece());
        case 1:
            return text.remove(at, 1);
        case 2:
            return text.left(at);
        default:
            return QStringLiteral(" ") + text + piece();
        }
    }
    QString soup()
    {
        QString text;
        for (auto left = below(12); left > 0; --left)
            text.append(piece());
        return text;
    }

    std::mt19937_64 m_random;
};

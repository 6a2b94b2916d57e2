#include "cli/NearestName.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace orvcad {

namespace {

constexpr int kLettersPerSlip = 3;
constexpr int kLongestName = 200; // no name of a format comes near it

int allowedSlips(const QString &name) { return name.size() < 2 ? 0 : std::max(1, name.size() / kLettersPerSlip); }

/** The rows of the table of slips that the next one is worked out from. */
struct SlipRows
{
    std::vector<int> twoBefore;
    std::vector<int> before;
    std::vector<int> current;
};

int slipsHere(const SlipRows &rows, const QString &a, const QString &b, int i, int j)
{
    const auto at = [](const std::vector<int> &row, int place) { return row[static_cast<std::size_t>(place)]; };
    const int change = at(rows.before, j - 1) + (a[i - 1] == b[j - 1] ? 0 : 1);
    const int slips = std::min({at(rows.before, j) + 1, at(rows.current, j - 1) + 1, change});
    const bool areSwapped = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
    return areSwapped ? std::min(slips, at(rows.twoBefore, j - 2) + 1) : slips;
}

} // namespace

int slipsBetween(const QString &a, const QString &b, int limit)
{
    if (limit < 0 || std::abs(a.size() - b.size()) > limit)
        return limit + 1;
    const auto width = static_cast<std::size_t>(b.size()) + 1;
    SlipRows rows{std::vector<int>(width), std::vector<int>(width), std::vector<int>(width)};
    for (std::size_t j = 0; j < width; ++j)
        rows.current[j] = static_cast<int>(j);
    for (int i = 1; i <= a.size(); ++i) {
        rows.twoBefore.swap(rows.before);
        rows.before.swap(rows.current);
        rows.current[0] = i;
        for (int j = 1; j <= b.size(); ++j)
            rows.current[static_cast<std::size_t>(j)] = slipsHere(rows, a, b, i, j);
    }
    return std::min(rows.current.back(), limit + 1);
}

QString nearestName(const QString &name, const QStringList &known)
{
    if (name.size() > kLongestName)
        return {};
    QString nearest;
    const QString typed = name.toLower();
    int fewest = allowedSlips(name) + 1;
    for (const QString &one : known) {
        const int slips = slipsBetween(typed, one.toLower(), fewest - 1);
        if (slips < fewest && slips < one.size()) {
            fewest = slips;
            nearest = one;
        }
    }
    return nearest;
}

} // namespace orvcad

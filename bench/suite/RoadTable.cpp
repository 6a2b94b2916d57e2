#include "suite/RoadTable.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <utility>

namespace bench {

namespace {

/** The exponent k of time = c * size^k for a time per item that grows so many times. */
double exponent(double growth, double sizes) { return 1.0 + std::log(growth) / std::log(sizes); }

double sizesOf(const Road &road)
{
    return static_cast<double>(road.sizes.back()) / static_cast<double>(road.sizes.front());
}

/** What a floor costs more of itself, no road over it can save. */
constexpr double kAboveFloor = 1.2;

/** How many times the time per item grows from the smallest size to the largest. */
double growthOf(const std::vector<Measurement> &sizes, double Measurement::*side)
{
    const double smallest = sizes.front().*side;
    return smallest > 0.0 ? sizes.back().*side / smallest : 0.0;
}

double growthBound(const Road &road, const std::vector<Measurement> &sizes)
{
    if (!(road.bounds.growth > 0.0) || sizes.size() < 2)
        return 0.0;
    const double growth = std::max(road.bounds.growth, kAboveFloor * growthOf(sizes, &Measurement::floor));
    return exponent(growth, sizesOf(road));
}

double memoryBound(const Road &road, const Measurement &cost)
{
    return road.bounds.memory > 0.0 ? std::max(road.bounds.memory, kAboveFloor * cost.floorMemory()) : 0.0;
}

QString number(double value, const char *format)
{
    return value > 0.0 ? QString::asprintf(format, value) : QString("-");
}

QString time(double nanoseconds)
{
    return nanoseconds < 1000.0 ? number(nanoseconds, "%.1f") : QString::asprintf("%.0f", nanoseconds);
}

/** A value and its bound. */
QString held(double value, double bound)
{
    const QString text = number(value, "%.2f");
    return bound > 0.0 ? QString::asprintf("%s of %.2f", qPrintable(text), bound) : text;
}

void note(QStringList &wrong, const char *what, double value, double bound)
{
    if (bound > 0.0 && value > bound)
        wrong.append(QString::asprintf("%s beyond %.2f", what, bound));
}

QJsonValue orNull(double value) { return value > 0.0 ? QJsonValue(value) : QJsonValue(); }

} // namespace

RoadTable::RoadTable(Form form) : m_form(form)
{
    if (m_form == Form::Table)
        std::printf(
            "Times in ns for each item, medians; peak: of memory, to the bytes of the document; growth: exponent of "
            "the time\nfrom the smallest size to the largest; value of bound.\n%-74s %7s %9s %9s %13s %8s %13s %13s\n",
            "road / floor under it", "size", "ours", "floor", "ratio", "allocs", "peak", "growth");
}

std::vector<RoadTable::Row> RoadTable::rowsOf(const Road &road, const std::vector<Measurement> &sizes)
{
    std::vector<Row> rows;
    for (const Measurement &one : sizes) {
        QStringList wrong{one.failure};
        const bool isLargest = sizes.size() > 1 && &one == &sizes.back();
        const bool hasFigures = one.failure.isEmpty() && sizes.front().failure.isEmpty();
        const double growth =
            isLargest && hasFigures ? exponent(growthOf(sizes, &Measurement::ours), sizesOf(road)) : 0.0;
        note(wrong, "ratio", one.ratio, road.bounds.ratio);
        note(wrong, "allocations", one.allocations, road.bounds.allocations);
        note(wrong, "peak", one.memory(), memoryBound(road, one));
        note(wrong, "growth", growth, growthBound(road, sizes));
        wrong.removeAll(QString());
        rows.push_back({&road, one, growth, growthBound(road, sizes), wrong.join(QStringLiteral(", "))});
    }
    return rows;
}

bool RoadTable::isGood(const Road &road, const std::vector<Measurement> &sizes)
{
    const std::vector<Row> rows = rowsOf(road, sizes);
    return std::all_of(rows.begin(), rows.end(), [](const Row &row) { return isGood(row); });
}

void RoadTable::add(const Road &road, const std::vector<Measurement> &sizes)
{
    for (Row &row : rowsOf(road, sizes)) {
        if (m_form == Form::Table)
            print(row);
        m_rows.push_back(std::move(row));
    }
}

void RoadTable::print(const Row &row) const
{
    const Road &road = *row.road;
    const std::string name = road.floor.empty() ? road.name : road.name + " / " + road.floor;
    std::printf("%-74s %7zu %9s %9s %13s %8s %13s %13s%s%s\n", name.c_str(), row.cost.size,
                qPrintable(time(row.cost.ours)), qPrintable(time(row.cost.floor)),
                qPrintable(held(row.cost.ratio, road.bounds.ratio)), qPrintable(number(row.cost.allocations, "%.1f")),
                qPrintable(held(row.cost.memory(), memoryBound(road, row.cost))),
                qPrintable(row.growth > 0.0 ? held(row.growth, row.growthBound) : QString()),
                row.verdict.isEmpty() ? "" : "  ", qUtf8Printable(row.verdict));
    std::fflush(stdout);
}

int RoadTable::finish() const
{
    const auto bad = std::count_if(m_rows.begin(), m_rows.end(), [](const Row &row) { return !isGood(row); });
    if (m_form == Form::Table) {
        std::printf("%zu rows, %td beyond a bound\n", m_rows.size(), bad);
        return bad == 0 ? 0 : 1;
    }
    QJsonArray rows;
    for (const Row &row : m_rows) {
        const Bounds &bounds = row.road->bounds;
        const Measurement &cost = row.cost;
        rows.append(QJsonObject{{"road", QString::fromStdString(row.road->name)},
                                {"floor", QString::fromStdString(row.road->floor)},
                                {"size", static_cast<qint64>(cost.size)},
                                {"nanosecondsPerItem", orNull(cost.ours)},
                                {"floorNanosecondsPerItem", orNull(cost.floor)},
                                {"ratio", orNull(cost.ratio)},
                                {"ratioBound", orNull(bounds.ratio)},
                                {"allocationsPerItem", cost.allocations},
                                {"allocationsBound", orNull(bounds.allocations)},
                                {"peakBytes", cost.peakBytes},
                                {"documentBytes", orNull(cost.documentBytes)},
                                {"peakToDocument", orNull(cost.memory())},
                                {"floorPeakBytes", orNull(cost.floorPeakBytes)},
                                {"peakToDocumentBound", orNull(memoryBound(*row.road, cost))},
                                {"growthExponent", orNull(row.growth)},
                                {"growthExponentBound", orNull(row.growthBound)},
                                {"isGood", isGood(row)},
                                {"reason", row.verdict}});
    }
    std::fputs(QJsonDocument(QJsonObject{{"rows", rows}}).toJson().constData(), stdout);
    return bad == 0 ? 0 : 1;
}

} // namespace bench

#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

/** Members of replies of slabs. */
namespace slabtest {

inline QString identity(int number)
{
    return QStringLiteral("{00000000-0000-4000-8000-%1}").arg(number, 12, 10, QLatin1Char('0'));
}

inline QString rectangle(int x, int y, int width, int height)
{
    return QStringLiteral("POLYGON((%1 %2, %3 %2, %3 %4, %1 %4, %1 %2))").arg(x).arg(y).arg(x + width).arg(y + height);
}

inline QJsonObject board(int number = 1)
{
    return {{"id", -1},         {"recongnizedID", identity(number)},
            {"name", ""},       {"surface", rectangle(10000 * number, 0, 4000, 3000)},
            {"thinkness", 100}, {"elev", 2.95}};
}

inline QJsonObject raft()
{
    return {{"id", -1},         {"recongnizedID", identity(50)},
            {"name", "FB-1"},   {"surface", rectangle(0, 20000, 5000, 5000)},
            {"thinkness", 500}, {"topElev", 0.5},
            {"bottomElev", 0}};
}

inline QJsonObject hole(int x = 1000)
{
    return {{"id", -1}, {"recongnizedID", identity(60)}, {"name", ""}, {"surface", rectangle(x, 1000, 800, 600)}};
}

inline QJsonObject bar()
{
    return {{"id", -1},
            {"recongnizedID", identity(70)},
            {"name", ""},
            {"surface", rectangle(10000, 0, 4000, 3000)},
            {"direction_x", 1},
            {"direction_y", 0},
            {"bar_info", "c10@150"},
            {"forced_type", 1}};
}

inline QJsonObject negativeBar(int number = 80)
{
    return {{"id", -1},
            {"recongnizedID", identity(number)},
            {"name", ""},
            {"line", "LINESTRING(4000 0, 4000 9000)"},
            {"bar_info", "C8@200"},
            {"label_position", 2},
            {"left_strech_length", 900},
            {"right_strech_length", 900}};
}

} // namespace slabtest

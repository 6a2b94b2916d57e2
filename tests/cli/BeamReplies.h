#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

/** Parts of replies of beams, and of documents of seats, for region "House" and its floor "Level 1". */
namespace clitest {

inline QJsonObject element(int type = 15)
{
    return {{"Name", "KL-1"},         {"ElementType", type},   {"ElementSubType", 3}, {"SectionWidth", 300},
            {"SectionHeight", 600},   {"SectionPoly", ""},     {"StartTopElev", ""},  {"EndTopElev", ""},
            {"FloorName", "Level 1"}, {"RegionName", "House"}, {"HoopBar", ""},       {"LimbCount", ""},
            {"TieBar", ""},           {"AxisOffset", 0}};
}

/** A metre along the x axis. */
inline QJsonObject segment(int index)
{
    return {
        {"Index", index},        {"WordLine", QStringLiteral("%1,0,%2,0").arg(index * 1000).arg(index * 1000 + 1000)},
        {"LineWidth", 300},      {"AxisOffset", 0},
        {"StartPtTopElev", "3"}, {"EndPtTopElev", "3"}};
}

inline QJsonObject chain(const QJsonArray &segments, int spans = 1)
{
    QJsonArray list;
    for (int i = 1; i <= spans; ++i)
        list.append(QJsonObject{{"SpanIndex", i}, {"SpanLength", 1000}, {"TopThroughBar", "2C25"}});
    return {{"BeamSegmentInfo", segments}, {"BeamSpanInfo", list}};
}

inline QJsonObject beam(const QJsonObject &elementInfo, const QJsonArray &chains)
{
    return {{"ElementInfo", elementInfo}, {"EDOInfo", chains}};
}

inline QJsonObject pile()
{
    return {{"ElementType", 54},     {"ElementSubType", 64},
            {"EntName", "ZH-1"},     {"FloorName", "Level 1"},
            {"RegionName", "House"}, {"SectionWidth", 400},
            {"SectinoHeight", 400},  {"TopElev", "-1"},
            {"Type", "1"},           {"WorldPoly", "POLYGON((4800 6800, 5200 6800, 5200 7200, 4800 7200, 4800 6800))"}};
}

inline QJsonObject tieBeam()
{
    return {{"ElementType", 18},     {"ElementSubType", 70},
            {"EntName", "LL-1"},     {"FloorName", "Level 1"},
            {"RegionName", "House"}, {"SectionWidth", 300},
            {"SectinoHeight", 500},  {"TopElev", "-1"},
            {"BtmElev", "-1"},       {"CenterLine", "LINESTRING(0 0, 4000 0)"}};
}

} // namespace clitest

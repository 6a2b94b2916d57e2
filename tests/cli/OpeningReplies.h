#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

/** Members of replies of doors and windows, for floors of code "1". */
namespace openingtest {

inline QJsonObject elementMember(const QString &name, int type = 4, const QString &region = QStringLiteral("House"))
{
    return {{"elementID", 1},        {"name", name},     {"nElementType", type},
            {"nSubElementType", 0},  {"nHeight", 2100},  {"nWidth", 900},
            {"nHeightFromFloor", 0}, {"floorName", "1"}, {"regionName", region}};
}

inline QJsonObject placedMember(const QString &name, double x, double y,
                                const QString &region = QStringLiteral("House"))
{
    return {{"elementName", name},   {"X", x},           {"Y", y},
            {"nHeightFromFloor", 0}, {"floorName", "1"}, {"regionName", region}};
}

inline QJsonObject replyOf(const QJsonArray &members)
{
    return {{"eDoorWin", QJsonObject{{"ElementsAndEdos", members}}}};
}

} // namespace openingtest

#pragma once

#include "cli/OpeningReplies.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

/** A building of any size, made of walls 5 m long, and a reply of doors that stand in them. Floor "1" of region "House" is
 *  where the reply goes. */
namespace crashtest {

constexpr int kWallsOfAnElement = 50;
constexpr int kWallsInARow = 100;
constexpr int kFloors = 4;
constexpr int kAlongMm = 6000;  ///< from the start of a wall to that of the next
constexpr int kAcrossMm = 3000; ///< from row to row

inline QJsonObject wall(int number)
{
    const int x = number % kWallsInARow * kAlongMm;
    const int y = number / kWallsInARow * kAcrossMm;
    const QString axis = QStringLiteral("LINESTRING(%1 %2, %3 %2)").arg(x).arg(y).arg(x + 5000);
    return {{"shape", QJsonObject{{"kind", "line"}, {"axis", axis}, {"width", 200}}}};
}

inline QJsonArray wallElements(int walls)
{
    QJsonArray elements;
    for (int first = 0; first < walls; first += kWallsOfAnElement) {
        QJsonArray placed;
        for (int i = first; i < std::min(first + kWallsOfAnElement, walls); ++i)
            placed.append(wall(i));
        elements.append(QJsonObject{{"name", QStringLiteral("Q%1").arg(first / kWallsOfAnElement + 1)},
                                    {"type", 1003},
                                    {"properties", QJsonObject{{"Thickness", 200}}},
                                    {"drawObjects", placed}});
    }
    return elements;
}

/** As hbx-project JSON. */
inline QByteArray largeBuilding(int walls)
{
    QJsonArray floors;
    for (int i = 0; i < kFloors; ++i)
        floors.append(QJsonObject{{"name", QStringLiteral("Level %1").arg(i + 1)},
                                  {"code", QString::number(i + 1)},
                                  {"bottomElev", i * 3},
                                  {"height", 3},
                                  {"elements", wallElements(walls / kFloors)}});
    const QJsonObject region{{"name", "House"}, {"floors", floors}};
    return QJsonDocument(
               QJsonObject{
                   {"format", "hbx-project"}, {"version", 1}, {"name", "Large"}, {"regions", QJsonArray{region}}})
        .toJson();
}

/** Doors of one element, each in a wall of its own. */
inline QByteArray doorReply(int doors)
{
    QJsonArray members{openingtest::elementMember("M1")};
    for (int i = 0; i < doors; ++i)
        members.append(
            openingtest::placedMember("M1", i % kWallsInARow * kAlongMm + 1000, i / kWallsInARow * kAcrossMm));
    return QJsonDocument(openingtest::replyOf(members)).toJson();
}

} // namespace crashtest

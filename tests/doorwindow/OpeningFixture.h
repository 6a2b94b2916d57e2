#pragma once

#include "support/HouseFixture.h"

#include <QJsonArray>
#include <QJsonObject>

/** A house, and replies of openings to write into it. */
class OpeningFixture : public HouseFixture
{
protected:
    static QJsonObject elementMember(int type, const QString &name, int width = 900, int height = 2100, int above = 0)
    {
        return {{"elementID", 7},       {"name", name},    {"nElementType", type},      {"nSubElementType", 9},
                {"nHeight", height},    {"nWidth", width}, {"nHeightFromFloor", above}, {"floorName", "1"},
                {"regionName", "House"}};
    }
    static QJsonObject placedMember(const QString &elementName, double x, double y, int above = 0)
    {
        return {{"elementName", elementName}, {"X", x},           {"Y", y},
                {"nHeightFromFloor", above},  {"floorName", "1"}, {"regionName", "House"}};
    }
    static QJsonObject reply(const QJsonArray &members)
    {
        return {{"eDoorWin", QJsonObject{{"ElementsAndEdos", members}}}};
    }
};

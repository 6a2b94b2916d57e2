#pragma once

#include "JsonTexts.h"

/** Drawing-set files for tests. */
namespace clitest {

/** A sound set in which nothing has run. */
inline QJsonObject emptySet()
{
    return {{"splitDrawing", QJsonObject()},  {"parseDrawing", QJsonObject()},    {"floorInfos", QJsonObject()},
            {"matchFloorInfo", QJsonValue()}, {"matchElementInfo", QJsonValue()}, {"classifyLayer", QJsonValue()},
            {"reviseScale", QJsonValue()},    {"locateDrawing", QJsonValue()}};
}

/** The same with a member set to what a JSON text holds. */
inline QJsonObject setWith(const char *key, const QByteArray &value)
{
    QJsonObject set = emptySet();
    set[QLatin1String(key)] = valueOf(value);
    return set;
}

} // namespace clitest

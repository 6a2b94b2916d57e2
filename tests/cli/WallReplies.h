#pragma once

#include "IdentifyInputModel/Wall/WallReplyText.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

/** Members of replies of walls for a building with region "House" and a floor of code "1". */
namespace walltest {

inline QJsonObject element(const QString &name, const QString &type = QStringLiteral("1003"))
{
    return {{"edoId", "7"},   {"entName", name}, {"elementType", type}, {"elementSubType", "316"},
            {"width", "120"}, {"material", "3"}, {"floorCode", "1"},    {"region", "House"}};
}

inline QJsonObject piece(const QString &axis = QStringLiteral("0,3000,5000,3000"))
{
    return {{"sWorldLine", axis}, {"sPfnStartPtTopElev", "2.8"}, {"sPfnEndPtTopElev", "2.8"}};
}

} // namespace walltest

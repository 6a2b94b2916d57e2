#pragma once

#include <QJsonArray>
#include <QJsonObject>

#include <vector>

/** Replies of walls as they come as text. */
namespace walltest {

/** An object of texts, and an array of such objects, or what stands wrongly in their place. */
struct WallText
{
    QJsonValue element;
    QJsonValue pieces;
};

/** The map of a document: "key_0" with "value_0", and so on. */
inline QJsonObject mapOf(const std::vector<WallText> &walls)
{
    QJsonObject map;
    for (std::size_t i = 0; i < walls.size(); ++i) {
        map[QStringLiteral("key_%1").arg(i)] = walls[i].element;
        map[QStringLiteral("value_%1").arg(i)] = walls[i].pieces;
    }
    return map;
}

} // namespace walltest

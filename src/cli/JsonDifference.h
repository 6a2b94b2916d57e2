#pragma once

#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <vector>

namespace orvcad {

/** A place at which a document and what is written from it are not the same. */
struct JsonDifference
{
    QString place;     ///< key path, such as FloorSDCData[2].Region.ID
    QStringList keys;  ///< the keys on the way there, without the places in arrays
    QJsonValue before; ///< undefined where the key was not there
    QJsonValue after;  ///< undefined where the key is not written
};

/** What becomes of keys that only the later document has. */
enum class AddedKeys { Told, PassedOver };

/** Every difference, in the order of the document's keys, each as deep inside as it stands. Arrays of different lengths are
 *  a difference themselves, and their common entries are compared as well. Whole numbers of 64 bits are compared as such. */
std::vector<JsonDifference> differencesBetween(const QJsonValue &before, const QJsonValue &after,
                                               AddedKeys added = AddedKeys::Told);

} // namespace orvcad

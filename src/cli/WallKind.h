#pragma once

#include "IdentifyInputModel/Wall/EORVCADIdentifyType.h"

#include <QJsonObject>
#include <QLatin1String>
#include <QString>

#include <vector>

class IHBXService;

namespace orvcad {

/** What tells the kinds of walls apart. */
struct WallKind
{
    const char *word;                 ///< of --kind
    const char *title;                ///< of one such wall, for messages: "brick wall"
    const char *titles;               ///< of several
    EORVCADIdentifyType identifyType; ///< in what the recognition of such walls is told
    qint64 elementType;               ///< of the host
    QLatin1String reply;              ///< key above the document of a reply
    QLatin1String document;           ///< key of the map in the document
    bool (*write)(IHBXService *, const QJsonObject &);

    bool isBrick() const;
    /** A reply with that map in its document. */
    QJsonObject replyOf(const QJsonObject &map) const;
    /** The map in the document of a reply; empty where there is none. */
    QJsonObject mapIn(const QJsonObject &walls) const;
};

/** Keys of the elements in the map of a reply, counted from 0, and of their pieces. */
QString wallElementKey(int number);
QString wallPiecesKey(int number);
/** Elements of a map, as the reader counts them: half of its keys. */
int wallCount(const QJsonObject &map);

/** Brick walls, then force walls. */
const std::vector<WallKind> &wallKinds();
/** The kind of that word, which must be one of those: "brick" or "force". */
const WallKind &wallKindOf(const QString &word);

} // namespace orvcad

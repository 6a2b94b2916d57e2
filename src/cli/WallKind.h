#pragma once

#include <QJsonObject>
#include <QLatin1String>
#include <QString>

#include <vector>

class IHBXService;

namespace orvcad {

/** What tells the kinds of walls apart. */
struct WallKind
{
    const char *word;       ///< of --kind, and what people call it
    qint64 elementType;     ///< of the host
    QLatin1String reply;    ///< key above the document of a reply
    QLatin1String document; ///< key of the map in the document
    bool (*write)(IHBXService *, const QJsonObject &);
};

/** Brick walls, then force walls. */
const std::vector<WallKind> &wallKinds();
/** The kind of that word, which must be one of those. */
const WallKind &wallKindOf(const QString &word);

} // namespace orvcad

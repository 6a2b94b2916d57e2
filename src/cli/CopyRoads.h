#pragma once

#include "cli/Applied.h"

#include <QJsonObject>
#include <QSet>
#include <QString>

#include <string>
#include <vector>

class IHBXFloor;

namespace hbx::embedded {
class HBXProject;
}

namespace orvcad {

/** A road on which a floor is copied: what it has is written as a document, and that is a reply for another floor. */
struct CopyRoad
{
    /** The document of a floor, and what of the floor it cannot hold. */
    struct Document
    {
        QJsonObject reply;
        std::vector<LeftOut> leftOut;
    };
    /** What became of a reply. */
    struct Outcome
    {
        QString text;
        QJsonObject json; ///< what the verb gives that applies such a reply
        bool isComplete = true;
    };

    const char *word; ///< of --roads; the two kinds of walls share one
    QSet<qint64> types;
    Document (*write)(hbx::embedded::HBXProject &project, IHBXFloor &floor);
    /** @param file  what the reply is called when it is refused */
    Outcome (*apply)(hbx::embedded::HBXProject &project, IHBXFloor &floor, const QJsonObject &reply,
                     const QString &file);
};

/** In the order in which a floor is made: walls before the openings in them, what beams rest on before the beams. */
const std::vector<CopyRoad> &copyRoads();
/** The words of the roads, each once. */
std::vector<std::string> copyRoadWords();

} // namespace orvcad

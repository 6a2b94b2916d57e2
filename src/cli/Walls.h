#pragma once

#include "cli/Applied.h"
#include "cli/WallKind.h"

#include <QJsonObject>
#include <QString>

#include <vector>

class IHBXFloor;

namespace hbx::embedded {
class HBXProject;
}

namespace orvcad {

/** What writing a reply of walls into a project did. */
struct WallOutcome
{
    struct Wall
    {
        QString place;   ///< in the reply: BrickWallIdentifyData.key_3
        QString wanted;  ///< name in the reply
        QString name;    ///< name that the host has it under
        QString floor;   ///< code
        int placed = 0;  ///< pieces made
        int leftOut = 0; ///< pieces that were not
        int doubled = 0; ///< of the pieces made, those that are the same as another object

        QString text() const;
        QJsonObject toJson() const;
    };

    QString kind;  ///< "brick" or "force"
    QString title; ///< of one wall: "brick wall", as people call it
    int members = 0;
    std::vector<Wall> walls; ///< that were made
    std::vector<LeftOut> leftOut;

    int placed() const;
    int renamed() const;
    int doubled() const;
    /** The first line of text() alone. */
    QString headline() const;
    QString text() const;
    QJsonObject toJson() const;
};

/** Writes the sound walls of a reply into the project, one by one, between the brackets of one batch. Nothing is saved.
 *  Throws CommandFailure naming file and place when the document is no reply of walls of that kind. */
WallOutcome applyWalls(hbx::embedded::HBXProject &project, const WallKind &kind, const QJsonObject &reply,
                       const QString &file);

/** Removes all walls of a kind from a floor, elements and placed objects.
 *  @return how many elements there were */
int removeWalls(hbx::embedded::HBXProject &project, const WallKind &kind, const IHBXFloor &floor);

} // namespace orvcad

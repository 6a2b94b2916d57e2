#pragma once

#include "cli/OpeningReplyCheck.h"

#include <QJsonObject>
#include <QString>

#include <vector>

class IHBXElementDrawObj;
class IHBXFloor;
class IHBXModel;

namespace hbx::embedded {
class HBXProject;
}

namespace orvcad {

/** Doors and windows, counted. */
struct OpeningCounts
{
    int elements = 0;
    int placed = 0;   ///< placed objects
    int attached = 0; ///< of them in a wall
};

/** What writing a reply of doors and windows into a project did. */
struct OpeningOutcome
{
    int members = 0;
    OpeningCounts made;
    std::vector<OpeningReplyCheck::LeftOut> leftOut;

    QString text() const;
    QJsonObject toJson() const;
};

/** The reply document of all doors and windows of those floors, in the host's order; counts gets their numbers. */
QJsonObject openingReply(IHBXModel &model, const std::vector<IHBXFloor *> &floors, OpeningCounts &counts);

/** "ElementsAndEdos" of a reply; throws CommandFailure naming file and place when the document has no such array. */
QJsonArray openingMembers(const QJsonObject &reply, const QString &file);

/** Writes the sound members of a reply into the project, between the brackets of one batch. Nothing is saved. */
OpeningOutcome applyOpenings(hbx::embedded::HBXProject &project, const QJsonArray &members);

/** Placed doors and windows of a floor, in the host's order. */
std::vector<IHBXElementDrawObj *> placedOpenings(IHBXFloor &floor);

/** Removes all doors and windows, elements and placed objects.
 *  @return how many elements there were */
int removeOpenings(hbx::embedded::HBXProject &project);

} // namespace orvcad

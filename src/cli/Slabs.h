#pragma once

#include "cli/Applied.h"

#include <QJsonObject>
#include <QLatin1String>
#include <QSet>
#include <QString>
#include <QUuid>

#include <map>
#include <vector>

class IHBXFloor;

namespace hbx::embedded {
class HBXProject;
}

namespace orvcad {

/** What writing a reply of slabs into a project did. */
struct SlabOutcome
{
    struct Array
    {
        QLatin1String key;
        QString title; ///< of one member
        int members = 0;
        int made = 0;
        int known = 0; ///< passed over: the host has them
        int leftOut = 0;

        QString text() const;
        QJsonObject toJson() const;
    };

    int elementsMade = 0;
    int passedOver = 0; ///< supports and axes in the reply
    int repeated = 0;   ///< members whose identity another one has before them
    int doubled = 0;    ///< objects made that are the same as another one
    std::vector<Array> arrays;
    std::vector<LeftOut> leftOut;
    std::map<qint64, QUuid> ids; ///< draw object that was made, and the identity that the reply gave it

    /** Sum of a number over the arrays. */
    int sum(int Array::*number) const;
    /** The first line of text() alone. */
    QString headline() const;
    QString text() const;
    QJsonObject toJson() const;
    /** {"<draw object id>": "{uuid}"}. */
    QJsonObject idMap() const;
};

/** Element types of slabs, rafts, holes and bars. */
QSet<qint64> slabTypes();

/** Writes the sound members of a reply into a floor, between the brackets of one batch: slabs, rafts and holes, then bars
 *  of slabs and bars of rafts, so that bars find what they lie in. The floor becomes the current one. Nothing is saved.
 *  Throws CommandFailure naming file and place when the document is no reply of slabs. */
SlabOutcome applySlabs(hbx::embedded::HBXProject &project, IHBXFloor &floor, const QJsonObject &reply,
                       const QString &file);

/** Removes the slabs, rafts, holes and bars of a floor, elements and placed objects.
 *  @return how many elements there were */
int removeSlabs(hbx::embedded::HBXProject &project, const IHBXFloor &floor);

} // namespace orvcad

#pragma once

#include "cli/Applied.h"

#include <QJsonObject>
#include <QSet>
#include <QString>

#include <vector>

class IHBXFloor;

namespace hbx::embedded {
class HBXProject;
}

namespace orvcad {

/** Beams and what they are made of, counted. */
struct BeamCounts
{
    int elements = 0;
    int chains = 0;
    int segments = 0;
    int spans = 0;

    /** "2 elements, 40 chains of 129 segments, 68 spans". */
    QString text() const;
    QJsonObject toJson() const;
};

/** What writing a reply of beams into a project did. */
struct BeamOutcome
{
    struct Beam
    {
        QString place; ///< in the reply: Beam[3]
        QString name;
        qint64 type = 0;
        QString floor;
        bool isReused = false; ///< the floor had an element of that name and type
        int chains = 0;        ///< whole and linked
        int segments = 0;      ///< draw objects made, those of stopped chains, too
        int spans = 0;         ///< stored at the heads of the chains
        int stopped = 0;       ///< chains that the host did not get whole

        QString text() const;
        QJsonObject toJson() const;
    };

    int members = 0;
    int doubled = 0; ///< of the segments made, those that are the same as another one
    std::vector<Beam> beams;
    std::vector<LeftOut> leftOut;

    int reused() const;
    BeamCounts made() const;
    /** The first line of text() alone. */
    QString headline() const;
    QString text() const;
    QJsonObject toJson() const;
};

/** Element types of beams. */
const QSet<qint64> &beamTypes();

/** The collect document of all beams of those floors: elements in the host's order, the chains of one by their axes, so that
 *  a building gives the same text each time. The project becomes the current one. */
QJsonObject beamDocument(hbx::embedded::HBXProject &project, const std::vector<IHBXFloor *> &floors,
                         BeamCounts &counts);

/** Writes the sound beams of a reply into the project, between the brackets of one batch, and their spans to the heads of
 *  their chains. Nothing is saved. Throws CommandFailure naming file and place when the document is no reply of beams. */
BeamOutcome applyBeams(hbx::embedded::HBXProject &project, const QJsonObject &reply, const QString &file);

/** Removes all beams of a floor, elements and placed objects.
 *  @return how many elements there were */
int removeBeams(hbx::embedded::HBXProject &project, const IHBXFloor &floor);

} // namespace orvcad

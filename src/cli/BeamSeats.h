#pragma once

#include "cli/Applied.h"

#include <QJsonObject>
#include <QString>

#include <vector>

class IHBXFloor;

namespace hbx::embedded {
class HBXProject;
}

namespace orvcad {

/** What writing a document of seats into a project did. */
struct SeatOutcome
{
    struct Kind
    {
        qint64 type = 0;
        int elements = 0; ///< made, units apart
        int reused = 0;   ///< times that an element was there already, made by a seat before it or not
        int units = 0;    ///< made below foundations and pile caps
        int placed = 0;

        QString text() const;
        QJsonObject toJson() const;
    };

    int members = 0;
    int doubled = 0;         ///< of the objects placed, those that are the same as another one
    std::vector<Kind> kinds; ///< those that the document has seats of
    std::vector<LeftOut> leftOut;

    QString text() const;
    QJsonObject toJson() const;
};

/** The seats of those floors that can be made anew; counts gets how many there are by element type. */
QJsonObject seatDocument(const hbx::embedded::HBXProject &project, const std::vector<IHBXFloor *> &floors,
                         std::vector<SeatOutcome::Kind> &counts);

/** Writes the sound seats of a document into the project, between the brackets of one batch. Nothing is saved. Throws
 *  CommandFailure naming file and place when the document holds no seats. */
SeatOutcome applySeats(hbx::embedded::HBXProject &project, const QJsonObject &reply, const QString &file);

} // namespace orvcad

#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace orvcad {

/** How drawings write a floor. */
struct FloorWords
{
    QString asked;
    int number = 0;         ///< of the floor; 0 for a word that names none
    QString name;           ///< the standard name; empty without a number
    QStringList names;      ///< all written forms; empty without a number
    QStringList otherWords; ///< for a word of a top floor, which has no number

    /** Lines for people. */
    QString text() const;
    QJsonObject toJson() const;
};

/** Of a number, or of the floor that a word names. Throws CommandFailure (wrong usage) for a number that no floor has; a
 *  word that names no floor is answered with nothing. */
FloorWords floorWords(const QString &numberOrWord);

} // namespace orvcad

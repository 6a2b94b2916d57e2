#pragma once

#include <QJsonObject>
#include <QString>

#include <functional>
#include <string>
#include <vector>

namespace honestytest {

/** What becomes of a value of a document that a command took. */
enum class How {
    Same,      ///< arrives as it is
    Near,      ///< arrives with six digits behind the point
    Rounded,   ///< arrives with six digits
    Geometry,  ///< arrives as the same words with the same numbers to six digits; a ring may begin at another corner
    Bars,      ///< arrives, in capitals
    Host,      ///< an empty text leaves what the host has; any other arrives as it is
    Direction, ///< arrives as a part of a vector along the same line; both parts are compared at once
    Never,     ///< is not used, as the format tells
};

/** A key of a record of a document. */
struct CarriedKey
{
    QString key;
    How how = How::Same;
    /** What the format takes for a key that is missing; undefined for whatever the host has then. */
    QJsonValue missing = QJsonValue::Undefined;
    /** For which records the row counts, where that is not all of them; for the others the value is not used. */
    std::function<bool(const QJsonObject &)> counts = {};
};
using CarriedKeys = std::vector<CarriedKey>;

/** Whether geometry texts say the same, each number to six digits; other texts have to be alike but for blanks. */
bool isSameGeometry(const QString &a, const QString &b);

/** The first key of a record that did not arrive, or that the format does not know, with both values; empty when all did. */
QString whyNotTheSame(const QJsonObject &sent, const QJsonObject &arrived, const CarriedKeys &keys);

/** A member of a document. */
struct Member
{
    QString kind;  ///< such as an array
    QString place; ///< as the command names it
    QJsonValue value;
};
using Members = std::vector<Member>;
using Compare = std::function<QString(const Member &sent, const Member &arrived)>;

/** Finds a partner for each of the sent members among those that arrived, each of which is one member's alone. What has
 *  none, a line each with the reason for which the most likely partner is none. */
std::string withoutPartner(const Members &sent, const Members &arrived, const Compare &difference);

int countOf(const Members &members, const QString &kind);

} // namespace honestytest

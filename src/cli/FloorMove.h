#pragma once

#include <QJsonObject>
#include <QString>

class IHBXFloor;

namespace orvcad {

/** What documents tell of the floor that they are of. */
struct FloorPlace
{
    QString region;
    QString name;
    QString code;
    double bottom = 0.0; ///< elevations, m
    double top = 0.0;

    /** "Level 1 of Block". */
    QString text() const;
    /** {"region", "floor"}. */
    QJsonObject toJson() const;
};
FloorPlace placeOf(const IHBXFloor &floor);

/** Makes the document of a floor that of another one: members that name its region, its name or its code name the other's,
 *  and elevations told as a number of metres move. One that is nearer to the floor's top keeps its distance to the top, any
 *  other one that to the bottom. Elevations told by a word for the floor's top or bottom stay as they are: they follow by
 *  themselves. Serves replies of all roads. */
class FloorMove
{
public:
    FloorMove(FloorPlace from, FloorPlace to);

    QJsonObject moved(const QJsonObject &document) const;
    /** Of metres, to the micrometre. */
    double movedElevation(double metres) const;

private:
    QJsonValue movedValue(const QJsonValue &value) const;
    QJsonValue movedMember(const QString &key, const QJsonValue &value) const;
    QJsonValue movedElevation(const QJsonValue &value) const;

    FloorPlace m_from;
    FloorPlace m_to;
};

} // namespace orvcad

#pragma once

#include "ORVCADModelDataExport.h"
#include "beam/BeamSeatModelFields.h"

#include <QJsonObject>
#include <QString>

/** An object that a beam may rest on, with what is needed to make it anew in a host. Lengths in millimetres.
 *
 *  Its JSON holds what reconstruction needs and nothing else; geometry stands there in the kernel's own text, which is
 *  exact. Elevations are texts, as the host keeps them. */
class ORVCADMODELDATA_EXPORT ORVBeamSDCSeatInfoModel : public BeamSeatModelFields
{
public:
    /** What reconstruction needs, under its keys. */
    QJsonObject toJson() const;
    /** Takes every field that has a key from the object; the others keep their values. Never fails: a missing or bad value
     *  gives 0, false, the empty text or null. "Height" is read as a whole number, so one with a fraction gives 0. */
    void fromJson(const QJsonObject &json);

    QString FloorName;                       ///< of the floor that it stands on
    QString RegionName;                      ///< of the region of that floor
    QString EntName;                         ///< of the element
    QString Type;                            ///< kind of pile, a number of the host
    vks::CRefPtr<vks::CPolygon> SectionPoly; ///< outline of an irregular section; null for another
    int SectionWidth = 0;                    ///< mm
    int SectionHeight = 0;                   ///< "SectinoHeight" in JSON
    QString TopElev;                         ///< of the element; of a tie beam the top at its start
    QString BtmElev;                         ///< of the element; of a tie beam the top at its end
    double Height = 0.0;                     ///< of a unit, mm
    double AxisOffset = 0.0;                 ///< mm, from the axis
    bool Mirror = false;                     ///< whether the outline is mirrored
    double Angle = 0.0;                      ///< rad
    QString EDOTopElev;                      ///< as TopElev, of the draw object
    QString EDOBtmElev;                      ///< as BtmElev, of the draw object

private:
    struct Fields; // the one list, in the source
};

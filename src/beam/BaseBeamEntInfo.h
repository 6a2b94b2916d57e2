#pragma once

#include "ORVCADModelDataExport.h"

#include <QJsonObject>
#include <QString>

/** What beams of every kind have in common as elements: name, section, reinforcement texts.
 *
 *  Lengths in millimetres. An elevation is text, as the host keeps it. The members are the JSON keys. */
class ORVCADMODELDATA_EXPORT BaseBeamEntInfo
{
public:
    virtual ~BaseBeamEntInfo();
    /** Takes every field from the object. Never fails: a missing or mistyped key gives 0 or the empty text, whatever the
     *  field held before. */
    virtual void fromJson(const QJsonObject &json);
    /** Every field under its key. */
    virtual QJsonObject toJsonObj() const;

    QString Name;               ///< the beam's label
    qint64 ElementType = 0;     ///< of the host; read with 32 bits
    qint64 ElementSubType = 0;  ///< kind of section; read with 32 bits
    double SectionWidth = 0.0;  ///< mm; comes back to the host as a whole number
    double SectionHeight = 0.0; ///< mm; likewise
    QString SectionPoly;     ///< outline of an irregular section, docs/formats/geometry-text.md; empty for a rectangle
    QString StartTopElev;    ///< never written back to the host
    QString EndTopElev;      ///< never written back to the host
    QString FloorName;       ///< of the floor that it belongs to
    QString RegionName;      ///< of the region of that floor
    QString HoopBar;         ///< bar text of the hoops
    QString LimbCount;       ///< of the hoops
    QString TieBar;          ///< bar text of the ties
    double AxisOffset = 0.0; ///< of the beam from its axis

private:
    struct Fields; // the one list, in the source
};

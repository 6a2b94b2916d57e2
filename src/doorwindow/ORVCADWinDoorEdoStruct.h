#pragma once

#include "ORVCADModelDataExport.h"

#include <QJsonObject>
#include <QString>

class IHBXElementDrawObj;

/** One placed door or window, as the host has it and as the identify service sends it.
 *  One JSON object; schema: schemas/opening-reply.schema.json. Lengths in millimetres. */
struct ORVCADMODELDATA_EXPORT ORVCADWinDoorEdoStruct
{
    /** Fills the record from a placed object of the host; null leaves it as it is. The position is the insertion point
     *  taken through origin and axes of the shape's coordinates, nothing else; an object of another shape is at (0, 0). */
    void loadFromEdo(IHBXElementDrawObj *drawObj);

    /** Every field under its key. */
    QJsonObject toJson() const;
    /** Never fails: a missing or mistyped key gives 0 or the empty text. */
    static ORVCADWinDoorEdoStruct fromJson(const QJsonObject &json);

    QString elementName;      ///< name of its element
    double x = 0.0;           ///< world
    double y = 0.0;           ///< world
    int aboveFloorHeight = 0; ///< of the opening's lower edge above the floor
    QString floorName;        ///< the floor's code
    QString regionName;       ///< of the region that it stands in

private:
    struct Fields; // the one list, in the source
};

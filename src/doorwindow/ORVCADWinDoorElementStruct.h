#pragma once

#include "ORVCADModelDataExport.h"

#include <QJsonObject>
#include <QString>

class IHBXElement;

/** One door or window element, as the host has it and as the identify service sends it.
 *  One JSON object; schema: schemas/opening-reply.schema.json. Lengths in millimetres. */
struct ORVCADMODELDATA_EXPORT ORVCADWinDoorElementStruct
{
    /** Fills the record from an element of the host; null leaves it as it is. */
    void loadFromHBX(IHBXElement *element);

    /** Every field under its key. */
    QJsonObject toJson() const;
    /** Never fails: a missing or mistyped key gives 0 or the empty text. */
    static ORVCADWinDoorElementStruct fromJson(const QJsonObject &json);

    QString name;             ///< by which placed objects find it
    int openingHeight = 0;    ///< mm
    int openingWidth = 0;     ///< mm
    int aboveFloorHeight = 0; ///< of the opening's lower edge above the floor
    int elementType = 0;      ///< 4, 5, 6 or 7
    int elementSubType = 0;   ///< of the host; counts for type 6 alone when a reply is read
    QString floorName;        ///< the floor's code, which walls call "floorCode"
    QString regionName;       ///< of the region that it belongs to
    qint64 elementID = 0;     ///< of the host; its presence in JSON is what tells an element from a placed object

private:
    struct Fields; // the one list, in the source
};

#pragma once

#include "ORVCADModelDataExport.h"

#include <QJsonObject>
#include <QString>

/** The floor of an identify run. */
class ORVCADMODELDATA_EXPORT FloorInfo
{
public:
    /** An empty object, always: the floor's values reach JSON only through BeamIdentifyContextData. */
    QJsonObject toJsonObj() const;

    QString FloorCode;    ///< 0 is the base floor, 1 the first one
    QString FloorName;    ///< as shown to the user
    double BtmElev = 0.0; ///< m
    double Height = 0.0;  ///< m
    double FloorID = 0.0; ///< the host's id, as the double that its JSON is
};

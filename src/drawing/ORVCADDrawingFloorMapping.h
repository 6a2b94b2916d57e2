#pragma once

#include "ORVCADModelDataExport.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

/** The drawings of one floor: a record inside ORVCADDrawingFloorMappings, which alone uses it. */
struct ORVCADMODELDATA_EXPORT ORVCADDrawingFloorMapping
{
    qint64 regionId = 0;      ///< region of the host model
    QString floorName;        ///< of a floor within the region
    QStringList drawingNames; ///< drawings that show the floor

    /** Region id, floor name and drawing names. */
    QJsonObject toJson() const;
    /** @return false when "regionID", "FloorName" or "DrawingNames" is missing. The values of the last two are not read:
     *  floor name and drawing names both come from "DrawingFloorMappings", which toJson does not write. */
    bool readJson(const QJsonObject &json);

private:
    struct Fields; // the one list, in the source
};

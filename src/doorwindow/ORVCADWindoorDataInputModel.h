#pragma once

#include "ORVCADModelDataExport.h"
#include "platform/geometry/CCurve2d.h"
#include "platform/geometry/CPolygon.h"
#include "platform/services/HBXElementTypes.h"

#include <QJsonObject>
#include <QMap>
#include <QString>

#include <memory>
#include <vector>

class IHBXService;

/** A wall for the window identification, carried for the calling module and never looked into here. */
struct ORVCADHBXWallEdoInputForWindow
{
    vks::CRefPtr<vks::CCurve2d> axis;    ///< in the world; may be null
    vks::CRefPtr<vks::CPolygon> outline; ///< in the world; may be null
    qint64 drawObjId = 0;                ///< of the host
};

/** What goes to the service that identifies doors and windows. A copy shares the walls.
 *  Only the options and the wall types are settled here; the other fields belong to the calling module. */
class ORVCADMODELDATA_EXPORT ORVCADWindoorDataInputModel
{
public:
    /** Adds the options of the host's group for wall openings. Options that are there already stay, and of a name that
     *  stands twice in the host's table the first value counts. Nothing happens without a table. */
    void parseIdentifyOption(IHBXService *service);

    /** Puts the options into the object under "ORVCADWindoorDataInputModel": an array in the order of the names, each
     *  option an object of one member, name to value. Spelled with an a: it is this system's name. Null does nothing. */
    void saveToJason(QJsonObject *json) const;

    qint64 context = 0;                     ///< a number of the calling module
    QMap<QString, QString> identifyOptions; ///< name to value
    QString regionName;                     ///< of the region at hand
    QString floorName;                      ///< of the floor at hand
    QString drawingName;                    ///< of the drawing that is looked at
    QString layerName;                      ///< of the layer that is looked at
    qint64 regionId = 0;                    ///< of the host
    qint64 floorId = 0;                     ///< of the host
    /** Types of the host that openings may stand in. */
    std::vector<int> wallElementTypes = {hbx::type::forceWall, hbx::type::brickWall, hbx::type::partitionWall,
                                         hbx::type::curtainWall};
    std::vector<std::shared_ptr<ORVCADHBXWallEdoInputForWindow>> walls; ///< that openings may stand in
};

/** A new model without options, to be given back with freeWindowCloudIdentifyPar. The service is not asked for anything:
 *  the caller calls parseIdentifyOption. */
ORVCADMODELDATA_EXPORT ORVCADWindoorDataInputModel *createWindowCloudIdentifyPar(IHBXService *service);
/** Destroys a model; null is allowed. */
ORVCADMODELDATA_EXPORT void freeWindowCloudIdentifyPar(ORVCADWindoorDataInputModel *model);

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
    vks::CRefPtr<vks::CCurve2d> axis;
    vks::CRefPtr<vks::CPolygon> outline;
    qint64 drawObjId = 0;
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

    qint64 context = 0;
    QMap<QString, QString> identifyOptions; ///< name to value
    QString regionName;
    QString floorName;
    QString drawingName;
    QString layerName;
    qint64 regionId = 0;
    qint64 floorId = 0;
    std::vector<int> wallElementTypes = {hbx::type::forceWall, hbx::type::brickWall, hbx::type::partitionWall,
                                         hbx::type::curtainWall};
    std::vector<std::shared_ptr<ORVCADHBXWallEdoInputForWindow>> walls;
};

/** A new model without options, to be given back with freeWindowCloudIdentifyPar. The service is not asked for anything:
 *  the caller calls parseIdentifyOption. */
ORVCADMODELDATA_EXPORT ORVCADWindoorDataInputModel *createWindowCloudIdentifyPar(IHBXService *service);
/** Destroys a model; null is allowed. */
ORVCADMODELDATA_EXPORT void freeWindowCloudIdentifyPar(ORVCADWindoorDataInputModel *model);

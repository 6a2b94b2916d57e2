#pragma once

#include "IdentifyInputModel/Wall/EORVCADIdentifyType.h"
#include "IdentifyInputModel/Wall/ORVCADCloudEntBrickWallStruct.h"
#include "IdentifyInputModel/Wall/ORVCADCloudEntForceWallStruct.h"
#include "IdentifyInputModel/Wall/ORVCADCloudHBXModelLineEdoStruct.h"
#include "IdentifyInputModel/Wall/ORVCADCloudHBXModelPointEdoStruct.h"
#include "IdentifyInputModel/Wall/ORVCADCloudWalloptionDataStruct.h"
#include "ORVCADModelDataExport.h"

#include <list>
#include <map>
#include <string>

class IHBXModel;

namespace dwgx {
class DWGXBaseOptions;
}

/** Reads from the host what the identification of walls on one floor is told: the setters of ORVCADWallDataInputModel
 *  and of its two kinds take what the getters give.
 *
 *  Lists are appended to and never cleared. Lengths are mm. What the host lacks reads as 0, empty or null, and nothing
 *  tells so. Copies ask the same host. Each getter asks anew: one query per type. */
class ORVCADMODELDATA_EXPORT ORVCADWallInputModelConvertion
{
public:
    using ModelLines = std::list<ORVCADCloudHBXModelLineEdoStruct>; ///< placed walls or axis lines

    /** @param floorId  the host's; a floor that the model lacks has nothing on it
     *  @param options  may be null; with the model not owned, and both live longer
     *  @param model    without one there is nothing to read */
    ORVCADWallInputModelConvertion(qint64 floorId, dwgx::DWGXBaseOptions *options, IHBXModel *model,
                                   EORVCADIdentifyType type);
    virtual ~ORVCADWallInputModelConvertion();
    ORVCADWallInputModelConvertion(const ORVCADWallInputModelConvertion &) = default;
    ORVCADWallInputModelConvertion &operator=(const ORVCADWallInputModelConvertion &) = default;

    /** As constructed; no getter looks at it. */
    EORVCADIdentifyType identifyType() const { return m_identifyType; }

    /** Brick wall elements, but for those whose "Type" is 255. The material is its name here, empty for a number that the
     *  region's rules do not have. */
    void getCadEntBrickWallDataInfo(std::list<ORVCADCloudEntBrickWallStruct> &walls) const;
    /** Load-bearing concrete wall elements, but for those whose "Type" is 255. */
    void getCadEntForceWallDataInfo(std::list<ORVCADCloudEntForceWallStruct> &walls) const;

    /** Placed walls, those of elements that are left out above, too. Type and sub-type stay 0. */
    void getCurFloorModelBrickLineEntDataInfo(ModelLines &lines) const;
    /** The same for load-bearing walls. */
    void getCurFloorModelForceLineEntDataInfo(ModelLines &lines) const;
    /** Axes, first of grids and then single ones, curve by curve: width 1, id -1. */
    void getCurFloorModelAxisLineEntDataInfo(ModelLines &lines) const;
    /** Placed columns. The section type is told for those of sub-type 3 alone. */
    void getCurFloorModelPointEntDataInfo(std::list<ORVCADCloudHBXModelPointEdoStruct> &points) const;

    /** Sets the names of the kinds 2, 3, 4, 5, 7, 10 and 11, as the current building keeps them; others stay. */
    void getCadLayerInfo(std::map<int, std::wstring> &layers) const;
    /** Without an option store nothing changes. */
    void getDWGXBaseOptions(ORVCADCloudWalloptionDataStruct &options) const;

private:
    void appendWallLines(qint64 wallType, ModelLines &lines) const;

    qint64 m_floorId;
    dwgx::DWGXBaseOptions *m_options;
    IHBXModel *m_model;
    EORVCADIdentifyType m_identifyType;
};

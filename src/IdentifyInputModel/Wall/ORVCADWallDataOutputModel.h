#pragma once

#include "ORVCADModelDataExport.h"

/** What the output models of all kinds of walls are. */
class ORVCADMODELDATA_EXPORT ORVCADWallDataOutputModel
{
public:
    ORVCADWallDataOutputModel() = default;
    virtual ~ORVCADWallDataOutputModel();
    ORVCADWallDataOutputModel(const ORVCADWallDataOutputModel &) = delete;
    ORVCADWallDataOutputModel &operator=(const ORVCADWallDataOutputModel &) = delete;
};

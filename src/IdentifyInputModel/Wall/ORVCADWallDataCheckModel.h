#pragma once

#include "ORVCADModelDataExport.h"

/** A number that a check of walls is told. Nothing here makes one: it is for callers. */
class ORVCADMODELDATA_EXPORT ORVCADWallDataCheckModel
{
public:
    /** Any number is one. */
    explicit ORVCADWallDataCheckModel(int number) : m_number(number) {}
    virtual ~ORVCADWallDataCheckModel();
    ORVCADWallDataCheckModel(const ORVCADWallDataCheckModel &) = default;
    ORVCADWallDataCheckModel &operator=(const ORVCADWallDataCheckModel &) = default;

    int m_number; ///< the caller's own
};

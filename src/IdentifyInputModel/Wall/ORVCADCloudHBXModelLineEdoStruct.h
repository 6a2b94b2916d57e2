#pragma once

#include "platform/geometry/CCurve2d.h"

#include <QtGlobal>

#include <string>

/** A line-shaped object that stands in the host: a wall or an axis line. A copy shares the curve. */
struct ORVCADCloudHBXModelLineEdoStruct
{
    vks::CRefPtr<vks::CCurve2d> worldLine; ///< centre line in the world, mm; may be null
    double width = 0.0;                    ///< mm; 1.0 for axis lines
    qint64 edoId = 0;                      ///< the placed object's id in the host; -1 for axis lines
    std::wstring entName;                  ///< of its element
    int elementType = 0;                   ///< the host's numbers
    int elementSubType = 0;                ///< likewise
};

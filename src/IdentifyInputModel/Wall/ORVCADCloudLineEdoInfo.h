#pragma once

#include "platform/geometry/CCurve2d.h"

/** One line of the drawing. A copy shares the curve. */
struct ORVCADCloudLineEdoInfo
{
    int color = 0;                    ///< colour index
    int blockID = 0;                  ///< block that it belongs to
    vks::CRefPtr<vks::CCurve2d> line; ///< mm; may be null
    int edoId = 0;                    ///< in the drawing, whose ids are other numbers than the host's 64-bit ones
};

#pragma once

#include "platform/geometry/CVec2.h"

#include <set>
#include <string>
#include <vector>

/** One text of the drawing. */
struct ORVCADCloudTextEdoInfo
{
    std::wstring text;                        ///< as it stands in the drawing
    std::vector<vks::CVec2<double>> anglePts; ///< its corners, mm
    int color = 0;                            ///< colour index
    int blockID = 0;                          ///< block that it belongs to
    vks::CVec2<double> dir;                   ///< writing direction
    int edoId = 0;               ///< in the drawing, whose ids are other numbers than the host's 64-bit ones
    std::set<int> filterTextEdo; ///< ids of the texts that this one stands for; in the list of filter texts only
};

#pragma once

#include <QtGlobal>

#include <array>

namespace dwgx {

/** How a viewer last showed a drawing. A new record looks straight down, unturned, at natural size. */
struct DWGXViewerInfoData
{
    std::array<float, 4> orientation{0.0F, 0.0F, -1.0F, 0.0F}; ///< axis of view x, y, z, and angle about it, rad
    float zoom = 1.0F;                                         ///< 1 is natural size
    float turn = 0.0F;                                         ///< of the sheet, counter-clockwise, rad
    quint32 flags = 0;                                         ///< the viewer's own; kept as it comes
};

} // namespace dwgx

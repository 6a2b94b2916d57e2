#pragma once

#include "platform/geometry/CPolygon.h"

#include <optional>

namespace hbx::embedded {

class HBXElementDrawObj;

/** How the wall of a door or window runs beside it. */
struct OpeningSeat
{
    vks::CVec2<double> direction; ///< of the wall, in the world, length 1
    double depth = 0.0;           ///< of the wall, mm
};

/** The seat of an opening (types 4 to 7) in the wall that it is attached to, at the point of the wall nearest to its own;
 *  nothing for other objects, and without a wall that has an axis. */
std::optional<OpeningSeat> openingSeat(const HBXElementDrawObj &opening, const vks::CVec2<double> &worldPoint);

/** The outline of an opening about its point: its width along x, the given depth along y. A rectangle keeps its place and
 *  takes the new depth, any other outline stays as it is, and so does any outline for a depth of zero. */
vks::CRefPtr<vks::CPolygon> withDepth(const vks::CRefPtr<vks::CPolygon> &outline, double depth);

/** Outline of an opening of that width. The depth is that of the former outline, where there is one, until a wall gives
 *  another. */
vks::CRefPtr<vks::CPolygon> openingOutline(double width, const vks::CRefPtr<vks::CPolygon> &former);

} // namespace hbx::embedded

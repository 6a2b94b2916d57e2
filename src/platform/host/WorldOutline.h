#pragma once

#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXShape.h"

namespace hbx {

/** World outline of a shape, brought up to date first where that is the default: the host's own, to be read and not changed. Null
 *  for null and for a shape without geometry. */
inline vks::CRefPtr<vks::CPolygon> worldOutline(const IHBXShape *shape)
{
    vks::CRefPtr<vks::CPolygon> outline;
    return shape ? shape->worldPoly(outline, IHBXModel::g_bDefaultAutoCalc) : outline;
}

} // namespace hbx

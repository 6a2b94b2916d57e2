#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/dwgx/DWGXModel.h"

#include <memory>

class IHBXFloor;
class IHBXModel;

namespace hbx::embedded {

/** The CAD plan of a floor: what a draughtsman would have drawn of the placed objects.
 *
 *  Each element type has a layer for its lines and one for its texts, named as the layer manager names them. Solids
 *  and areas are drawn by their outlines in the world, bars and axes by their curves, axes with a bubble at both ends.
 *  The name of each object's element stands in its middle; beside a wall or beam it runs along the axis. Layers without
 *  content are left out, and so are objects without geometry. The drawing has no file path yet.
 *  @return null for a null model or floor */
ORVCADPLATFORM_EXPORT std::unique_ptr<dwgx::DWGXModel> makeFloorDrawing(IHBXModel *model, IHBXFloor *floor);

} // namespace hbx::embedded

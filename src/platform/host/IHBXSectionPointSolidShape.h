#pragma once

#include "platform/host/IHBXCustomPointSolidShape.h"

/** Section solid at a point: slab hole. Its setInsertPoint and setAngle are those of every point solid. */
class ORVCADPLATFORM_EXPORT IHBXSectionPointSolidShape : public IHBXCustomPointSolidShape
{};

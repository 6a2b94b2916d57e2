#pragma once

#include "platform/host/IHBXShape.h"

/** Axis grid as a placed shape; its lines are asked of IHBXAxisGrid. */
class ORVCADPLATFORM_EXPORT IHBXGridShape : public IHBXShape
{
public:
    /** The outline in the shape's own coordinates; null without geometry. */
    virtual vks::CRefPtr<vks::CPolygon> &polygon(vks::CRefPtr<vks::CPolygon> &out, bool autoCalc) const = 0;
};

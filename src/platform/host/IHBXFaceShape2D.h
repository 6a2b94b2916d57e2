#pragma once

#include "platform/host/IHBXShape.h"

/** Plan area: area bar. */
class ORVCADPLATFORM_EXPORT IHBXFaceShape2D : public IHBXShape
{
public:
    /** Sets the outline, in the shape's own coordinates; null clears it. */
    virtual void setPolygon(const vks::CPolygon *outline) = 0;

    /** The outline in the shape's own coordinates; null without geometry. */
    virtual vks::CRefPtr<vks::CPolygon> &polygon(vks::CRefPtr<vks::CPolygon> &out, bool autoCalc) const = 0;
};

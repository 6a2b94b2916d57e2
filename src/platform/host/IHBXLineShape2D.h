#pragma once

#include "platform/host/IHBXShape.h"

/** Plan curve: line bar, single axis line. */
class ORVCADPLATFORM_EXPORT IHBXLineShape2D : public IHBXShape
{
public:
    /** The curve in the shape's own coordinates; null without geometry. */
    virtual vks::CRefPtr<vks::CCurve2d> &curve(vks::CRefPtr<vks::CCurve2d> &out) const = 0;
    /** Sets the curve, in the shape's own coordinates; null clears it. */
    virtual void setLine(const vks::CCurve2d *curve) = 0;
};

#pragma once

#include "platform/host/IHBXShape.h"

/** Solid along an axis: beam, wall, tie beam. */
class ORVCADPLATFORM_EXPORT IHBXCustomLineSolidShape : public IHBXShape
{
public:
    /** The axis as set, in the shape's own coordinates; null without geometry. */
    virtual vks::CRefPtr<vks::CCurve2d> &curve(vks::CRefPtr<vks::CCurve2d> &out, bool autoCalc) const = 0;
    /** Sets the axis, in the shape's own coordinates; null clears it. */
    virtual void setLine(const vks::CCurve2d *axis) = 0;
    /** The axis in the shape's own coordinates; null without geometry. */
    virtual vks::CRefPtr<vks::CCurve2d> &localLine(vks::CRefPtr<vks::CCurve2d> &out, bool autoCalc) const = 0;
    /** The axis in the world; null without geometry. */
    virtual vks::CRefPtr<vks::CCurve2d> &worldLine(vks::CRefPtr<vks::CCurve2d> &out, bool autoCalc) const = 0;
    /** Whole width across the axis, mm. */
    virtual double width(bool autoCalc) const = 0;
    /** From the axis to the left side: half the width plus "AxisOffset". */
    virtual double distanceToLeft() const = 0;
};

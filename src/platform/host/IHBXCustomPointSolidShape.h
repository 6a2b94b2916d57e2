#pragma once

#include "platform/host/IHBXShape.h"

/** Solid at a point: column, door, window, foundation, pile. Its outline is given about the insertion point: mirrored
 *  (x to -x) if mirror, turned by angle, moved to the insertion point, then taken through the coordinates. */
class ORVCADPLATFORM_EXPORT IHBXCustomPointSolidShape : public IHBXShape
{
public:
    /** Insertion point in the shape's own coordinates. */
    virtual vks::CVec2<double> &insertPoint(vks::CVec2<double> &out) const = 0;
    /** Sets the insertion point, in the shape's own coordinates. */
    virtual void setInsertPoint(const vks::CVec2<double> *point) = 0;
    /** Counter-clockwise, rad. */
    virtual double angle() const = 0;
    /** Whether x becomes -x before the outline is turned. */
    virtual bool mirror() const = 0;

    /** The outline about the insertion point; null without geometry. */
    virtual vks::CRefPtr<vks::CPolygon> &polygon(vks::CRefPtr<vks::CPolygon> &out, bool autoCalc) const = 0;
    /** Turns the outline to an angle, counter-clockwise, rad. */
    virtual void setAngle(double angle) = 0;
    /** Mirrors the outline about its y axis, or not. */
    virtual void setMirror(bool mirror) = 0;
};

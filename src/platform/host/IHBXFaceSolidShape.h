#pragma once

#include "platform/host/IHBXShape.h"

/** Solid of an outline: slab, raft. */
class ORVCADPLATFORM_EXPORT IHBXFaceSolidShape : public IHBXShape
{
public:
    /** Sets the outline, in the shape's own coordinates; null clears it. */
    virtual void setPolygon(const vks::CPolygon *outline) = 0;
    /** Signed height: minus the thickness of a slab or raft, which hangs down from its top. */
    virtual double height() const = 0;

    /** The outline in the shape's own coordinates; null without geometry. */
    virtual vks::CRefPtr<vks::CPolygon> &polygon(vks::CRefPtr<vks::CPolygon> &out, bool autoCalc) const = 0;
};

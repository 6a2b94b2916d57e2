#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/geometry/CCoord3.h"
#include "platform/geometry/CPolygon.h"

/** The geometry of a draw object; callers cast to the concrete kind. Lengths in mm, angles in rad.
 *
 *  Out arguments are filled and returned. What a getter gives is the caller's to keep and, where it is the shape's own
 *  geometry, not to change. Setters copy what they get; null clears. autoCalc lets the shape bring itself up to date
 *  first. */
class ORVCADPLATFORM_EXPORT IHBXShape
{
public:
    /** The kinds, by the numbers that kind() gives. */
    enum Kind { kPoint = 0, kLine = 1, kFace = 2, kSection = 3, kPlanLine = 4, kPlanArea = 5, kGrid = 6 };

    virtual ~IHBXShape() = default;

    /** 0 point, 1 line, 2 face, 3 section, 4 plan line, 5 plan area, 6 grid. */
    virtual int kind() const = 0;
    /** Frame that the shape's own coordinates are told in; absent (NaN in its first term) when it has none. */
    virtual vks::CCoord3<double> &coordinates(vks::CCoord3<double> &out, bool autoCalc) const = 0;
    /** World box of the plan outline; empty without geometry. */
    virtual vks::CBox2<double> &box(vks::CBox2<double> &out, bool autoCalc) const = 0;
    /** World outline in plan (of a line solid the strip of its width); null without geometry. */
    virtual vks::CRefPtr<vks::CPolygon> &worldPoly(vks::CRefPtr<vks::CPolygon> &out, bool autoCalc) const = 0;

    /** Sets the frame that the shape's own coordinates are told in. */
    virtual void setCoordinates(const vks::CCoord3<double> &frame) = 0;
};

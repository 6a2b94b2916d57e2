#pragma once

#include "platform/geometry/CBox3.h"
#include "platform/geometry/CCurve2d.h"
#include "platform/geometry/CPolygon.h"

/** What the recognition is told of an object that a beam may rest on, in both families of identify records.
 *  Lengths in millimetres. A copy shares the geometry. */
struct BeamSeatModelFields
{
    int eLineShapeClass = 0;                  ///< kind of shape of the host, IHBXShape::Kind
    int seatElementType = 0;                  ///< of the host
    int nElementSubType = 0;                  ///< of the host
    bool bHasWallThicknessProperty = false;   ///< a wall that has a thickness
    double dWallThickness = -1.0;             ///< -1: none
    vks::CRefPtr<vks::CPolygon> ipWorldPoly;  ///< outline in the world
    double dOffsetDist = 0.0;                 ///< search distance around the seat
    int nEDOID = 0;                           ///< draw object of the host
    bool bIsAColumn = false;                  ///< a column of the special kind
    bool bIsColumn = false;                   ///< a column of any kind
    bool bLineShape = false;                  ///< it stands along a line
    vks::CRefPtr<vks::CCurve2d> ipCenterLine; ///< centre line in the world
    vks::CRefPtr<vks::CCurve2d> ipWallLine;   ///< in the shape's own coordinates
    vks::CRefPtr<vks::CCurve2d> ipSeatLine;   ///< projected into the world
    vks::CRefPtr<vks::CCurve2d> ipWorldLine;  ///< axis in the world
    vks::CBox3<double> box;                   ///< a new record has the empty box
};

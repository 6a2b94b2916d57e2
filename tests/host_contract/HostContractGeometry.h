#pragma once

#include "platform/geometry/CLine2d.h"
#include "platform/geometry/CPolygon.h"
#include "platform/host/IHBXShape.h"

#include <gtest/gtest.h>

#include <vector>

/** Geometry for the contract's tests; lengths in mm. */
namespace host_contract {

/** Within which what a host worked out is the expected, mm. */
constexpr double kNear = 1e-3;

using Corners = std::vector<vks::CVec2<double>>;

/** Straight edges through the corners, closed from the last to the first. */
vks::CRefPtr<vks::CPolygon> polygonOf(const Corners &corners);
vks::CRefPtr<vks::CPolygon> rectangle(double left, double bottom, double right, double top);
vks::CRefPtr<vks::CCurve2d> line(double x0, double y0, double x1, double y1);

/** Whether a curve runs straight from one point to the other. */
::testing::AssertionResult isLine(const vks::CCurve2d *curve, double x0, double y0, double x1, double y1);
/** Whether a polygon has one loop and fills the rectangle. */
::testing::AssertionResult isRectangle(const vks::CPolygon *polygon, double left, double bottom, double right,
                                       double top);
/** Whether a box, or the world box of a shape, has these sides. */
::testing::AssertionResult isBox(const vks::CBox2<double> &box, double left, double bottom, double right, double top);
::testing::AssertionResult isBox(const IHBXShape &shape, double left, double bottom, double right, double top);

/** What a shape gives when asked with the host's flag; an empty box, or null, without geometry. Each asserts that the
 *  call returned what it filled. */
vks::CBox2<double> boxOf(const IHBXShape &shape);
vks::CRefPtr<vks::CPolygon> worldPolyOf(const IHBXShape &shape);
vks::CCoord3<double> coordinatesOf(const IHBXShape &shape);

/** A frame at (10000, 20000) turned by a quarter counter-clockwise: (x, y) stands at (10000 - y, 20000 + x). */
vks::CCoord3<double> quarterTurn();

/** What a getter of a shape gives; it must fill and return the same holder. */
template <typename Shape> vks::CRefPtr<vks::CPolygon> polygonIn(const Shape &shape, bool autoCalc)
{
    vks::CRefPtr<vks::CPolygon> polygon = rectangle(1, 2, 3, 4);
    EXPECT_EQ(&shape.polygon(polygon, autoCalc), &polygon);
    return polygon;
}

} // namespace host_contract

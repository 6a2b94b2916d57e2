#include "HostContractGeometry.h"

#include "platform/host/IHBXModel.h"

#include <cmath>

namespace host_contract {

using ::testing::AssertionFailure;
using ::testing::AssertionResult;
using ::testing::AssertionSuccess;
using vks::CRefPtr;

namespace {

bool isAt(const vks::CVec2<double> &point, double x, double y) { return point.DistanceTo({x, y}) <= kNear; }

} // namespace

CRefPtr<vks::CPolygon> polygonOf(const Corners &corners)
{
    CRefPtr<vks::CLoop> loop = new vks::CLoop;
    for (std::size_t i = 0; i < corners.size(); ++i)
        loop->AddCurve(new vks::CLine2d(corners[i], corners[(i + 1) % corners.size()]), false);
    CRefPtr<vks::CPolygon> polygon = new vks::CPolygon;
    polygon->AddLoop(loop.get(), true);
    return polygon;
}

CRefPtr<vks::CPolygon> rectangle(double left, double bottom, double right, double top)
{
    return polygonOf({{left, bottom}, {right, bottom}, {right, top}, {left, top}});
}

CRefPtr<vks::CCurve2d> line(double x0, double y0, double x1, double y1)
{
    return CRefPtr<vks::CCurve2d>(new vks::CLine2d({x0, y0}, {x1, y1}));
}

AssertionResult isLine(const vks::CCurve2d *curve, double x0, double y0, double x1, double y1)
{
    if (!curve)
        return AssertionFailure() << "there is no curve";
    if (curve->Type() == vks::CCurve2d::kLine && isAt(curve->StartPoint(), x0, y0) && isAt(curve->EndPoint(), x1, y1))
        return AssertionSuccess();
    return AssertionFailure() << "the curve is " << curve->ToText();
}

AssertionResult isRectangle(const vks::CPolygon *polygon, double left, double bottom, double right, double top)
{
    if (!polygon)
        return AssertionFailure() << "there is no polygon";
    // What fills its box is the box.
    const double area = (right - left) * (top - bottom);
    const bool fills = std::fabs(polygon->Area() - area) <= kNear * (right - left + top - bottom);
    if (polygon->LoopCount() == 1 && fills && isBox(polygon->Box(), left, bottom, right, top))
        return AssertionSuccess();
    return AssertionFailure() << "the polygon is " << polygon->ToText();
}

AssertionResult isBox(const vks::CBox2<double> &box, double left, double bottom, double right, double top)
{
    if (box.IsValid() && isAt(box.minPt, left, bottom) && isAt(box.maxPt, right, top))
        return AssertionSuccess();
    return AssertionFailure() << "the box is (" << box.minPt.x << ' ' << box.minPt.y << ", " << box.maxPt.x << ' '
                              << box.maxPt.y << ')';
}

AssertionResult isBox(const IHBXShape &shape, double left, double bottom, double right, double top)
{
    return isBox(boxOf(shape), left, bottom, right, top);
}

vks::CBox2<double> boxOf(const IHBXShape &shape)
{
    vks::CBox2<double> box({1, 2}, {3, 4});
    EXPECT_EQ(&shape.box(box, IHBXModel::g_bDefaultAutoCalc), &box);
    return box;
}

CRefPtr<vks::CPolygon> worldPolyOf(const IHBXShape &shape)
{
    CRefPtr<vks::CPolygon> polygon = rectangle(1, 2, 3, 4);
    EXPECT_EQ(&shape.worldPoly(polygon, IHBXModel::g_bDefaultAutoCalc), &polygon);
    return polygon;
}

vks::CCoord3<double> coordinatesOf(const IHBXShape &shape)
{
    vks::CCoord3<double> frame;
    EXPECT_EQ(&shape.coordinates(frame, IHBXModel::g_bDefaultAutoCalc), &frame);
    return frame;
}

vks::CCoord3<double> quarterTurn() { return {{10000, 20000, 0}, {0, 1, 0}, {-1, 0, 0}}; }

} // namespace host_contract

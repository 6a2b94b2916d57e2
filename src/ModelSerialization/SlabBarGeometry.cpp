#include "ModelSerialization/SlabBarGeometry.h"

#include "platform/geometry/CLine2d.h"
#include "platform/services/HbxRelation.h"

#include <cmath>

namespace slabhost {
namespace {

using Point = vks::CVec2<double>;
using Curve = vks::CRefPtr<vks::CCurve2d>;

constexpr double kProbeLength = 100.0; // mm: a line that is only to meet something, or meets nothing
constexpr int kRowsInFifths = 5;       // and the rows from there on in tenths

Point acrossOf(const Point &direction) { return {direction.y, -direction.x}; }

/** From the first to the last point on the boundary of an area, or the line as it stands. */
Curve throughArea(const vks::CPolygon &area, const Curve &line)
{
    const auto points = hbx::extIntersect(line, &area, vks::g_DistEpsilon);
    return points.empty() ? line : Curve(new vks::CLine2d(points.front(), points.back()));
}

Curve probe(const Point &start, const Point &direction)
{
    return new vks::CLine2d(start, start + direction * kProbeLength);
}

} // namespace

double calcIndex(int row)
{
    if (row < 1)
        return 0.0;
    // Each pair of rows takes half of what is left to a quarter.
    const int pair = row / 2 + row % 2;
    const double part = 0.25 - std::ldexp(0.25, -pair);
    return row % 2 == 1 ? -part : part;
}

double rowPart(int row) { return row < kRowsInFifths ? row / 5.0 : row / 10.0; }

Point spanPoint(const vks::CPolygon &area, const Point &direction, double part)
{
    const Point across = acrossOf(direction);
    const Curve span = throughArea(area, probe(area.Barycentre(), across));
    return span->StartPoint() + across * (span->Length() * part);
}

Point straddlePoint(const vks::CPolygon &area, int row)
{
    const vks::CBox2<double> box = area.Box();
    return row == 0 ? area.Barycentre() : box.minPt + Point(box.Width(), box.Height()) * rowPart(row);
}

Curve barThrough(const vks::CPolygon &area, const Point &start, const Point &direction)
{
    return throughArea(area, probe(start, direction));
}

Curve layingLine(const vks::CCurve2d *line)
{
    if (!line)
        return nullptr;
    if (line->Type() != vks::CCurve2d::kLine)
        return line->Clone();
    return new vks::CLine2d(line->EndPoint(), line->EndVt(), -line->Length(), 0.0);
}

Point rowPoint(const vks::CCurve2d &line, int row)
{
    const double start = line.StartT();
    const double end = line.EndT();
    return line.GetPoint(row == 0 ? (start + end) / 2 : start + (end - start) * rowPart(row));
}

Curve barAcross(const vks::CCurve2d &line, const Point &point, double left, double right)
{
    return new vks::CLine2d(point, acrossOf(line.EndVt()), -left, right);
}

} // namespace slabhost

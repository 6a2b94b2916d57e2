#include "platform/geometry/CurveZone.h"

#include "platform/geometry/Angle.h"
#include "platform/geometry/CArc2d.h"
#include "platform/geometry/CurveRelation.h"
#include "platform/geometry/CurveSupport.h"

#include <algorithm>

namespace vks {

namespace {

/** Corners that turn by less have no outside worth the name, rad. */
constexpr double kLeastTurn = 1e-9;
/** A meeting this far off a piece of border still cuts, mm: more cuts than needed do no harm. */
constexpr double kCutMargin = 1e-4;
/** Cuts nearer to each other are one, mm. */
constexpr double kLeastPiece = 1e-8;

} // namespace

void CurveZone::add(const CRefPtr<CCurve2d> &curve)
{
    if (!curve || !(curve->Length() > 0.0))
        return;
    const CBox2<double> box = curve->Box();
    if (box.Intersects(m_range))
        m_border.push_back({curve, box});
}

void CurveZone::addSides(const CCurve2d &curve, double distance)
{
    add(OffsetCurve(&curve, distance));
    add(OffsetCurve(&curve, -distance));
}

void CurveZone::addCorner(const CCurve2d &before, const CCurve2d &after, double distance)
{
    const CVec2<double> in = before.EndVt();
    const double turn = in.AngleTo(after.StartVt());
    if (std::fabs(turn) < kLeastTurn)
        return;
    const CVec2<double> normal = turn > 0.0 ? -in.Left() : in.Left();
    const double start = normal.Angle();
    add(new CArc2d(after.StartPoint(), distance, start, start + turn));
}

void CurveZone::addPolygon(const CPolygon &polygon, double distance)
{
    const CBox2<double> near = m_range.Grown(distance);
    for (const auto &loop : polygon.Loops()) {
        const auto &curves = loop->Curves();
        for (std::size_t k = 0; k < curves.size(); ++k) {
            if (distance > 0.0 && near.Contains(curves[k]->StartPoint()))
                addCorner(*curves[(k + curves.size() - 1) % curves.size()], *curves[k], distance);
            if (distance > 0.0 && curves[k]->Box().Intersects(near))
                addSides(*curves[k], distance);
            else if (!(distance > 0.0))
                add(curves[k]);
        }
    }
}

void CurveZone::addCurve(const CCurve2d &curve, double distance)
{
    addSides(curve, distance);
    if (curve.IsClosed())
        return;
    for (const CVec2<double> &end : {curve.StartPoint(), curve.EndPoint()})
        add(new CArc2d(end, distance, 0.0, kFullTurn));
}

std::vector<double> CurveZone::cuts(const CCurve2d &curve) const
{
    std::vector<double> result{curve.StartT(), curve.EndT()};
    const CBox2<double> box = curve.Box().Grown(kCutMargin);
    const CurveSupport support(curve);
    for (const Piece &piece : m_border) {
        if (piece.curve.get() == &curve || !piece.box.Intersects(box))
            continue;
        const CBox2<double> near = piece.box.Grown(kCutMargin);
        for (const CVec2<double> &point : supportMeetings(support, CurveSupport(*piece.curve), kLeastPiece))
            if (near.Contains(point) && box.Contains(point))
                result.push_back(curve.NearestT(point));
        for (const CVec2<double> &end : {piece.curve->StartPoint(), piece.curve->EndPoint()})
            if (support.distanceTo(end) <= kCutMargin)
                result.push_back(curve.NearestT(end));
    }
    std::sort(result.begin(), result.end());
    const auto close = [](double a, double b) { return b - a < kLeastPiece; };
    result.erase(std::unique(result.begin(), result.end(), close), result.end());
    if (result.size() > 1)
        result.back() = curve.EndT();
    return result;
}

} // namespace vks

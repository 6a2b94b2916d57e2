#pragma once

#include "platform/geometry/CArc2d.h"
#include "platform/geometry/CLine2d.h"
#include "platform/geometry/CPolygon.h"

#include <vector>

/** Shapes that the tests of overlay and relations are told in; mm. */
namespace shapes {

using Point = vks::CVec2<double>;
using Points = std::vector<Point>;
using PolygonPtr = vks::CRefPtr<vks::CPolygon>;

constexpr double kPi = 3.14159265358979323846;

inline vks::CLoop *loop(const Points &corners)
{
    auto *result = new vks::CLoop;
    for (std::size_t i = 0; i < corners.size(); ++i)
        result->AddCurve(new vks::CLine2d(corners[i], corners[(i + 1) % corners.size()]), false);
    return result;
}

inline Points box(double x, double y, double width, double height)
{
    return {{x, y}, {x + width, y}, {x + width, y + height}, {x, y + height}};
}

/** A polygon of straight loops, the outer one first. */
inline PolygonPtr polygon(const std::vector<Points> &loops)
{
    PolygonPtr result(new vks::CPolygon);
    for (const Points &corners : loops)
        result->AddLoop(loop(corners), true);
    return result;
}

inline PolygonPtr rectangle(double x, double y, double width, double height)
{
    return polygon({box(x, y, width, height)});
}

inline vks::CLoop *circleLoop(const Point &centre, double radius)
{
    auto *result = new vks::CLoop;
    result->AddCurve(new vks::CArc2d(centre, radius, 0.0, 2 * kPi), false);
    return result;
}

inline PolygonPtr circle(const Point &centre, double radius)
{
    PolygonPtr result(new vks::CPolygon);
    result->AddLoop(circleLoop(centre, radius), true);
    return result;
}

/** The part of a disc to the left of the way from one of its points to another, going around from start to end. */
inline PolygonPtr discSegment(const Point &centre, double radius, double startAngle, double endAngle)
{
    auto *boundary = new vks::CLoop;
    auto *arc = new vks::CArc2d(centre, radius, startAngle, endAngle);
    boundary->AddCurve(arc, false);
    boundary->AddCurve(new vks::CLine2d(arc->EndPoint(), arc->StartPoint()), false);
    PolygonPtr result(new vks::CPolygon);
    result->AddLoop(boundary, true);
    return result;
}

inline PolygonPtr moved(const vks::CPolygon &polygon, const Point &move)
{
    PolygonPtr result = polygon.Clone();
    result->Translate(move);
    return result;
}

inline PolygonPtr turned(const vks::CPolygon &polygon, double angle)
{
    PolygonPtr result = polygon.Clone();
    result->Rotate({0.0, 0.0}, angle);
    return result;
}

/** A frame: a box with a hole that leaves a rim of one width. */
inline PolygonPtr frame(double x, double y, double size, double rim)
{
    return polygon({box(x, y, size, size), box(x + rim, y + rim, size - 2 * rim, size - 2 * rim)});
}

} // namespace shapes

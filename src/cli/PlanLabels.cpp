#include "cli/PlanLabels.h"

#include "cli/WideCharacters.h"

#include <algorithm>
#include <cmath>

namespace orvcad {

namespace {

using Point = vks::CVec2<double>;

constexpr double kWidthPerHeight = 0.85; // mean width of a letter in parts of a capital's height
constexpr double kWidePerHeight = 1.45;  // the same of a wide (Chinese) character
constexpr double kMargin = 1.15;         // room that a text asks for, in parts of its size
constexpr double kUpright = 1e-9;        // rad; below this a direction counts as upright
constexpr double kFilled = 0.75;         // an outline that fills less of its rectangle keeps nothing free
constexpr int kPointsPerCurve = 8;       // enough for a full circle to be as wide as high

/** Where a name is tried, in parts of the way from the middle of the room to its ends; the middle first. */
constexpr double kPlaces[] = {0.0, 0.25, -0.25, 0.5, -0.5, 0.75, -0.75, 1.0, -1.0};

Point readable(const Point &direction)
{
    const bool leftwards = direction.x < -kUpright || (std::fabs(direction.x) <= kUpright && direction.y < 0);
    return leftwards ? -direction : direction;
}

Point longestDirection(const std::vector<vks::CCurve2d *> &curves)
{
    const auto longest = std::max_element(curves.begin(), curves.end(), [](const auto *a, const auto *b) {
        return a->StartPoint().DistanceTo(a->EndPoint()) < b->StartPoint().DistanceTo(b->EndPoint());
    });
    if (longest == curves.end())
        return {1, 0};
    const Point direction = ((*longest)->EndPoint() - (*longest)->StartPoint()).Normalized();
    return direction == Point() ? Point(1, 0) : readable(direction);
}

std::vector<Point> cornersOf(const PlanLabels::Frame &frame)
{
    const Point along = frame.along * frame.halfLength;
    const Point across = frame.along.Left() * frame.halfWidth;
    return {frame.centre - along - across, frame.centre + along - across, frame.centre + along + across,
            frame.centre - along + across};
}

vks::CBox2<double> boxOf(const PlanLabels::Frame &frame)
{
    vks::CBox2<double> box;
    for (const Point &corner : cornersOf(frame))
        box.Add(corner);
    return box;
}

bool isWithin(const PlanLabels::Frame &text, const vks::CPolygon &outline)
{
    const auto outside = [&outline](const Point &point) { return outline.Locate(point, 0.0) < 0; };
    const std::vector<Point> corners = cornersOf(text);
    return std::none_of(corners.begin(), corners.end(), outside) && !outside(text.centre);
}

/** True when a straight line along one side of a lies between the two. */
bool liesApart(const PlanLabels::Frame &a, const PlanLabels::Frame &b)
{
    const Point between = b.centre - a.centre;
    const auto apart = [&](const Point &axis, double half) {
        const double reach =
            b.halfLength * std::fabs(b.along.Dot(axis)) + b.halfWidth * std::fabs(b.along.Left().Dot(axis));
        return std::fabs(between.Dot(axis)) >= half + reach;
    };
    return apart(a.along, a.halfLength) || apart(a.along.Left(), a.halfWidth);
}

} // namespace

bool PlanLabels::Frame::overlaps(const Frame &other) const
{
    const double reach = std::hypot(halfLength, halfWidth) + std::hypot(other.halfLength, other.halfWidth);
    return centre.DistanceTo(other.centre) < reach && !liesApart(*this, other) && !liesApart(other, *this);
}

PlanLabels::PlanLabels(double textHeight) : m_textHeight(textHeight), m_tree(dwgx::DWGXBaseBoxTree::createObject()) {}

PlanLabels::Frame PlanLabels::frameOf(const vks::CPolygon &outline)
{
    std::vector<vks::CCurve2d *> curves;
    outline.GetCurves(curves);
    Frame frame;
    frame.along = longestDirection(curves);
    vks::CBox2<double> turned;
    for (const vks::CCurve2d *curve : curves)
        for (int i = 0; i < kPointsPerCurve; ++i) {
            const Point point = curve->GetPoint(curve->StartT() + curve->Length() * i / kPointsPerCurve);
            turned.Add(Point(point.Dot(frame.along), point.Dot(frame.along.Left())));
        }
    if (turned.IsValid()) {
        frame.centre = frame.along * turned.Center().x + frame.along.Left() * turned.Center().y;
        frame.halfLength = turned.Width() / 2;
        frame.halfWidth = turned.Height() / 2;
    }
    return frame;
}

double PlanLabels::widthOf(const QString &text, double textHeight)
{
    double letters = 0.0;
    for (const QChar letter : text)
        letters += isWide(letter) ? kWidePerHeight : kWidthPerHeight;
    return letters * textHeight;
}

PlanLabels::Frame PlanLabels::frameOfText(const Frame &place, const Point &middle, double width) const
{
    return {middle, place.along, width / 2, m_textHeight / 2};
}

bool PlanLabels::isFree(const Frame &text, const vks::CPolygon *owner) const
{
    std::vector<void *> near;
    m_tree->getIntersectantData(boxOf(text), near);
    return std::none_of(near.begin(), near.end(), [&](void *data) {
        const Occupied &place = *static_cast<Occupied *>(data);
        return (!place.owner || place.owner != owner) && place.frame.overlaps(text);
    });
}

void PlanLabels::occupy(const Frame &frame, const vks::CPolygon *owner)
{
    m_occupied.push_back({owner, frame});
    m_tree->add(boxOf(frame), &m_occupied.back());
}

PlanLabels::Label PlanLabels::take(const Frame &text)
{
    occupy(text, nullptr);
    return {text.centre - text.along.Left() * text.halfWidth, std::atan2(text.along.y, text.along.x)};
}

void PlanLabels::keepFree(const vks::CPolygon &outline)
{
    const Frame frame = frameOf(outline);
    if (outline.Area() >= kFilled * 4 * frame.halfLength * frame.halfWidth)
        occupy(frame, &outline);
}

std::optional<PlanLabels::Label> PlanLabels::placeInside(const vks::CPolygon &outline, const QString &name)
{
    const Frame frame = frameOf(outline);
    const double width = widthOf(name, m_textHeight) * kMargin;
    const double room = frame.halfLength - width / 2;
    const double roomAcross = frame.halfWidth - m_textHeight * kMargin / 2;
    if (name.isEmpty() || room < 0 || roomAcross < 0)
        return std::nullopt;
    const Point middles[] = {outline.Barycentre(), frame.centre};
    for (const Point &middle : middles)
        for (const double across : kPlaces)
            for (const double along : kPlaces) {
                const Point move = frame.along * (along * room) + frame.along.Left() * (across * roomAcross);
                const Frame text = frameOfText(frame, middle + move, width);
                if (isFree(text, &outline) && isWithin(text, outline))
                    return take(text);
            }
    return std::nullopt;
}

std::optional<PlanLabels::Label> PlanLabels::placeBeside(const vks::CPolygon &outline, const QString &name,
                                                         double overhang)
{
    return placeAt(frameOf(outline), &outline, name, overhang);
}

std::optional<PlanLabels::Label> PlanLabels::placeAlong(const vks::CCurve2d &line, const QString &text, double overhang)
{
    const Point chord = line.EndPoint() - line.StartPoint();
    Frame frame;
    frame.centre = line.StartPoint() + chord * 0.5;
    frame.along = chord == Point() ? Point(1, 0) : readable(chord.Normalized());
    frame.halfLength = chord.Length() / 2;
    return placeAt(frame, nullptr, text, overhang);
}

/** Along one of the longer sides of a frame. */
std::optional<PlanLabels::Label> PlanLabels::placeAt(const Frame &frame, const vks::CPolygon *owner,
                                                     const QString &name, double overhang)
{
    const double width = widthOf(name, m_textHeight);
    if (name.isEmpty() || 2 * frame.halfLength * overhang < width)
        return std::nullopt;
    const double room = std::max(0.0, frame.halfLength - width / 2);
    const double distance = frame.halfWidth + m_textHeight * kMargin;
    for (const double along : kPlaces)
        for (const double side : {1.0, -1.0}) {
            const Point move = frame.along * (along * room) + frame.along.Left() * (side * distance);
            const Frame text = frameOfText(frame, frame.centre + move, width);
            if (isFree(text, owner))
                return take(text);
        }
    return std::nullopt;
}

} // namespace orvcad

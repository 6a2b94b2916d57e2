#include "cli/PlanLabels.h"

#include <algorithm>
#include <cmath>

namespace orvcad {

namespace {

constexpr double kWidthPerHeight = 0.85; // mean width of a letter in parts of a capital's height
constexpr double kWidePerHeight = 1.45;  // the same of a wide (Chinese) character
constexpr double kMargin = 1.15;         // room that a text asks for, in parts of its size
constexpr double kUpright = 1e-9;        // rad; below this a direction counts as upright

vks::CVec2<double> readable(const vks::CVec2<double> &direction)
{
    const bool leftwards = direction.x < -kUpright || (std::fabs(direction.x) <= kUpright && direction.y < 0);
    return leftwards ? -direction : direction;
}

vks::CVec2<double> longestDirection(const vks::CPolygon &outline)
{
    std::vector<vks::CCurve2d *> curves;
    outline.GetCurves(curves);
    const auto longest = std::max_element(curves.begin(), curves.end(), [](const auto *a, const auto *b) {
        return a->StartPoint().DistanceTo(a->EndPoint()) < b->StartPoint().DistanceTo(b->EndPoint());
    });
    if (longest == curves.end())
        return {1, 0};
    const vks::CVec2<double> direction = ((*longest)->EndPoint() - (*longest)->StartPoint()).Normalized();
    return direction == vks::CVec2<double>() ? vks::CVec2<double>(1, 0) : readable(direction);
}

} // namespace

PlanLabels::Frame PlanLabels::frameOf(const vks::CPolygon &outline)
{
    Frame frame;
    frame.along = longestDirection(outline);
    vks::CBox2<double> turned;
    std::vector<vks::CCurve2d *> curves;
    outline.GetCurves(curves);
    for (const vks::CCurve2d *curve : curves) {
        const vks::CVec2<double> point = curve->StartPoint();
        turned.Add(vks::CVec2<double>(point.Dot(frame.along), point.Dot(frame.along.Left())));
    }
    if (turned.IsValid()) {
        frame.centre = frame.along * turned.Center().x + frame.along.Left() * turned.Center().y;
        frame.halfLength = turned.Width() / 2;
        frame.halfWidth = turned.Height() / 2;
    }
    return frame;
}

double PlanLabels::widthOf(const QString &name) const
{
    double letters = 0.0;
    for (const QChar letter : name)
        letters += letter.unicode() < 0x2E80 ? kWidthPerHeight : kWidePerHeight;
    return letters * m_textHeight;
}

std::optional<PlanLabels::Label> PlanLabels::take(const Frame &frame, const vks::CVec2<double> &middle, double width)
{
    vks::CBox2<double> box;
    for (const double side : {-0.5, 0.5})
        for (const double level : {-0.5, 0.5})
            box.Add(middle + frame.along * (side * width) + frame.along.Left() * (level * m_textHeight));
    const auto covered = [&box](const auto &other) { return other.Intersects(box); };
    if (std::any_of(m_taken.begin(), m_taken.end(), covered))
        return std::nullopt;
    m_taken.push_back(box);
    return Label{middle - frame.along * (width / 2) - frame.along.Left() * (m_textHeight / 2),
                 std::atan2(frame.along.y, frame.along.x)};
}

std::optional<PlanLabels::Label> PlanLabels::placeInside(const vks::CPolygon &outline, const QString &name)
{
    const Frame frame = frameOf(outline);
    const double width = widthOf(name);
    if (name.isEmpty() || 2 * frame.halfLength < width * kMargin || 2 * frame.halfWidth < m_textHeight * kMargin)
        return std::nullopt;
    vks::CVec2<double> middle = outline.Barycentre();
    for (const double side : {-0.5, 0.5})
        for (const double level : {-0.5, 0.5})
            if (outline.Locate(middle + frame.along * (side * width) + frame.along.Left() * (level * m_textHeight),
                               0.0) < 0)
                return std::nullopt;
    return take(frame, middle, width);
}

std::optional<PlanLabels::Label> PlanLabels::placeBeside(const vks::CPolygon &outline, const QString &name)
{
    const Frame frame = frameOf(outline);
    const double width = widthOf(name);
    if (name.isEmpty() || 2 * frame.halfLength < width)
        return std::nullopt;
    const double distance = frame.halfWidth + m_textHeight * kMargin;
    for (const double side : {1.0, -1.0})
        if (const auto label = take(frame, frame.centre + frame.along.Left() * (side * distance), width))
            return label;
    return std::nullopt;
}

} // namespace orvcad

#pragma once

#include "platform/geometry/CPolygon.h"

#include <QString>

#include <optional>
#include <vector>

namespace orvcad {

/** Finds room for names on a plan: along the longer direction of an outline, inside it or just beside it, and never over
 *  another name. Lengths are mm of the plan. */
class PlanLabels
{
public:
    struct Label
    {
        vks::CVec2<double> start; ///< left end of the baseline
        double angle = 0.0;       ///< rad, between -pi/2 and pi/2, so that texts read from below or from the right
    };

    /** @param textHeight  height of a capital letter, mm of the plan */
    explicit PlanLabels(double textHeight) : m_textHeight(textHeight) {}

    /** A place for a name within an outline; nothing when it has no room there. */
    std::optional<Label> placeInside(const vks::CPolygon &outline, const QString &name);
    /** A place for a name along one of the longer sides of an outline, outside it. */
    std::optional<Label> placeBeside(const vks::CPolygon &outline, const QString &name);

private:
    struct Frame
    {
        vks::CVec2<double> centre;
        vks::CVec2<double> along; // unit, to the right or upwards
        double halfLength = 0.0;
        double halfWidth = 0.0;
    };

    static Frame frameOf(const vks::CPolygon &outline);
    double widthOf(const QString &name) const;
    std::optional<Label> take(const Frame &frame, const vks::CVec2<double> &middle, double width);

    double m_textHeight;
    std::vector<vks::CBox2<double>> m_taken;
};

} // namespace orvcad

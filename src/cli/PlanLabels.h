#pragma once

#include "platform/dwgx/DWGXBaseBoxTree.h"
#include "platform/geometry/CPolygon.h"

#include <QString>

#include <deque>
#include <memory>
#include <optional>
#include <vector>

namespace orvcad {

/** Finds room for names on a plan: along the longer direction of an outline, inside it or just beside it, never over
 *  another name or over what keeps its place free. Lengths are mm of the plan. */
class PlanLabels
{
public:
    struct Label
    {
        vks::CVec2<double> middle; ///< of the baseline
        double angle = 0.0;        ///< rad, between -pi/2 and pi/2, so that texts read from below or from the right
    };

    /** Rectangle of any direction. */
    struct Frame
    {
        vks::CVec2<double> centre;
        vks::CVec2<double> along{1, 0}; ///< unit, to the right or upwards
        double halfLength = 0.0;
        double halfWidth = 0.0;

        bool overlaps(const Frame &other) const;
    };

    /** @param textHeight  height of a capital letter, mm of the plan */
    explicit PlanLabels(double textHeight);

    /** Keeps an outline free of names other than its own; one that is no rectangle, more or less, is passed over. */
    void keepFree(const vks::CPolygon &outline);
    /** A place for a name within an outline, as near to its middle as there is room; nothing when there is none. */
    std::optional<Label> placeInside(const vks::CPolygon &outline, const QString &name);
    /** A place for a name along one of the longer sides of an outline, outside it.
     *  @param overhang  how much longer than the outline the name may be, as a factor */
    std::optional<Label> placeBeside(const vks::CPolygon &outline, const QString &name, double overhang = 1.0);
    /** The same along the chord of a line. */
    std::optional<Label> placeAlong(const vks::CCurve2d &line, const QString &text, double overhang = 1.0);

    /** The smallest rectangle in the direction of the longest edge. */
    static Frame frameOf(const vks::CPolygon &outline);
    /** Length of a text, estimated; in the unit of its capitals' height. */
    static double widthOf(const QString &text, double textHeight);

private:
    /** A place that is not free: for names other than the owner's, or for all where there is no owner. */
    struct Occupied
    {
        const vks::CPolygon *owner;
        Frame frame;
    };

    void occupy(const Frame &frame, const vks::CPolygon *owner);
    Frame frameOfText(const Frame &place, const vks::CVec2<double> &middle, double width) const;
    bool isFree(const Frame &text, const vks::CPolygon *owner) const;
    std::optional<Label> placeAt(const Frame &frame, const vks::CPolygon *owner, const QString &name, double overhang);
    Label take(const Frame &text);

    double m_textHeight;
    std::deque<Occupied> m_occupied; ///< the tree points to them
    std::unique_ptr<dwgx::DWGXBaseBoxTree> m_tree;
};

} // namespace orvcad

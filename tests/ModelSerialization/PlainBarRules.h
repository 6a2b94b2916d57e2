#pragma once

#include "platform/geometry/CCurve2d.h"
#include "platform/geometry/CPolygon.h"

#include <QString>

#include <set>
#include <vector>

/** The rules of slab bars once more, plainly and for straight lines alone: what whole roads are held against. Nothing here
 *  is shared with the roads themselves. Lengths in mm. */
namespace plainbars {

using Point = vks::CVec2<double>;

struct Segment
{
    Point start;
    Point end;

    Point along() const { return (end - start) / start.DistanceTo(end); }
};

Segment segmentOf(const vks::CCurve2d &line);

/** Whether two segments lie on one line and have more than a point in common. */
bool shareStretch(const Segment &a, const Segment &b);

/** The bar through a point of an area: from the first to the last place where its line meets the boundary, or 100 mm where
 *  it meets nothing. */
Segment through(const vks::CPolygon &area, const Point &point, const Point &direction);

/** How far from the middle of its span a bar of a row lies, of rows up to 2. */
double rowOffset(int row);

/** Whether an area and an outline have more than their boundaries in common: a part thicker than 0.01 mm. Of one that is
 *  about as thin as that, such as the wedge between edges of rounded corners, this cannot tell. */
enum class Overlap { None, Thin, Clear };
Overlap overlap(const vks::CPolygon &area, const vks::CPolygon &outline);

/** Whether a segment, less 150 mm at either end, runs through an outline somewhere. Looks at points 1 mm apart. */
bool runsOver(const Segment &bar, const vks::CPolygon &outline);

/** A negative bar that looks for a place among others. */
struct TopBar
{
    Segment line;
    Segment drawn;
    double level = 0.0;
};

/** Which of the bars, which come one after another, find the place free: no earlier one that found its own lies on the same
 *  line, at the same level, and drawn over it. Each is held against each. */
std::vector<bool> placesFree(const std::vector<TopBar> &bars);

/** A bar of an area, as rows are told by. */
struct AreaBar
{
    std::set<qint64> slabs;
    int position = 0;
    Point direction; ///< the same, or at right angles to it
    QString barInfo;
};

/** The row of each. */
std::vector<int> rowsOf(const std::vector<AreaBar> &bars);

/** A bar along a line, as rows are told by. */
struct LineBar
{
    Segment line;
    int side = 0; ///< that it reaches to
    QString barInfo;
    int leftLabel = 0;
    int rightLabel = 0;
};

std::vector<int> rowsOf(const std::vector<LineBar> &bars);

} // namespace plainbars

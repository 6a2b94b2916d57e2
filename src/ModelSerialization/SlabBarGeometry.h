#pragma once

#include "ORVCADModelDataExport.h"
#include "platform/geometry/CCurve2d.h"
#include "platform/geometry/CPolygon.h"

/** Where bars are drawn; mm. Directions are taken as they stand, of whatever length. */
namespace slabhost {

/** How far a row lies off the place of its bars, as a part of the span: 0, -0.125, 0.125, -0.1875, 0.1875, …, from row to
 *  row nearer to a quarter on either side. 0 for a row below 0. */
ORVCADMODELDATA_EXPORT double calcIndex(int row);

/** Part of a length at which a row stands when rows are told off along it: fifths for the rows below 5, tenths from 5 on. */
double rowPart(int row);

/** Where working bars start: on the line across them through the middle of their area, at a part of its way through the
 *  area. Of a line that misses the area 100 mm count. */
ORVCADMODELDATA_EXPORT vks::CVec2<double> spanPoint(const vks::CPolygon &area, const vks::CVec2<double> &direction,
                                                    double part);
/** Where straddling bars start: the middle of their area in row 0, else a point of the diagonal of its box. */
ORVCADMODELDATA_EXPORT vks::CVec2<double> straddlePoint(const vks::CPolygon &area, int row);
/** A bar through an area: the way of a line through a point between its first and last point on the area's boundary. 100 mm
 *  from the point on for a line that misses the area. */
ORVCADMODELDATA_EXPORT vks::CRefPtr<vks::CCurve2d> barThrough(const vks::CPolygon &area,
                                                              const vks::CVec2<double> &start,
                                                              const vks::CVec2<double> &direction);

/** What line bars are laid along: a fresh line between the ends of a straight one, a copy of any other curve; null for
 *  null. */
ORVCADMODELDATA_EXPORT vks::CRefPtr<vks::CCurve2d> layingLine(const vks::CCurve2d *line);
/** Where line bars are drawn across their line: at its middle in row 0, else at the part of their row. */
ORVCADMODELDATA_EXPORT vks::CVec2<double> rowPoint(const vks::CCurve2d &line, int row);
/** A line bar: across the end direction of its line, from left behind the point to right in front of it, right being the
 *  side to the right of the direction. */
ORVCADMODELDATA_EXPORT vks::CRefPtr<vks::CCurve2d> barAcross(const vks::CCurve2d &line, const vks::CVec2<double> &point,
                                                             double left, double right);

} // namespace slabhost

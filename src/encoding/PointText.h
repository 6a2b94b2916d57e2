#pragma once

#include "ORVCADModelDataExport.h"
#include "platform/geometry/CVec2.h"

#include <QString>
#include <QStringView>

#include <vector>

/** Texts of points, mm: see docs/formats/geometry-text.md. */
namespace encoding {

/** Appends "x,y". */
ORVCADMODELDATA_EXPORT void appendPoint(QString &text, const vks::CVec2<double> &point);

/** "x,y" alone. */
ORVCADMODELDATA_EXPORT QString pointText(const vks::CVec2<double> &point);

/** Appends "x,y;" for each point. */
ORVCADMODELDATA_EXPORT void appendPoints(QString &text, const std::vector<vks::CVec2<double>> &points);

/** Reads "x,y". White space around the numbers passes. False for a bad text, which leaves the point as it was. */
ORVCADMODELDATA_EXPORT bool readPoint(QStringView text, vks::CVec2<double> &point);

/** The point of a text; (0, 0) when it is bad. */
ORVCADMODELDATA_EXPORT vks::CVec2<double> pointOf(QStringView text);

/** Reads "x,y;x,y;" and appends to the points; the last semicolon may be missing. A bad item empties the list, what it
 *  held before included. @return whether the list holds anything */
ORVCADMODELDATA_EXPORT bool readPoints(QStringView text, std::vector<vks::CVec2<double>> &points);

} // namespace encoding

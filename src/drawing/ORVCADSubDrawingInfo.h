#pragma once

#include <QString>

#include <limits>

/** A part of a drawing that was split off as a drawing of its own. Copying copies. */
struct ORVCADSubDrawingInfo
{
    QString drawingPath; ///< complete path of the part's file
    QString secondText;  ///< told apart by, and nothing else
    qint64 number = -1;  ///< told apart by, and nothing else
    qint64 reserved = 0; ///< copied, and nothing else

    // Extent of the part, mm; empty by default, so that any point widens it.
    double xMin = std::numeric_limits<double>::infinity();  ///< mm
    double yMin = std::numeric_limits<double>::infinity();  ///< mm
    double xMax = -std::numeric_limits<double>::infinity(); ///< mm
    double yMax = -std::numeric_limits<double>::infinity(); ///< mm
};

/** Whether two records tell of the same part. The extent plays no part. */
inline bool operator==(const ORVCADSubDrawingInfo &a, const ORVCADSubDrawingInfo &b)
{
    return a.number == b.number && a.drawingPath == b.drawingPath && a.secondText == b.secondText;
}
/** Likewise without the extent. */
inline bool operator!=(const ORVCADSubDrawingInfo &a, const ORVCADSubDrawingInfo &b) { return !(a == b); }

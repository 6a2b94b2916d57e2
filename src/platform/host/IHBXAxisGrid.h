#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/geometry/CCurve2d.h"

#include <QString>

#include <vector>

class IHBXElementDrawObj;

/** One axis of a grid: its label and its curves, in the coordinates of the grid's shape. */
struct HBXAxis
{
    QString label;                                   ///< as drawn at its end; may be empty
    std::vector<vks::CRefPtr<vks::CCurve2d>> curves; ///< its pieces, mm
};

/** Axis lines in four groups, 0 and 1 for U, 2 and 3 for V. A copy of the grid behind a draw object: it belongs to the
 *  caller, who deletes it. */
class ORVCADPLATFORM_EXPORT IHBXAxisGrid
{
public:
    enum { kGroupCount = 4 };

    virtual ~IHBXAxisGrid() = default;

    /** The grid behind a draw object of type 74, null for any other object and for null. */
    static IHBXAxisGrid *createFromObj(IHBXElementDrawObj *object);

    /** Replaces the content of out by the axes of a group; empty for a group out of range. */
    virtual void axes(std::vector<HBXAxis> &out, int group) const = 0;
    /** Brings the grid up to date before its lines are asked for. */
    virtual void prepare() = 0;
};

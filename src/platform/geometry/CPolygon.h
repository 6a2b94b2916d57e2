#pragma once

#include "platform/geometry/CLoop.h"
#include "platform/geometry/KernelTolerance.h"

namespace vks {

/** Area in the plan, bounded by any number of loops.
 *
 *  The first loop is the outer one and the further ones are its holes. Overlay may give several areas apart from each
 *  other; then, as everywhere, a loop within an even number of others bounds an area and one within an odd number a
 *  hole. The direction of a loop means nothing. */
class ORVCADPLATFORM_EXPORT CPolygon : public CGeometry
{
public:
    /** What IsValid checks, by bit. */
    enum EnValidity {
        kNotEmpty = 0x1,     ///< there is a loop and no loop is empty
        kClosed = 0x2,       ///< loops are closed within g_DistEpsilon
        kNoShortEdge = 0x4,  ///< no edge is shorter than g_DistEpsilon
        kNoCrossing = 0x8,   ///< no edge crosses or overlaps another, in its loop or another one
        kHolesInside = 0x10, ///< holes lie inside the outer loop and apart from each other
        kHasArea = 0x1000,   ///< the area is not zero
        kAllChecks = 0x101F
    };

    /** Adds a loop; null is ignored.
     *  @param takeOver  true: the loop belongs to the polygon from then on; false: a copy of it is added */
    void AddLoop(CLoop *loop, bool takeOver);

    /** Number of loops, the outer one included. */
    int LoopCount() const { return static_cast<int>(m_loops.size()); }
    /** Null for an index out of range. The polygon goes on holding it. */
    CLoop *GetLoop(int index) const;
    /** The loops in order, held. */
    const std::vector<CRefPtr<CLoop>> &Loops() const { return m_loops; }
    /** A curve counted through all loops in order; null out of range. The polygon goes on holding it. */
    CCurve2d *GetCurve(int index) const;
    /** Replaces the content of the vector by the curves of all loops in order; the polygon goes on holding them. */
    void GetCurves(std::vector<CCurve2d *> &curves) const;

    /** A polygon of copies of the loops. */
    CRefPtr<CPolygon> Clone() const;

    /** mm², exact for arcs, holes taken off; never negative. */
    double Area() const;
    /** Centre of the area, exact for arcs, holes taken off; of a polygon without area the middle of its box. */
    CVec2<double> Barycentre() const;
    /** Length of all loops, mm. */
    double Perimeter() const;
    /** Where a point lies: 1 inside, 0 within the tolerance (mm) of the boundary, -1 outside. Exact for arcs. */
    int Locate(const CVec2<double> &point, double tolerance) const;

    /** True for one full circle (one loop of one closed curve). */
    bool IsCircle() const;
    /** True for one loop of four straight sides parallel to the axes within an angle, rad. */
    bool IsRectangle(double angleTolerance = g_AngleEpsilon) const;
    /** Checks by mask (EnValidity); bits that name no check ask for nothing. Geometry that is not finite is never
     *  valid. The two pointers are places for details that this kernel does not give; pass null. */
    bool IsValid(unsigned mask, void *detail, void *position) const;

    CBox2<double> Box() const override;
    /** Moves in place, mm. */
    void Translate(const CVec2<double> &move) override;
    void Rotate(const CVec2<double> &centre, double angle) override;
    void MirrorX() override;

    /** The polygon of a text in the form of ToText; null for null and for any other text. */
    static CRefPtr<CPolygon> LoadFromString(const char *text);

protected:
    void writeText(std::string &text) const override;

private:
    std::vector<CRefPtr<CLoop>> m_loops;
};

} // namespace vks

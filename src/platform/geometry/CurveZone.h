#pragma once

#include "platform/geometry/CPolygon.h"

#include <vector>

namespace vks {

/** Points at a distance from curves lie on the border of the curves' zone: beside each curve and, on the outside of a
 *  corner, around it. Cut where it meets that border (or the curves themselves), another curve falls into pieces that
 *  lie in the zone or out of it as a whole. The border may hold more than the border proper, never less. */
class ORVCADPLATFORM_EXPORT CurveZone
{
public:
    /** A part of the border with its box. */
    struct Piece
    {
        CRefPtr<CCurve2d> curve; ///< a part of the border
        CBox2<double> box;       ///< of that part
    };

    /** Pieces that do not touch the range are left out. */
    explicit CurveZone(const CBox2<double> &range) : m_range(range) {}

    /** @param distance  mm; 0 adds the boundary itself */
    void addPolygon(const CPolygon &polygon, double distance);
    /** A single curve with a disc at each end; distance above 0, mm. */
    void addCurve(const CCurve2d &curve, double distance);

    /** All parts. */
    const std::vector<Piece> &border() const { return m_border; }
    /** Parameters of a curve, in order, at its ends and wherever it meets the border. */
    std::vector<double> cuts(const CCurve2d &curve) const;

private:
    void add(const CRefPtr<CCurve2d> &curve);
    void addSides(const CCurve2d &curve, double distance);
    void addCorner(const CCurve2d &before, const CCurve2d &after, double distance);

    CBox2<double> m_range;
    std::vector<Piece> m_border;
};

} // namespace vks

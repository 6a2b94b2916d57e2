#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/geometry/CCurve2d.h"

#include <QJsonObject>
#include <QSet>

#include <vector>

namespace vks {
class CPolygon;
}
class IHBXElementDrawObj;

namespace hbx::embedded {

/** Cuts a beam chain into spans at what it rests on; ORVBeamPlanService tells the rules. Positions are lengths along the
 *  pieces of the chain, from the start of its first one, mm. */
class ORVCADPLATFORM_EXPORT HBXSpanCut
{
public:
    explicit HBXSpanCut(IHBXElementDrawObj &head);

    /** Objects with the keys of the beam span record, in order, those keys alone that can be told; empty for a chain
     *  without an axis. */
    std::vector<QJsonObject> spans() const;

private:
    struct Piece
    {
        IHBXElementDrawObj *object;
        vks::CRefPtr<vks::CCurve2d> axis; ///< in the world
        double start;                     ///< position of its start
    };
    /** Where the chain lies on a support. At its ends it may begin before 0 and end behind the length. */
    struct Seat
    {
        double from;
        double to;
    };
    /** One end of a span; of a free end the seat is this point alone. */
    struct Node
    {
        double position;
        Seat seat;
    };

    void addPiece(IHBXElementDrawObj &object);
    bool isSupport(IHBXElementDrawObj &object) const;
    void addSeats(const Piece &piece, const vks::CPolygon &support);
    void addSupports();
    void mergeSeats();
    std::vector<Node> nodes() const;
    const Piece &pieceAt(double position) const;
    double elevationAt(double position) const;
    QJsonObject span(const Node &from, const Node &to) const;

    std::vector<Piece> m_pieces;
    QSet<qint64> m_ids; ///< of the pieces
    double m_length = 0.0;
    std::vector<Seat> m_seats; ///< in order, apart from each other
};

} // namespace hbx::embedded

#include "cli/SlabComparison.h"

#include "ModelSerialization/ORVCADBoardLocalModelTransformHBXService_Sample.h"
#include "cli/Counted.h"
#include "cli/Message.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXRegion.h"
#include "platform/services/HbxRelation.h"
#include "slab/ORVCADBoardLocalModel_Sample.h"
#include "slab/TruncatedNumber.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace orvcad {

namespace {

using Local = ORVCADBoardLocalModel_Sample;

constexpr double kSamePlace = 1e-6;     // mm
constexpr double kSameElevation = 1e-5; // m: an elevation travels as a text of six digits
constexpr double kSameDirection = 1e-6; // of the parts of a unit vector
constexpr double kFarApart = 1.0;       // mm: outlines are not the same whose boxes are

/** What is compared of an element. */
struct Piece
{
    QString title;                       ///< "slab B-h120"
    QStringList values;                  ///< have to be the same
    std::vector<double> elevations = {}; ///< m
    vks::CRefPtr<vks::CPolygon> outline = nullptr;
    vks::CRefPtr<vks::CCurve2d> line = nullptr;
};

/** "slab B-h120" */
QString titled(const char *noun, const QString &name) { return QStringLiteral("%1 %2").arg(Message::tr(noun), name); }

QString numberText(double number) { return QString::number(slab::truncated(number)); }

Piece pieceOf(const Local::Board &slab)
{
    return {titled(QT_TRANSLATE_NOOP("orvcad", "slab"), slab.name),
            {numberText(slab.thickness)},
            {slab.elev},
            slab.surface};
}

Piece pieceOf(const Local::Raft &raft)
{
    return {titled(QT_TRANSLATE_NOOP("orvcad", "raft"), raft.name),
            {numberText(raft.thickness)},
            {raft.topElev, raft.bottomElev},
            raft.surface};
}

Piece pieceOf(const Local::BoardHole &hole)
{
    return {titled(QT_TRANSLATE_NOOP("orvcad", "hole"), hole.name), {}, {}, hole.surface};
}

/** The two ways in which bars of an area run are one. */
QString directionText(const vks::CVec2<double> &direction)
{
    const bool isTurned = direction.x < -kSameDirection || (direction.x < kSameDirection && direction.y < 0);
    const vks::CVec2<double> upright = isTurned ? -direction : direction;
    return QStringLiteral("%1 %2").arg(qRound64(upright.x / kSameDirection)).arg(qRound64(upright.y / kSameDirection));
}

template <typename Bar> Piece mainPiece(const Bar &bar, const char *title)
{
    return {titled(title, bar.name),
            {bar.barInfo, directionText(bar.direction), QString::number(bar.forcedType),
             QString::number(bar.leftHookLength)},
            {},
            bar.surface};
}
Piece pieceOf(const Local::ForcedBar &bar) { return mainPiece(bar, QT_TRANSLATE_NOOP("orvcad", "slab bar")); }
Piece pieceOf(const Local::RaftMainForcedBar &bar) { return mainPiece(bar, QT_TRANSLATE_NOOP("orvcad", "raft bar")); }

template <typename Bar> QStringList labelsOf(const Bar &bar)
{
    return {bar.barInfo, QString::number(bar.labelPosition), numberText(bar.leftStretchLength),
            numberText(bar.rightStretchLength), QString::number(bar.leftHookLength)};
}

template <typename Bar> Piece straddlePiece(const Bar &bar, const char *title)
{
    const QStringList own{directionText(bar.direction), QString::number(bar.rightHookLength)};
    return {titled(title, bar.name), labelsOf(bar) + own, {}, bar.surface};
}
Piece pieceOf(const Local::StraddleForcedBar &bar)
{
    Piece piece = straddlePiece(bar, QT_TRANSLATE_NOOP("orvcad", "straddling slab bar"));
    piece.values += {bar.distributeBarInfo, bar.saddleBarlineCount};
    return piece;
}
Piece pieceOf(const Local::RaftMainStraddleForcedBar &bar)
{
    return straddlePiece(bar, QT_TRANSLATE_NOOP("orvcad", "straddling raft bar"));
}

Piece pieceOf(const Local::NegativeForcedBar &bar)
{
    return {titled(QT_TRANSLATE_NOOP("orvcad", "slab negative bar"), bar.name),
            labelsOf(bar) + QStringList{bar.distributeBarInfo, bar.saddleBarlineCount},
            {},
            nullptr,
            bar.line};
}
Piece pieceOf(const Local::RaftNegativeForcedBar &bar)
{
    return {titled(QT_TRANSLATE_NOOP("orvcad", "raft negative bar"), bar.name), labelsOf(bar), {}, nullptr, bar.line};
}

template <typename Element> void append(const std::vector<const Element *> &elements, std::vector<Piece> &pieces)
{
    for (const Element *element : elements)
        pieces.push_back(pieceOf(*element));
}

std::vector<Piece> piecesOf(IHBXModel &model, const IHBXFloor &floor)
{
    using Transform = ORVCADBoardLocalModelTransformHBXService_Sample;
    Local local;
    double topElev = 0.0;
    double btmElev = 0.0;
    Transform::hbx2local(&model, floor.region()->name(), floor.name(), topElev, btmElev, &local, Transform::Everything);
    std::vector<Piece> pieces;
    append(local.boards(), pieces);
    append(local.rafts(), pieces);
    append(local.boardHoles(), pieces);
    append(local.forcedBars(), pieces);
    append(local.straddleForcedBars(), pieces);
    append(local.negativeForcedBars(), pieces);
    append(local.raftMainForcedBars(), pieces);
    append(local.raftMainStraddleForcedBars(), pieces);
    append(local.raftNegativeForcedBars(), pieces);
    return pieces;
}

bool sameLine(const vks::CCurve2d *a, const vks::CCurve2d *b)
{
    if (!a || !b)
        return a == b;
    return a->StartPoint().DistanceTo(b->StartPoint()) <= kSamePlace &&
           a->EndPoint().DistanceTo(b->EndPoint()) <= kSamePlace && std::fabs(a->Length() - b->Length()) <= kSamePlace;
}

bool sameOutline(const vks::CPolygon *a, const vks::CPolygon *b)
{
    if (!a || !b)
        return a == b;
    return a->Box().Grown(kFarApart).Intersects(b->Box()) &&
           hbx::polyPolyPosition(a, b, kSamePlace) == vks::kPolygonsSame;
}

bool sameElevations(const std::vector<double> &a, const std::vector<double> &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](double x, double y) { return std::fabs(x - y) <= kSameElevation; });
}

bool isSame(const Piece &a, const Piece &b)
{
    return a.title == b.title && a.values == b.values && sameElevations(a.elevations, b.elevations) &&
           sameLine(a.line, b.line) && sameOutline(a.outline, b.outline);
}

QString describe(const Piece &piece)
{
    QStringList values = piece.values;
    for (const double elevation : piece.elevations)
        values.append(QStringLiteral("%1 m").arg(elevation));
    const vks::CBox2<double> box = piece.outline ? piece.outline->Box()
                                   : piece.line  ? piece.line->Box()
                                                 : vks::CBox2<double>();
    values.append(box.IsValid() ? Message::tr("around %1, %2").arg(box.Center().x).arg(box.Center().y)
                                : Message::tr("nowhere"));
    return QStringLiteral("%1 (%2)").arg(piece.title, values.join(QStringLiteral(", ")));
}

} // namespace

QString SlabComparison::text() const
{
    return textOf(Message::tr("%1 of slabs, %2")
                      .arg(counted(compared, Message::tr("member")),
                           isSame() ? Message::tr("nothing lost, added or moved")
                                    : counted(deviations.size(), Message::tr("deviation"))));
}

SlabComparison compareSlabs(IHBXModel &expectedModel, const IHBXFloor &expected, IHBXModel &foundModel,
                            const IHBXFloor &found)
{
    const std::vector<Piece> before = piecesOf(expectedModel, expected);
    std::vector<Piece> after = piecesOf(foundModel, found);
    SlabComparison comparison;
    comparison.compared = static_cast<int>(before.size());
    for (const Piece &piece : before) {
        const auto same =
            std::find_if(after.begin(), after.end(), [&piece](const Piece &other) { return isSame(piece, other); });
        if (same == after.end())
            comparison.deviations.append(Message::tr("lost: %1").arg(describe(piece)));
        else
            after.erase(same);
    }
    for (const Piece &piece : after)
        comparison.deviations.append(Message::tr("added: %1").arg(describe(piece)));
    return comparison;
}

} // namespace orvcad

#include "platform/embedded/HBXSpanCut.h"

#include "platform/embedded/HBXElevationText.h"
#include "platform/embedded/HBXFloor.h"
#include "platform/embedded/HBXSpanKeys.h"
#include "platform/geometry/Angle.h"
#include "platform/geometry/CArc2d.h"
#include "platform/geometry/CurveZone.h"
#include "platform/host/IHBXCustomLineSolidShape.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXProperties.h"
#include "platform/host/WorldOutline.h"
#include "platform/services/DwgxRound.h"
#include "platform/services/HBXElementTypes.h"
#include "platform/services/HBXPropertyNames.h"

#include <QStringList>

#include <algorithm>
#include <iterator>

namespace hbx::embedded {
namespace {

constexpr double kSeatGap = 5.0;       // mm: a beam rests on what it comes this near to
constexpr double kMostSeatShare = 0.5; // of the chain: what carries more of it is no support to span from

/** Columns, walls and foundations; deeper beams come to them. */
constexpr qint64 kSupportTypes[] = {type::column,        type::tieColumn, type::masonryColumn,      type::forceWall,
                                    type::retainingWall, type::brickWall, type::isolatedFoundation, type::pileCap,
                                    type::pile};

struct TextKey
{
    QLatin1String key;
    const std::wstring &property;
};
constexpr TextKey kBarTexts[] = {
    {spankey::topThroughBar, property::topThroughBar},
    {spankey::bottomThroughBar, property::bottomThroughBar},
    {spankey::sideBar, property::sideBar},
    {spankey::tieBar, property::tieBar},
    {spankey::hoopBar, property::hoopBar},
};

double number(IHBXElementDrawObj &object, const std::wstring &name)
{
    const IHBXProperties *properties = object.properties();
    return properties ? properties->asDouble(name) : 0.0;
}

QString text(IHBXElementDrawObj &object, const std::wstring &name)
{
    QString out;
    const IHBXProperties *properties = object.properties();
    return properties ? properties->asString(out, name) : out;
}

/** Those that come near enough to a box to be met, and on a floor of another host perhaps more. */
QList<IHBXElementDrawObj *> objectsNear(IHBXFloor *floor, const vks::CBox2<double> &box, const QSet<qint64> &types)
{
    if (auto *own = dynamic_cast<HBXFloor *>(floor))
        return own->drawObjsMeeting(box, kSeatGap, types);
    QList<IHBXElementDrawObj *> objects;
    if (floor)
        floor->drawObjsOfTypes(objects, types, true);
    return objects;
}

/** The axis goes on for the size of the support, so that the middle of one that it ends in is found; an arc once around
 *  its circle at most. */
vks::CRefPtr<vks::CCurve2d> lengthened(const vks::CCurve2d &axis, const vks::CPolygon &support)
{
    const vks::CBox2<double> box = support.Box();
    double reach = box.Width() + box.Height() + kSeatGap;
    if (const auto *arc = dynamic_cast<const vks::CArc2d *>(&axis))
        reach = std::clamp((vks::kFullTurn * arc->Radius() - axis.Length()) / 2, 0.0, reach);
    vks::CRefPtr<vks::CCurve2d> longer = axis.Clone();
    longer->SetStartT(axis.StartT() - reach);
    longer->SetEndT(axis.EndT() + reach);
    return longer;
}

/** Width and height of a beam's section, mm: of the box of its outline where it has one. */
vks::CVec2<double> sectionSize(IHBXElementDrawObj &object)
{
    vks::CRefPtr<vks::CPolygon> outline;
    const IHBXProperties *properties = object.properties();
    if (properties && properties->asPolygon(outline, property::sectionPoly))
        return {outline->Box().Width(), outline->Box().Height()};
    return {number(object, property::sectionWidth), number(object, property::sectionHeight)};
}

QString sectionText(IHBXElementDrawObj &object)
{
    const vks::CVec2<double> size = sectionSize(object);
    return size.x > 0.0 && size.y > 0.0 ? QStringLiteral("%1*%2").arg(size.x).arg(size.y) : QString();
}

} // namespace

HBXSpanCut::HBXSpanCut(IHBXElementDrawObj &head)
{
    for (IHBXElementDrawObj *object = &head; object && !m_ids.contains(object->id()); object = object->nextInChain())
        addPiece(*object);
    if (m_pieces.empty() || !(m_length > 0.0))
        return;
    addSupports();
    mergeSeats();
}

void HBXSpanCut::addPiece(IHBXElementDrawObj &object)
{
    m_ids.insert(object.id());
    const auto *shape = dynamic_cast<IHBXCustomLineSolidShape *>(object.shape());
    vks::CRefPtr<vks::CCurve2d> axis;
    if (!shape || !shape->worldLine(axis, IHBXModel::g_bDefaultAutoCalc) || !(axis->Length() > 0.0))
        return;
    m_pieces.push_back({&object, axis, m_length});
    m_length += axis->Length();
}

bool HBXSpanCut::isSupport(IHBXElementDrawObj &object) const
{
    IHBXElementDrawObj &own = *m_pieces.front().object;
    if (object.type() != own.type())
        return true;
    return !m_ids.contains(object.id()) && sectionSize(object).y > sectionSize(own).y;
}

void HBXSpanCut::addSupports()
{
    IHBXElementDrawObj &own = *m_pieces.front().object;
    QSet<qint64> types(std::begin(kSupportTypes), std::end(kSupportTypes));
    types.insert(own.type());
    for (const Piece &piece : m_pieces)
        for (IHBXElementDrawObj *object : objectsNear(own.floor(), piece.axis->Box(), types))
            if (const auto outline = isSupport(*object) ? worldOutline(object->shape()) : nullptr)
                addSeats(piece, *outline);
}

void HBXSpanCut::addSeats(const Piece &piece, const vks::CPolygon &support)
{
    if (!support.Box().Intersects(piece.axis->Box(), kSeatGap))
        return;
    const auto axis = lengthened(*piece.axis, support);
    vks::CurveZone border(axis->Box().Grown(kSeatGap));
    border.addPolygon(support, 0.0);
    const std::vector<double> cuts = border.cuts(*axis);
    const double length = piece.axis->Length();
    for (std::size_t i = 1; i < cuts.size(); ++i) {
        const Seat seat{cuts[i - 1] - piece.axis->StartT(), cuts[i] - piece.axis->StartT()};
        const bool isMet = seat.from <= length + kSeatGap && seat.to >= -kSeatGap;
        const double covered = std::min(seat.to, length) - std::max(seat.from, 0.0);
        if (isMet && covered <= m_length * kMostSeatShare &&
            support.Locate(axis->GetPoint((cuts[i - 1] + cuts[i]) / 2), 0.0) >= 0)
            m_seats.push_back({piece.start + seat.from, piece.start + seat.to});
    }
}

void HBXSpanCut::mergeSeats()
{
    std::sort(m_seats.begin(), m_seats.end(), [](const Seat &a, const Seat &b) { return a.from < b.from; });
    std::vector<Seat> merged;
    for (const Seat &seat : m_seats) {
        if (!merged.empty() && seat.from <= merged.back().to + kSeatGap)
            merged.back().to = std::max(merged.back().to, seat.to);
        else
            merged.push_back(seat);
    }
    m_seats = std::move(merged);
}

std::vector<HBXSpanCut::Node> HBXSpanCut::nodes() const
{
    std::vector<Node> nodes;
    for (const Seat &seat : m_seats)
        nodes.push_back({std::clamp((seat.from + seat.to) / 2, 0.0, m_length), seat});
    if (nodes.empty() || nodes.front().seat.from > kSeatGap)
        nodes.insert(nodes.begin(), Node{0.0, {0.0, 0.0}});
    if (nodes.size() == 1 || nodes.back().seat.to < m_length - kSeatGap)
        nodes.push_back({m_length, {m_length, m_length}});
    return nodes;
}

const HBXSpanCut::Piece &HBXSpanCut::pieceAt(double position) const
{
    const auto behind = std::upper_bound(m_pieces.begin(), m_pieces.end(), position,
                                         [](double wanted, const Piece &piece) { return wanted < piece.start; });
    return behind == m_pieces.begin() ? *behind : *std::prev(behind);
}

double HBXSpanCut::elevationAt(double position) const
{
    const Piece &piece = pieceAt(position);
    const double start = number(*piece.object, property::startPtTopElev);
    const double end = number(*piece.object, property::endPtTopElev);
    const double share = (position - piece.start) / piece.axis->Length();
    return (start + (end - start) * share) / kMillimetresPerMetre;
}

QJsonObject HBXSpanCut::span(const Node &from, const Node &to) const
{
    IHBXElementDrawObj &object = *pieceAt((from.position + to.position) / 2).object;
    const double measures[] = {from.position - from.seat.from, from.seat.to - from.position, to.position - to.seat.from,
                               to.seat.to - to.position};
    QStringList measureTexts;
    for (const double measure : measures)
        measureTexts.append(QString::number(dwgx::round(measure)));
    QJsonObject span{{spankey::startElev, elevationAt(from.position)},
                     {spankey::endElev, elevationAt(to.position)},
                     {spankey::measures, measureTexts.join(QLatin1Char(','))},
                     {spankey::spanLength, to.position - from.position},
                     {spankey::section, sectionText(object)},
                     {spankey::axisOffset, number(object, property::axisOffset)},
                     {spankey::hoopBarLimbCount, text(object, property::limb).toInt()}};
    for (const TextKey &bar : kBarTexts)
        span.insert(bar.key, text(object, bar.property));
    return span;
}

std::vector<QJsonObject> HBXSpanCut::spans() const
{
    std::vector<QJsonObject> spans;
    if (m_pieces.empty())
        return spans;
    const std::vector<Node> ends = nodes();
    for (std::size_t i = 1; i < ends.size(); ++i) {
        if (ends[i].position - ends[i - 1].position <= kSeatGap)
            continue;
        spans.push_back(span(ends[i - 1], ends[i]));
        spans.back().insert(spankey::spanIndex, static_cast<int>(spans.size()));
    }
    return spans;
}

} // namespace hbx::embedded

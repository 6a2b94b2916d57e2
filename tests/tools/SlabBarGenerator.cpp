#include "tools/SlabBarGenerator.h"

#include "platform/dwgx/DWGXBaseBoxTree.h"
#include "platform/geometry/CBooleanOperate2D.h"
#include "platform/geometry/CLine2d.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

using Model = ORVCADBoardLocalModel_Sample;
using Point = vks::CVec2<double>;
using Box = vks::CBox2<double>;
using Polygon = vks::CRefPtr<vks::CPolygon>;
using Curve = vks::CRefPtr<vks::CCurve2d>;

constexpr double kLeastBay = 600.0;      // mm
constexpr double kLeastCover = 0.25;     // of a bay, by its plate
constexpr double kCover = 25.0;          // mm of concrete beside the bars of a bay
constexpr double kLeastCut = 0.5;        // of a plate's width, by a support that cuts it
constexpr double kStraight = 5.0;        // mm: a support that is off by less runs along or across
constexpr double kBehindSupport = 400.0; // mm: what lies that far from a side is on the other side of its support
constexpr double kLengthStep = 50.0;     // mm
constexpr double kLeastReach = 350.0;    // mm: more than the supports at the ends take
constexpr double kNoise = 1e-9;          // of a direction
constexpr unsigned kRowsEvery = 5;
constexpr unsigned kStraddleEvery = 3;
constexpr unsigned kReferEvery = 4;

Curve line(const Point &start, const Point &end) { return new vks::CLine2d(start, end); }

Polygon rectangle(const Box &box)
{
    const std::array<Point, 4> corners{box.minPt, Point(box.maxPt.x, box.minPt.y), box.maxPt,
                                       Point(box.minPt.x, box.maxPt.y)};
    auto *loop = new vks::CLoop;
    for (std::size_t i = 0; i < corners.size(); ++i)
        loop->AddCurve(new vks::CLine2d(corners[i], corners[(i + 1) % corners.size()]), false);
    Polygon polygon(new vks::CPolygon);
    polygon->AddLoop(loop, true);
    return polygon;
}

double quarter(double span) { return std::max(kLeastReach, std::floor(span / 4 / kLengthStep) * kLengthStep); }

/** Angle of the longest straight edge to the nearest axis; 0 where the two agree. */
double angleOf(const vks::CPolygon &outline)
{
    std::vector<vks::CCurve2d *> edges;
    outline.GetCurves(edges);
    const vks::CCurve2d *longest = nullptr;
    for (const vks::CCurve2d *edge : edges)
        if (edge->Type() == vks::CCurve2d::kLine && (!longest || edge->Length() > longest->Length()))
            longest = edge;
    const Point along = longest ? longest->EndVt() : Point(1, 0);
    return std::fabs(along.x * along.y) < kNoise ? 0.0 : std::atan2(along.y, along.x);
}

/** A slab or raft, turned so that it lies along the axes. */
struct Plate
{
    Polygon outline;
    double angle;
    Polygon turned;
    Box box;                   ///< turned
    std::vector<double> cutsX; ///< sides of the bays, from side to side of the box
    std::vector<double> cutsY;

    explicit Plate(const Polygon &surface)
        : outline(surface), angle(angleOf(*surface)), turned(turnedBy(surface, -angle)), box(turned->Box())
    {}
    static Polygon turnedBy(const Polygon &polygon, double by)
    {
        Polygon copy = polygon->Clone();
        if (by != 0.0)
            copy->Rotate({0, 0}, by);
        return copy;
    }
    Point turnedPoint(const Point &point, double by) const
    {
        const double c = std::cos(by);
        const double s = std::sin(by);
        return by == 0.0 ? point : Point(point.x * c - point.y * s, point.x * s + point.y * c);
    }
    Point back(const Point &point) const { return turnedPoint(point, angle); }
    Polygon back(const Polygon &polygon) const { return turnedBy(polygon, angle); }
};

/** The sides of bays between two ends, with the cuts that leave bays large enough. */
std::vector<double> sides(double start, std::vector<double> cuts, double end)
{
    std::sort(cuts.begin(), cuts.end());
    std::vector<double> kept{start};
    for (const double cut : cuts)
        if (cut - kept.back() >= kLeastBay && end - cut >= kLeastBay)
            kept.push_back(cut);
    kept.push_back(end);
    return kept;
}

bool runsThrough(double a, double b, double low, double high)
{
    const double shared = std::min(std::max(a, b), high) - std::max(std::min(a, b), low);
    return shared >= (high - low) * kLeastCut;
}

using Tree = std::unique_ptr<dwgx::DWGXBaseBoxTree>;

Tree newTree() { return Tree(dwgx::DWGXBaseBoxTree::createObject()); }

/** Plates of one kind with what carries them. */
class Floor
{
public:
    explicit Floor(const Model &model)
    {
        for (const Model::Beam *beam : model.beams())
            addSupport(beam->line);
        for (const Model::Wall *wall : model.walls())
            addSupport(wall->line);
    }
    template <typename Element> void addPlates(const std::vector<const Element *> &elements)
    {
        m_plates.reserve(elements.size()); // the tree points to them
        for (const Element *element : elements) {
            if (!element->surface || !element->surface->IsValid(vks::CPolygon::kAllChecks, nullptr, nullptr))
                continue;
            m_plates.emplace_back(element->surface);
            cut(m_plates.back());
            m_plateTree->add(element->surface->Box(), &m_plates.back());
        }
    }
    const std::vector<Plate> &plates() const { return m_plates; }
    /** The first of the other plates that a point lies in; null when there is none. */
    const Plate *plateAt(const Point &point, const Plate &own) const
    {
        m_plateTree->getIntersectantData({point, point}, m_hits);
        const auto holds = [&](void *hit) {
            return hit != &own && static_cast<Plate *>(hit)->outline->Locate(point, 1.0) > 0;
        };
        const auto hit = std::find_if(m_hits.begin(), m_hits.end(), holds);
        return hit == m_hits.end() ? nullptr : static_cast<const Plate *>(*hit);
    }
    bool hasSupportAt(const Point &point) const
    {
        const Point reach(kBehindSupport, kBehindSupport);
        m_supportTree->getIntersectantData({point - reach, point + reach}, m_hits);
        return std::any_of(m_hits.begin(), m_hits.end(), [&](void *hit) {
            return static_cast<vks::CCurve2d *>(hit)->DistanceTo(point) <= kBehindSupport;
        });
    }

private:
    void addSupport(const Curve &axis)
    {
        if (axis)
            m_supportTree->add(axis->Box(), axis.get());
    }
    void cut(Plate &plate)
    {
        std::vector<double> x;
        std::vector<double> y;
        m_supportTree->getIntersectantData(plate.outline->Box(), m_hits);
        for (void *hit : m_hits) {
            const auto &axis = *static_cast<vks::CCurve2d *>(hit);
            const Point start = plate.turnedPoint(axis.StartPoint(), -plate.angle);
            const Point end = plate.turnedPoint(axis.EndPoint(), -plate.angle);
            const bool isLine = axis.Type() == vks::CCurve2d::kLine;
            if (isLine && std::fabs(start.x - end.x) < kStraight &&
                runsThrough(start.y, end.y, plate.box.minPt.y, plate.box.maxPt.y))
                x.push_back(start.x);
            if (isLine && std::fabs(start.y - end.y) < kStraight &&
                runsThrough(start.x, end.x, plate.box.minPt.x, plate.box.maxPt.x))
                y.push_back(start.y);
        }
        plate.cutsX = sides(plate.box.minPt.x, std::move(x), plate.box.maxPt.x);
        plate.cutsY = sides(plate.box.minPt.y, std::move(y), plate.box.maxPt.y);
    }

    std::vector<Plate> m_plates;
    Tree m_plateTree = newTree();
    Tree m_supportTree = newTree();
    mutable std::vector<void *> m_hits;
};

// ---- The bars of both kinds of plates

struct SlabBars
{
    using Main = Model::ForcedBar;
    using Straddle = Model::StraddleForcedBar;
    using Negative = Model::NegativeForcedBar;
    static constexpr bool kTopBarsAlongMiddle = false;
};
struct RaftBars
{
    using Main = Model::RaftMainForcedBar;
    using Straddle = Model::RaftMainStraddleForcedBar;
    using Negative = Model::RaftNegativeForcedBar;
    static constexpr bool kTopBarsAlongMiddle = true;
};

void addDistribution(Model::StraddleForcedBar &bar) { bar.distributeBarInfo = QStringLiteral("A6@250"); }
void addDistribution(Model::NegativeForcedBar &bar)
{
    bar.distributeBarInfo = QStringLiteral("A6@250");
    bar.saddleBarlineCount = QStringLiteral("2");
}
template <typename Bar> void addDistribution(Bar &) {} // those of rafts have none

/** A side of a bay, from its inside on the right. */
struct Side
{
    Point start;
    Point end;
    double span; ///< of the bay, away from the side

    Point middle() const { return (start + end) / 2; }
    Point inwards() const
    {
        const Point along = (end - start) / start.DistanceTo(end);
        return {along.y, -along.x};
    }
};

template <typename Bars> class Layer
{
public:
    Layer(const Floor &floor, Model &reply, std::mt19937 &random) : m_floor(floor), m_reply(reply), m_random(random) {}

    void layAll()
    {
        for (const Plate &plate : m_floor.plates())
            lay(plate);
    }

private:
    void lay(const Plate &plate)
    {
        ++m_plateCount;
        const auto &x = plate.cutsX;
        const auto &y = plate.cutsY;
        for (std::size_t i = 1; i < x.size(); ++i)
            for (std::size_t k = 1; k < y.size(); ++k)
                layBay(plate, {{x[i - 1], y[k - 1]}, {x[i], y[k]}});
        if (Bars::kTopBarsAlongMiddle && x.size() == 2 && y.size() == 2)
            layMiddle(plate);
    }

    void layBay(const Plate &plate, const Box &box)
    {
        const Polygon bay = covered(plate, box);
        if (!bay)
            return;
        ++m_bayCount;
        const bool isWide = box.Width() > box.Height();
        const Point shortWay = isWide ? Point(0, 1) : Point(1, 0);
        addMain(plate, bay, shortWay, 0, 0);
        addMain(plate, bay, {shortWay.y, shortWay.x}, 1, 0);
        if (m_bayCount % kRowsEvery == 0)
            addMain(plate, bay, shortWay, 0, 1);
        const Point &low = box.minPt;
        const Point &high = box.maxPt;
        // Each side once: those towards the next bays are theirs to lay.
        laySide(plate, {{low.x, low.y}, {low.x, high.y}, box.Width()}, low.x > plate.box.minPt.x);
        laySide(plate, {{high.x, low.y}, {low.x, low.y}, box.Height()}, low.y > plate.box.minPt.y);
        if (high.x == plate.box.maxPt.x)
            laySide(plate, {{high.x, high.y}, {high.x, low.y}, box.Width()}, false);
        if (high.y == plate.box.maxPt.y)
            laySide(plate, {{low.x, high.y}, {high.x, high.y}, box.Height()}, false);
    }

    /** What a plate covers of a box, null for too little of it. */
    static Polygon covered(const Plate &plate, const Box &box)
    {
        const Polygon part = vks::CBooleanOperate2D::Intersect(plate.turned, rectangle(box.Grown(-kCover)));
        const bool isEnough = part && box.Width() >= kLeastBay && box.Height() >= kLeastBay &&
                              part->Area() >= kLeastCover * box.Width() * box.Height();
        return isEnough && part->IsValid(vks::CPolygon::kAllChecks, nullptr, nullptr) ? part : nullptr;
    }

    void laySide(const Plate &plate, const Side &side, bool isCut)
    {
        const double reach = quarter(side.span);
        const Point behind = plate.back(side.middle() - side.inwards() * kBehindSupport);
        const Plate *neighbour = m_floor.plateAt(behind, plate);
        if (!isCut && plate.turned->Locate(side.middle(), 1.0) != 0)
            return; // the plate ends before
        if (isCut || neighbour > &plate)
            layOver(plate, side, reach);
        else if (!neighbour && m_floor.hasSupportAt(plate.back(side.middle())))
            addOneSided(plate, side, reach);
    }
    void layOver(const Plate &plate, const Side &side, double reach)
    {
        if (m_random() % kStraddleEvery == 0)
            addStraddle(plate, side, reach, reach);
        else
            addNegative(plate, side.start, side.end, reach, reach);
    }
    void addOneSided(const Plate &plate, const Side &side, double reach)
    {
        if (m_random() % 2 == 0)
            addNegative(plate, side.start, side.end, 0, reach);
        else
            addNegative(plate, side.end, side.start, reach, 0);
    }
    void layMiddle(const Plate &plate)
    {
        const Point middle = plate.box.Center();
        const bool isWide = plate.box.Width() > plate.box.Height();
        const double half = std::max(plate.box.Width(), plate.box.Height()) / 2;
        const double reach = quarter(std::min(plate.box.Width(), plate.box.Height()));
        const Point along = isWide ? Point(1, 0) : Point(0, 1);
        const Side axis{middle - along * half, middle + along * half, 0};
        addNegative(plate, axis.start, axis.end, reach, reach);
        if (m_plateCount % 4 == 0)
            addStraddle(plate, {middle - along * (half / 3), middle + along * (half / 3), 0}, reach, reach);
    }

    // ---- Single bars

    template <typename Bar> Bar &add()
    {
        auto *bar = new Bar(&m_reply);
        bar->recongnizedID = QUuid::createUuid();
        static constexpr const char *kTexts[] = {"C8@200", "c10@150", "A6@200", "C12@150", "b8@100"};
        bar->barInfo = QString::fromLatin1(kTexts[m_random() % std::size(kTexts)]);
        bar->leftHookLength = static_cast<int>(m_random() % 4) * 60;
        bar->rightHookLength = static_cast<int>(m_random() % 4) * 60;
        addDistribution(*bar);
        return *bar;
    }
    template <typename Bar> void refer(Bar &bar, const Point &point)
    {
        bar.refPointValid = m_random() % kReferEvery == 0;
        if (bar.refPointValid)
            bar.refPoint = point;
    }
    void addMain(const Plate &plate, const Polygon &bay, const Point &direction, int place, int row)
    {
        auto &bar = add<typename Bars::Main>();
        bar.surface = plate.back(bay);
        bar.supportPoly = plate.outline;
        bar.direction = plate.back(direction);
        bar.forcedType = place;
        bar.rowNumber = row;
        if (row > 0)
            bar.barInfo = QStringLiteral("C14@200"); // none of those in the first row
        refer(bar, bar.surface->Barycentre());
    }
    void addStraddle(const Plate &plate, const Side &side, double left, double right)
    {
        auto &bar = add<typename Bars::Straddle>();
        const Point across = side.inwards();
        Box box;
        for (const Point &point : {side.start, side.end}) {
            box.Add(point - across * left);
            box.Add(point + across * right);
        }
        bar.surface = plate.back(rectangle(box));
        bar.direction = plate.back(across);
        bar.leftStretchLength = left;
        bar.rightStretchLength = right;
        bar.labelPosition = static_cast<int>(m_random() % 4);
        refer(bar, bar.surface->Barycentre());
    }
    void addNegative(const Plate &plate, const Point &start, const Point &end, double left, double right)
    {
        auto &bar = add<typename Bars::Negative>();
        bar.line = line(plate.back(start), plate.back(end));
        bar.leftStretchLength = left;
        bar.rightStretchLength = right;
        bar.labelPosition = static_cast<int>(m_random() % 6);
        refer(bar, bar.line->MidPoint());
    }

    const Floor &m_floor;
    Model &m_reply;
    std::mt19937 &m_random;
    unsigned m_plateCount = 0;
    unsigned m_bayCount = 0;
};

} // namespace

void SlabBarGenerator::layOverSlabs(const Model &floor, Model &reply)
{
    Floor slabs(floor);
    slabs.addPlates(floor.boards());
    Layer<SlabBars>(slabs, reply, m_random).layAll();
}

void SlabBarGenerator::layOverRafts(const Model &floor, Model &reply)
{
    Floor rafts(floor);
    rafts.addPlates(floor.rafts());
    Layer<RaftBars>(rafts, reply, m_random).layAll();
}

#include "ModelSerialization/SlabFloor.h"

#include "platform/geometry/CLine2d.h"
#include "tools/SlabBarGenerator.h"

#include <array>
#include <cmath>

namespace bench {
namespace {

using Model = ORVCADBoardLocalModel_Sample;
using Point = vks::CVec2<double>;

constexpr double kLong = 6000.0;  // mm
constexpr double kShort = 4500.0; // mm
constexpr unsigned kSeed = 3;

void addSlab(Model &model, const std::array<Point, 4> &corners)
{
    auto *loop = new vks::CLoop;
    for (std::size_t i = 0; i < corners.size(); ++i)
        loop->AddCurve(new vks::CLine2d(corners[i], corners[(i + 1) % corners.size()]), false);
    auto *board = new Model::Board(&model);
    board->recongnizedID = QUuid::createUuid();
    board->surface = vks::CRefPtr<vks::CPolygon>(new vks::CPolygon);
    board->surface->AddLoop(loop, true);
    board->thickness = 120;
    board->elev = 3.0;
    board->stateDescript = QStringLiteral("h=120");
}

void addBeam(Model &model, const Point &start, const Point &end)
{
    auto *beam = new Model::Beam(&model);
    beam->recongnizedID = QUuid::createUuid();
    beam->name = QStringLiteral("KL1");
    beam->line = vks::CRefPtr<vks::CCurve2d>(new vks::CLine2d(start, end));
    beam->width = 250;
    beam->distanceToLeft = 125;
    beam->startTopElev = beam->endTopElev = 3000;
}

} // namespace

void addSlabFloor(Model &model, int slabs)
{
    const int inARow = std::max(1, static_cast<int>(std::sqrt(slabs)));
    for (int i = 0; i < slabs; ++i) {
        const int row = i / inARow;
        const Point low(i % inARow * kLong, row * kShort);
        const Point high = low + Point(kLong, kShort);
        addSlab(model, {low, Point(high.x, low.y), high, Point(low.x, high.y)});
        addBeam(model, low, {high.x, low.y});
        addBeam(model, low, {low.x, high.y});
    }
}

void addSlabBars(const Model &floor, Model &bars) { SlabBarGenerator(kSeed).layOverSlabs(floor, bars); }

} // namespace bench

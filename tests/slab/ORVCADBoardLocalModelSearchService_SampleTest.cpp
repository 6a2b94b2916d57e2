#include "slab/ORVCADBoardLocalModelSearchService_Sample.h"

#include "slab/SlabSearchFixture.h"

#include <functional>
#include <limits>

using namespace slabs;
using shapes::Point;
using Box = vks::CBox2<double>;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

/** A model with an element of each of five kinds, all within a square of 10 m. */
class SlabSearchServiceTest : public SlabSearchFixture
{
protected:
    Model::Beam *beam = support<Model::Beam>(model, line({0, 0}, {5000, 0}), 300);
    Model::Board *slab = board(model, rectangle(0, 0, 5000, 5000));
    Model::BoardHole *hole = section<Model::BoardHole>(model, rectangle(1000, 1000, 500, 500));
    Model::Column *column = section<Model::Column>(model, rectangle(4800, 4800, 400, 400));
    Model::NegativeForcedBar *bar = topBar(model, line({5000, 0}, {5000, 5000}), 900, 900);
};

using BoxQuery = SlabSearchServiceTest;
using PolygonQuery = SlabSearchServiceTest;
using CurveQuery = SlabSearchServiceTest;

const Box kEverywhere({-1e6, -1e6}, {1e6, 1e6});

} // namespace

TEST_F(SlabSearchServiceTest, findsInTheOrderOfTheModel)
{
    EXPECT_EQ(Search(&model, kAll).find(kEverywhere, kAll), (Objects{beam, slab, hole, column, bar}));
}

TEST_F(SlabSearchServiceTest, maskOfAFindChoosesAmongTheHits)
{
    const Search search(&model, kAll);
    EXPECT_EQ(search.find(kEverywhere, Types::BoardKind), Objects{slab});
    EXPECT_EQ(search.find(kEverywhere, Types::BeamKind | Types::NegativeForcedBarKind), (Objects{beam, bar}));
    EXPECT_EQ(search.find(kEverywhere, Types::RaftKind), Objects{});
}

TEST_F(SlabSearchServiceTest, maskOfTheConstructorDecidesWhatIsThereAtAll)
{
    const Search search(&model, Types::BoardKind | Types::ColumnKind);
    EXPECT_EQ(search.find(kEverywhere, kAll), (Objects{slab, column}));
    EXPECT_EQ(search.find(kEverywhere, Types::BeamKind), Objects{});
    EXPECT_EQ(search.find(line({0, 0}, {5000, 0}), Types::BeamKind), Objects{});
}

TEST_F(SlabSearchServiceTest, aMaskOfZeroFindsNothing)
{
    const Search search(&model, kAll);
    EXPECT_EQ(search.find(kEverywhere, 0), Objects{});
    EXPECT_EQ(search.find(slab->surface, 0), Objects{});
    EXPECT_EQ(search.find(bar->line, 0), Objects{});
    EXPECT_EQ(search.find(slab->shape(), 0), Objects{});
    EXPECT_EQ(Search(&model, 0).find(kEverywhere, kAll), Objects{});
}

TEST_F(SlabSearchServiceTest, findsNothingInAnEmptyOrMissingModel)
{
    const Model empty;
    for (const Search &search : {Search(&empty, kAll), Search(nullptr, kAll)}) {
        EXPECT_EQ(search.find(kEverywhere, kAll), Objects{});
        EXPECT_EQ(search.find(slab->surface, kAll), Objects{});
        EXPECT_EQ(search.find(bar->line, kAll), Objects{});
        EXPECT_EQ(search.find(slab->shape(), kAll), Objects{});
    }
}

TEST_F(SlabSearchServiceTest, elementsMadeAfterwardsAreNotFound)
{
    const Search search(&model, kAll);
    board(model, rectangle(0, 0, 5000, 5000));
    EXPECT_EQ(search.find(kEverywhere, Types::BoardKind), Objects{slab});
}

TEST_F(SlabSearchServiceTest, nullGeometryIsInNoIndex)
{
    board(model, nullptr);
    support<Model::Wall>(model, nullptr, 200);
    add<Model::AxisNet>();
    EXPECT_EQ(Search(&model, kAll).find(kEverywhere, kAll), (Objects{beam, slab, hole, column, bar}));
}

TEST_F(SlabSearchServiceTest, geometryThatIsNotFiniteIsHarmless)
{
    auto *broken = board(model, rectangle(kNaN, 0, 100, 100));
    const Search search(&model, kAll);
    search.find(kEverywhere, kAll);
    search.find(broken->surface, kAll);
    search.find(line({kNaN, 0}, {1000, 0}), kAll);
    search.find(Box({kNaN, kNaN}, {kNaN, kNaN}), kAll);
    EXPECT_EQ(search.find(broken->shape(), Types::BoardKind), Objects{});
}

TEST_F(BoxQuery, thatTouchesNoElementFindsNothingWhateverTheMask)
{
    const Search search(&model, kAll);
    for (const int mask : {0, 1, 4, kAll, -1})
        EXPECT_EQ(search.find(Box({20000, 20000}, {30000, 30000}), mask), Objects{}) << mask;
}

TEST_F(BoxQuery, findsElementsWhoseBoxComesWithinTwoMillimetres)
{
    const Search search(&model, kAll);
    EXPECT_EQ(search.find(Box({2000, 5002}, {3000, 6000}), kAll), (Objects{slab}));
    EXPECT_EQ(search.find(Box({2000, 5002.1}, {3000, 6000}), kAll), Objects{});
}

TEST_F(BoxQuery, goesByTheBoxOfTheLineNotOfTheSection)
{
    EXPECT_EQ(Search(&model, Types::BeamKind).find(Box({1000, 100}, {2000, 150}), kAll), Objects{});
}

TEST_F(BoxQuery, goesByTheAreaOfABarNotByThatOfItsSupport)
{
    auto *bottomBar = areaBar<Model::ForcedBar>(model, rectangle(0, 0, 1000, 1000));
    bottomBar->supportPoly = rectangle(0, 0, 9000, 9000);
    const Search search(&model, Types::ForcedBarKind);
    EXPECT_EQ(search.find(Box({8000, 8000}, {8100, 8100}), kAll), Objects{});
    EXPECT_EQ(search.find(Box({500, 500}, {600, 600}), kAll), Objects{bottomBar});
}

TEST_F(BoxQuery, ofAnEmptyBoxFindsNothing) { EXPECT_EQ(Search(&model, kAll).find(Box(), kAll), Objects{}); }

TEST_F(BoxQuery, ofAPointFindsWhatLiesThere)
{
    EXPECT_EQ(Search(&model, kAll).find(Box({1200, 1200}, {1200, 1200}), kAll), (Objects{slab, hole}));
}

TEST_F(PolygonQuery, findsTheElementsWithThatOutline)
{
    auto *second = section<Model::Column>(model, rectangle(0, 0, 5000, 5000));
    const Search search(&model, kAll);
    EXPECT_EQ(search.find(slab->surface, kAll), (Objects{slab, second}));
    EXPECT_EQ(search.find(slab->surface, Types::ColumnKind), Objects{second});
    EXPECT_EQ(search.find(hole->surface, kAll), Objects{hole});
}

TEST_F(PolygonQuery, allowsAMillimetreAndNoMore)
{
    const Search search(&model, Types::BoardKind);
    EXPECT_EQ(search.find(rectangle(0, 0, 5001, 5000), kAll), Objects{slab});
    EXPECT_EQ(search.find(rectangle(0, 0, 4999, 5000), kAll), Objects{slab});
    EXPECT_EQ(search.find(rectangle(0, 0, 5001.1, 5000), kAll), Objects{});
    EXPECT_EQ(search.find(rectangle(0, 0, 4998.9, 5000), kAll), Objects{});
}

TEST_F(PolygonQuery, findsNoElementInsideOrAroundThePolygon)
{
    const Search search(&model, kAll);
    EXPECT_EQ(search.find(rectangle(-1000, -1000, 9000, 9000), kAll), Objects{});
    EXPECT_EQ(search.find(rectangle(1100, 1100, 100, 100), kAll), Objects{});
}

TEST_F(PolygonQuery, passesOverElementsWithoutAnOutline)
{
    EXPECT_EQ(Search(&model, kAll).find(slab->surface, Types::BeamKind | Types::NegativeForcedBarKind), Objects{});
}

TEST_F(PolygonQuery, passesOverTheOutlineOfAnAxisNet)
{
    auto *net = addWith<Model::AxisNet>(rectangle(0, 0, 5000, 5000));
    EXPECT_EQ(Search(&model, kAll).find(net->surface, kAll), Objects{slab});
}

TEST_F(PolygonQuery, ofNullOrAnEmptyPolygonFindsNothing)
{
    const Search search(&model, kAll);
    EXPECT_EQ(search.find(static_cast<vks::CPolygon *>(nullptr), kAll), Objects{});
    EXPECT_EQ(search.find(shapes::PolygonPtr(new vks::CPolygon), kAll), Objects{});
}

TEST_F(PolygonQuery, thatCrossesItselfFindsNothing)
{
    const auto bowTie = shapes::polygon({{{0, 0}, {5000, 5000}, {5000, 0}, {0, 5000}}});
    section<Model::Board>(model, bowTie);
    EXPECT_EQ(Search(&model, kAll).find(bowTie, kAll), Objects{});
}

TEST_F(CurveQuery, findsTheElementsThatShareAStretch)
{
    auto *wall = support<Model::Wall>(model, line({4000, 0}, {9000, 0}), 200);
    auto *onward = support<Model::Wall>(model, line({5000, 0}, {9000, 0}), 200);
    const Search search(&model, kAll);
    EXPECT_EQ(search.find(line({4500, 0}, {0, 0}), kAll), (Objects{beam, wall}));
    EXPECT_EQ(search.find(line({0, 0}, {5000, 0}), Types::WallKind), Objects{wall});
    EXPECT_EQ(search.find(line({5500, 0}, {6000, 0}), kAll), (Objects{wall, onward}));
}

TEST_F(CurveQuery, findsNoElementThatIsMetInAPoint)
{
    EXPECT_EQ(Search(&model, kAll).find(line({0, -1000}, {0, 1000}), kAll), Objects{});
}

TEST_F(CurveQuery, allowsAMillimetreAndNoMore)
{
    const Search search(&model, kAll);
    EXPECT_EQ(search.find(line({0, 1.0}, {5000, 1.0}), kAll), Objects{beam});
    EXPECT_EQ(search.find(line({0, 1.1}, {5000, 1.1}), kAll), Objects{});
}

TEST_F(CurveQuery, passesOverElementsWithoutALine)
{
    EXPECT_EQ(Search(&model, kAll).find(line({0, 5000}, {5000, 5000}), Types::BoardKind | Types::ColumnKind),
              Objects{});
}

TEST_F(CurveQuery, ofNullOrACurveWithoutLengthFindsNothing)
{
    const Search search(&model, kAll);
    EXPECT_EQ(search.find(static_cast<vks::CCurve2d *>(nullptr), kAll), Objects{});
    EXPECT_EQ(search.find(line({1000, 0}, {1000, 0}), kAll), Objects{});
}

TEST_F(CurveQuery, goesAlongArcs)
{
    const vks::CRefPtr<vks::CCurve2d> arc(new vks::CArc2d({0, 0}, 8000.0, 0.0, 1.0));
    auto *curved = support<Model::Beam>(model, arc, 300);
    const Search search(&model, kAll);
    EXPECT_EQ(search.find(CurvePtr(new vks::CArc2d({0, 0}, 8000.5, 0.5, 1.5)), kAll), Objects{curved});
}

TEST_F(SlabSearchServiceTest, aShapeWithoutABoxFunctionThrows)
{
    const Object::Shape shape(slab, {});
    EXPECT_THROW(Search(&model, kAll).find(shape, kAll), std::bad_function_call);
}

TEST_F(SlabSearchServiceTest, aShapeOfNothingFindsTheBeamsInItsBoxOnly)
{
    const Object::Shape shape(nullptr, [] { return kEverywhere; });
    EXPECT_EQ(Search(&model, kAll).find(shape, kAll), Objects{beam});
}

TEST_F(SlabSearchServiceTest, elementsAreNotHeldByTheService)
{
    const int holders = slab->surface->HolderCount();
    {
        const Search search(&model, kAll);
        search.find(slab->shape(), kAll);
        EXPECT_EQ(slab->surface->HolderCount(), holders);
    }
    EXPECT_EQ(slab->surface->HolderCount(), holders);
}

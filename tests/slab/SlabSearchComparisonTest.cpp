#include "slab/ORVCADBoardLocalModelSearchService_Sample.h"

#include "slab/GeneratedFloor.h"
#include "slab/PlainSlabSearch.h"
#include "slab/SlabSearchFixture.h"
#include "support/BuildingHost.h"

#include "platform/host/IHBXCustomLineSolidShape.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"

#include <algorithm>
#include <map>
#include <random>
#include <set>

using namespace slabs;

namespace {

/** Answers of the service against those of the plain search, for everything in another model. */
class Comparison
{
public:
    Comparison(const Model &model, int indexed) : m_plain(model, indexed), m_search(&model, indexed) {}

    void ask(const Object &query)
    {
        const vks::CBox2<double> box = query.shape().box();
        for (const int mask : {kAll, Types::BoardKind | Types::WallKind})
            EXPECT_EQ(m_search.find(box, mask), m_plain.byBox(box, mask));
        if (const auto *section = dynamic_cast<const Model::SectionObject *>(&query); section && section->surface) {
            EXPECT_EQ(m_search.find(section->surface, kAll), m_plain.byPolygon(*section->surface, kAll));
        }
        if (const auto *line = dynamic_cast<const Model::LineObject *>(&query); line && line->line) {
            EXPECT_EQ(m_search.find(line->line, kAll), m_plain.byCurve(*line->line, kAll));
        }
        const Objects same = m_search.find(query.shape(), kAll);
        EXPECT_EQ(same, m_plain.byElement(query, kAll)) << query.type();
        count(query, same);
    }
    void askAll(const Model &queries)
    {
        for (const Object *query : queries.objects())
            ask(*query);
    }

    /** How many elements of a kind were asked for, and how many of them found in their own kind. */
    int asked(int kind) const { return m_asked.count(kind) != 0 ? m_asked.at(kind) : 0; }
    int found(int kind) const { return m_found.count(kind) != 0 ? m_found.at(kind) : 0; }

private:
    void count(const Object &query, const Objects &same)
    {
        if (!query.shape().box().IsValid())
            return; // without an outline it is nowhere
        ++m_asked[query.type()];
        m_found[query.type()] +=
            std::any_of(same.begin(), same.end(), [&query](const Object *hit) { return hit->type() == query.type(); });
    }

    PlainSlabSearch m_plain;
    Search m_search;
    std::map<int, int> m_asked;
    std::map<int, int> m_found;
};

/** A floor of 12 by 8 bays. */
GeneratedFloor floorOf(double inset, double jitter, unsigned seed)
{
    GeneratedFloor floor;
    floor.baysAlong = 12;
    floor.baysAcross = 8;
    floor.slabInset = inset;
    floor.jitter = jitter;
    floor.seed = seed;
    return floor;
}

Comparison compared(GeneratedFloor held, GeneratedFloor recognised, int indexed = kAll)
{
    Model model;
    Model other;
    held.fill(model);
    recognised.fill(other);
    Comparison comparison(model, indexed);
    comparison.askAll(other);
    return comparison;
}

} // namespace

TEST(SlabSearchComparisonTest, generatedFloorsGiveTheSameHitsAsLookingAtEveryElement)
{
    const Comparison equal = compared(floorOf(0, 0, 1), floorOf(0, 0, 1));
    for (const int kind : {4, 8, 16, 32, 64}) {
        EXPECT_GT(equal.asked(kind), 20) << kind;
        EXPECT_EQ(equal.found(kind), equal.asked(kind)) << kind;
    }
}

TEST(SlabSearchComparisonTest, aLittleJitterKeepsSlabsAndBarsFound)
{
    const Comparison close = compared(floorOf(0, 0, 1), floorOf(0, 5, 2));
    for (const int kind : {4, 16, 32})
        EXPECT_EQ(close.found(kind), close.asked(kind)) << kind;
}

TEST(SlabSearchComparisonTest, aLittleJitterKeepsHolesFoundUnlessTheyLeaveTheLineOfTheirSupports)
{
    // A support takes area where its line touches the box of the hole, here at the hole's edge.
    const Comparison close = compared(floorOf(0, 0, 1), floorOf(0, 5, 2));
    EXPECT_GT(close.found(8), close.asked(8) / 2);
    GeneratedFloor bare = floorOf(0, 0, 1);
    bare.withSupports = false;
    const Comparison alone = compared(bare, floorOf(0, 5, 2));
    EXPECT_EQ(alone.found(8), alone.asked(8));
}

TEST(SlabSearchComparisonTest, moreJitterLosesSomeAndNotAll)
{
    const Comparison apart = compared(floorOf(0, 6, 1), floorOf(0, 9, 2));
    for (const int kind : {8, 16, 32}) {
        EXPECT_GT(apart.found(kind), 0) << kind;
        EXPECT_LT(apart.found(kind), apart.asked(kind)) << kind;
    }
}

TEST(SlabSearchComparisonTest, slabsUpToTheAxesAreThoseUpToTheSupports)
{
    const double half = GeneratedFloor::kSupportWidth / 2;
    // Outermost slabs have axes, but no supports, on their far sides.
    const Comparison faces = compared(floorOf(0, 0, 1), floorOf(half, 2, 2));
    EXPECT_GT(faces.found(4), faces.asked(4) / 2);
    const Comparison without = compared(floorOf(0, 0, 1), floorOf(half, 2, 2), Types::BoardKind);
    EXPECT_EQ(without.found(4), 0);
}

TEST(SlabSearchComparisonTest, supportsOfTheOtherModelMeanNothing)
{
    GeneratedFloor bare = floorOf(GeneratedFloor::kSupportWidth / 2, 2, 2);
    bare.withSupports = false;
    GeneratedFloor built = bare;
    built.withSupports = true;
    const GeneratedFloor held = floorOf(0, 0, 1);
    EXPECT_EQ(compared(held, bare).found(4), compared(held, built).found(4));
}

namespace {

/** Element kinds of the host that have a counterpart here. */
const std::set<qint64> kSlabs = {19};
const std::set<qint64> kSlabHoles = {24};
const std::set<qint64> kColumns = {25, 26, 1002};
const std::set<qint64> kBeams = {15, 17, 18};
const std::set<qint64> kWalls = {0, 1, 1003};

/** Each sample building, floor by floor; the numbers say how much its slabs are moved. */
class SampleBuildingSearchTest : public ::testing::TestWithParam<const char *>
{
protected:
    /** Adds what a draw object is here, moved by up to that many mm. */
    void add(Model &model, IHBXElementDrawObj &object, double jitter)
    {
        const qint64 type = object.type();
        if (kSlabs.count(type) != 0)
            section<Model::Board>(model, outline(object, jitter));
        else if (kSlabHoles.count(type) != 0)
            section<Model::BoardHole>(model, outline(object, jitter));
        else if (kColumns.count(type) != 0)
            section<Model::Column>(model, outline(object, jitter));
        else if (kBeams.count(type) != 0)
            addSupport<Model::Beam>(model, object);
        else if (kWalls.count(type) != 0)
            addSupport<Model::Wall>(model, object);
    }
    void fill(Model &model, const IHBXFloor &floor, double jitter)
    {
        for (IHBXElementDrawObj *object : m_building.drawObjsOf(floor))
            add(model, *object, jitter);
    }

    BuildingHost m_building{GetParam()};

private:
    shapes::PolygonPtr outline(IHBXElementDrawObj &object, double jitter)
    {
        std::uniform_real_distribution<double> move(-jitter, jitter);
        vks::CRefPtr<vks::CPolygon> world;
        object.shape()->worldPoly(world, true);
        if (!world)
            return nullptr;
        const double x = move(m_random);
        return shapes::moved(*world, {x, move(m_random)});
    }
    template <typename Support> static void addSupport(Model &model, IHBXElementDrawObj &object)
    {
        auto *shape = dynamic_cast<IHBXCustomLineSolidShape *>(object.shape());
        if (!shape)
            return;
        vks::CRefPtr<vks::CCurve2d> axis;
        support<Support>(model, shape->worldLine(axis, true), shape->width(true), shape->distanceToLeft());
    }

    std::mt19937 m_random;
};

} // namespace

TEST_P(SampleBuildingSearchTest, givesTheSameHitsAsLookingAtEveryElement)
{
    int slabs = 0;
    m_building.forEachFloor([&](const IHBXFloor &floor) {
        Model model;
        fill(model, floor, 0);
        Comparison itself(model, kAll);
        itself.askAll(model);
        EXPECT_EQ(itself.found(4), itself.asked(4)); // no outline is so broken that it is not itself
        slabs += itself.asked(4);
        for (const double jitter : {8.0, 20.0}) {
            Model recognised;
            fill(recognised, floor, jitter);
            Comparison(model, kAll).askAll(recognised);
        }
    });
    EXPECT_GT(slabs, 0);
}

INSTANTIATE_TEST_SUITE_P(Buildings, SampleBuildingSearchTest,
                         ::testing::Values("duplex-apartment", "precast-hall", "masonry-block", "made-building"));

#include "embedded/EmbeddedBuilding.h"

#include <random>
#include <vector>

namespace hbx::embedded {
namespace {

constexpr char kSquare[] = "POLYGON((0 0, 4000 0, 4000 4000, 0 4000, 0 0))";

class HBXCheckTest : public EmbeddedBuilding
{};

TEST_F(HBXCheckTest, anObjectWithGeometryOfItsOwnIsAcceptable)
{
    error.reason = QStringLiteral("before");
    collisions[1] = QStringLiteral("before");
    EXPECT_TRUE(isAcceptable(slab(kSquare)));
    EXPECT_TRUE(error.reason.isEmpty());
    EXPECT_TRUE(collisions.empty());
    EXPECT_TRUE(store.journal().entries().empty());
}

TEST_F(HBXCheckTest, nullIsNotAcceptable)
{
    EXPECT_FALSE(isAcceptable(nullptr));
    EXPECT_FALSE(error.reason.isEmpty());
}

TEST_F(HBXCheckTest, geometryIsAskedFor)
{
    for (const qint64 type : {15, 19, 22, 23, 24, 25, 74}) {
        EXPECT_FALSE(isAcceptable(placed(element(type)))) << type;
        EXPECT_EQ(error.reason, QStringLiteral("The draw object has no geometry."));
    }
}

struct BadOutline
{
    const char *outline;
    const char *reason;
};

class BadOutlineTest : public HBXCheckTest, public ::testing::WithParamInterface<BadOutline>
{};

TEST_P(BadOutlineTest, isRefusedWithItsReason)
{
    EXPECT_FALSE(isAcceptable(slab(GetParam().outline, "B1")));
    EXPECT_EQ(error.reason, QString::fromLatin1(GetParam().reason));
    ASSERT_EQ(store.journal().entries().size(), 1u);
    EXPECT_EQ(store.journal().entries()[0].kind, JournalEntry::kCheckRefused);
    EXPECT_EQ(store.journal().entries()[0].name, QStringLiteral("B1"));
    EXPECT_EQ(store.journal().entries()[0].reason, error.reason);
}

INSTANTIATE_TEST_SUITE_P(
    Outlines, BadOutlineTest,
    ::testing::Values(BadOutline{"POLYGON((0 0, 10 0, 10 10, 0 10))", "The outline of the draw object is open."},
                      BadOutline{"POLYGON((0 0, 10 0, 10 0, 10 10, 0 0))",
                                 "The outline of the draw object has an edge of no length."},
                      BadOutline{"POLYGON((0 0, 10 0, 5 0, 0 0))", "The outline of the draw object has no area."},
                      BadOutline{"POLYGON((0 0, 20 10, 20 0, 0 15, 0 0))",
                                 "The outline of the draw object crosses or overlaps itself."},
                      BadOutline{"POLYGON((0 0, 10 0, 10 10, 0 10, 0 0), (20 20, 30 20, 30 30, 20 20))",
                                 "A hole in the outline of the draw object is not inside it."}));

TEST_F(HBXCheckTest, aCurveOfNoLengthIsRefused)
{
    EXPECT_FALSE(isAcceptable(lineBar("LINESTRING(5 5, 5 5)")));
    EXPECT_EQ(error.reason, QStringLiteral("The curve of the draw object has no length."));
    EXPECT_FALSE(isAcceptable(wall("LINESTRING(5 5, 5 5)", 200.0)));
    EXPECT_EQ(error.reason, QStringLiteral("The curve of the draw object has no length."));
    EXPECT_TRUE(isAcceptable(lineBar("LINESTRING(0 0, 500 0)")));
}

TEST_F(HBXCheckTest, theSameAsAnEnteredOneIsRefusedWithItsId)
{
    IHBXElementDrawObj *first = slab(kSquare, "B1");
    IHBXElementDrawObj *second = slab("POLYGON((0.5 0, 4000 0, 4000 4000, 0 4000, 0.5 0))", "B2");
    EXPECT_FALSE(isAcceptable(second));
    ASSERT_EQ(collisions.size(), 1u);
    EXPECT_EQ(collisions.begin()->first, first->id());
    EXPECT_EQ(collisions.begin()->second, error.reason);
    EXPECT_EQ(error.reason,
              QStringLiteral("The draw object is the same as draw object %1 of \"B1\".").arg(first->id()));
}

TEST_F(HBXCheckTest, allCollisionsAreTold)
{
    IHBXElementDrawObj *first = slab(kSquare);
    IHBXElementDrawObj *second = slab(kSquare);
    EXPECT_FALSE(isAcceptable(slab(kSquare)));
    EXPECT_EQ(collisions.size(), 2u);
    EXPECT_EQ(collisions.count(first->id()) + collisions.count(second->id()), 2u);
}

TEST_F(HBXCheckTest, onlyEnteredObjectsCollide)
{
    IHBXElement *of = element(19);
    IHBXElementDrawObj *pending = drawObjs().createDrawObj(floor(), of, true);
    as<IHBXFaceSolidShape>(pending)->setPolygon(polygonOf(kSquare));
    IHBXElementDrawObj *object = slab(kSquare);
    EXPECT_TRUE(isAcceptable(object));
    EXPECT_FALSE(isAcceptable(pending)); // an entered one stands there
    object->remove();
    EXPECT_TRUE(isAcceptable(pending));
}

TEST_F(HBXCheckTest, aChangeOfPlaceIsSeenAtTheNextCheck)
{
    IHBXElementDrawObj *first = slab(kSquare);
    IHBXElementDrawObj *second = slab(kSquare);
    EXPECT_FALSE(isAcceptable(second));
    as<IHBXFaceSolidShape>(first)->setPolygon(polygonOf("POLYGON((90000 0, 94000 0, 94000 4000, 90000 0))"));
    EXPECT_TRUE(isAcceptable(second));
    as<IHBXFaceSolidShape>(first)->setPolygon(polygonOf(kSquare));
    EXPECT_FALSE(isAcceptable(second));
    first->remove();
    EXPECT_TRUE(isAcceptable(second));
}

TEST_F(HBXCheckTest, farAwayAndUnboundedPlacesAreNoTrouble)
{
    EXPECT_TRUE(isAcceptable(slab("POLYGON((1e12 1e12, 2e12 1e12, 2e12 2e12, 1e12 1e12))")));
    isAcceptable(slab("POLYGON((-1e300 0, 1e300 0, 1e300 1e300, -1e300 0))"));
}

/** Many bars in one outline, whose curves, places and texts are the same, nearly the same and not. */
class BarsOfOneOutlineTest : public HBXCheckTest
{
protected:
    struct Bar
    {
        IHBXElementDrawObj *object;
        vks::CRefPtr<vks::CCurve2d> curve; ///< null: none
        int text;
    };

    static constexpr int kBars = 200;

    Bar makeBar()
    {
        Bar bar{placed(of), nullptr, 0};
        as<IHBXFaceShape2D>(bar.object)->setPolygon(polygonOf(kSquare));
        change(bar);
        return bar;
    }
    void change(Bar &bar)
    {
        bar.text = static_cast<int>(random() % 2);
        bar.curve = makeCurve();
        bar.object->properties()->setString(L"BarInfo", QStringLiteral("C1%1@200").arg(bar.text), false);
        bar.object->properties()->setCurve(L"CurveData", bar.curve.get(), false);
    }
    /** On a grid of 0.4 mm, near the border between two cells of the index; every fifth bar has none. */
    vks::CRefPtr<vks::CCurve2d> makeCurve()
    {
        if (random() % 5 == 0)
            return nullptr;
        const double x = 3999.0 + static_cast<double>(random() % 6) * 0.4;
        const double y = static_cast<double>(random() % 6) * 0.4;
        const bool isTurned = random() % 2 == 0;
        const Point start(x, y);
        const Point end(x + 500.0, y);
        return vks::CRefPtr<vks::CCurve2d>(new vks::CLine2d(isTurned ? end : start, isTurned ? start : end));
    }
    /** The rule in full: compared with every other bar. */
    static bool areSame(const Bar &a, const Bar &b)
    {
        if (a.text != b.text || !a.curve != !b.curve)
            return false;
        return !a.curve || (a.curve->StartPoint().DistanceTo(b.curve->StartPoint()) <= 1.0 &&
                            a.curve->MidPoint().DistanceTo(b.curve->MidPoint()) <= 1.0 &&
                            a.curve->EndPoint().DistanceTo(b.curve->EndPoint()) <= 1.0);
    }
    void expectSameVerdicts(const std::vector<Bar> &bars)
    {
        std::size_t found = 0;
        for (const Bar &bar : bars) {
            isAcceptable(bar.object);
            found += collisions.size();
            for (const Bar &other : bars)
                EXPECT_EQ(collisions.count(other.object->id()) > 0, bar.object != other.object && areSame(bar, other));
        }
        EXPECT_GT(found, 0u);
    }

    IHBXElement *of = element(49);
    std::mt19937 random{7};
};

TEST_F(BarsOfOneOutlineTest, collideAsTheyWouldIfEachWereComparedWithAll)
{
    std::vector<Bar> bars;
    while (bars.size() < kBars)
        bars.push_back(makeBar());
    expectSameVerdicts(bars);
    for (int i = 0; i < kBars; i += 3)
        change(bars[static_cast<std::size_t>(i)]);
    expectSameVerdicts(bars);
    for (int i = 0; i < kBars / 2; ++i) {
        bars.back().object->remove();
        bars.pop_back();
    }
    expectSameVerdicts(bars);
}

TEST_F(BarsOfOneOutlineTest, collideWhenTheyComeFromAFile)
{
    std::vector<Bar> bars;
    while (bars.size() < kBars)
        bars.push_back(makeBar());
    std::vector<qint64> ids;
    ids.reserve(bars.size());
    for (const Bar &bar : bars)
        ids.push_back(bar.object->id());
    store.load(store.snapshot());
    for (std::size_t i = 0; i < bars.size(); ++i)
        bars[i].object = drawObjs().drawObjById(ids[i]);
    expectSameVerdicts(bars);
}

TEST_F(BarsOfOneOutlineTest, stayQuickHoweverManyTheyAre)
{
    constexpr int kMany = 3000;
    for (int i = 0; i < kMany; ++i) {
        Bar bar = makeBar();
        const vks::CRefPtr<vks::CLine2d> curve(new vks::CLine2d(Point(0, i * 10.0), Point(4000, i * 10.0)));
        bar.object->properties()->setCurve(L"CurveData", curve.get(), false);
        EXPECT_TRUE(isAcceptable(bar.object));
    }
}

TEST_F(HBXCheckTest, checksOfManyObjectsStayQuick)
{
    constexpr int kMany = 3000;
    IHBXElement *of = element(23);
    for (int i = 0; i < kMany; ++i) {
        IHBXElementDrawObj *bar = placed(of);
        as<IHBXLineShape2D>(bar)->setLine(
            vks::CRefPtr<vks::CLine2d>(new vks::CLine2d(Point(i * 10.0, 0), Point(i * 10.0, 500))));
        EXPECT_TRUE(isAcceptable(bar));
    }
}

} // namespace
} // namespace hbx::embedded

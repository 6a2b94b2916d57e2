#include "embedded/EmbeddedBuilding.h"

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

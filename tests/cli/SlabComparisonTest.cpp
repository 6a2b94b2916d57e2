#include "cli/SlabComparison.h"

#include "HouseFixture.h"

using namespace orvcad;

namespace {

class SlabComparisonTest : public HouseFixture
{
protected:
    static SlabComparison compare(const QByteArray &expected, const QByteArray &found)
    {
        const Project before = houseOf(expected);
        const Project after = houseOf(found);
        return compareSlabs(modelOf(before), floorOf(before, "F"), modelOf(after), floorOf(after, "F"));
    }
    static std::string deviations(const QByteArray &expected, const QByteArray &found)
    {
        return compare(expected, found).deviations.join('\n').toStdString();
    }
    /** A slab with bars in it; bars that lie in none are not read. */
    static QByteArray slabWithBars(const char *info, const char *line = "LINESTRING(0 500, 900 500)")
    {
        return QString(R"~({"name": "B1", "type": 19, "drawObjects": [{"key": "slab", "shape": {"kind": "face",
            "outline": "POLYGON((0 0, 900 0, 900 900, 0 900, 0 0))", "height": -120}}]},
            {"name": "SLJ", "type": 22, "drawObjects": [{"properties": {"BarInfo": "%1", "Type": 0, "Position": 1,
            "CurveData": "%2", "ReferenceCurve": "%2",
            "ReinforcementInfo": "slab,1;"}, "shape": {"kind": "face2d",
            "outline": "POLYGON((0 0, 900 0, 900 900, 0 900, 0 0))"}}]})~")
            .arg(QLatin1String(info), QLatin1String(line))
            .toUtf8();
    }

    const QByteArray b1 = slab("B1", "POLYGON((0 0, 900 0, 900 800, 0 800, 0 0))");
    const QByteArray b2 = slab("B2", "POLYGON((1000 0, 1900 0, 1900 800, 1000 800, 1000 0))");
};

TEST_F(SlabComparisonTest, slabsInAnotherOrderAndFromAnotherCornerAreTheSame)
{
    const SlabComparison comparison =
        compare(b1 + ',' + b2, b2 + ',' + slab("B1", "POLYGON((900 800, 0 800, 0 0, 900 0, 900 800))"));
    EXPECT_TRUE(comparison.isSame()) << comparison.deviations.join('\n').toStdString();
    EXPECT_EQ(comparison.text(), "Compared with the original: 2 members of slabs, nothing lost, added or moved");
    EXPECT_EQ(comparison.toJson(), (QJsonObject{{"compared", 2}, {"deviations", QJsonArray()}}));
}

TEST_F(SlabComparisonTest, slabThatIsGoneIsLostAndOneThatCameIsAdded)
{
    EXPECT_EQ(deviations(b1, b2), "lost: slab B1 (120, 3 m, around 450, 400)\n"
                                  "added: slab B2 (120, 3 m, around 1450, 400)");
    EXPECT_EQ(compare(b1, b2).text(),
              "Compared with the original: 1 member of slabs, 2 deviations\n"
              "  lost: slab B1 (120, 3 m, around 450, 400)\n  added: slab B2 (120, 3 m, around 1450, 400)");
}

TEST_F(SlabComparisonTest, twoAlikeAreNotOne)
{
    EXPECT_EQ(deviations(b1 + ',' + slab("B3", "POLYGON((0 0, 900 0, 900 800, 0 800, 0 0))", "2.9"), b1),
              "lost: slab B3 (120, 2.9 m, around 450, 400)");
}

TEST_F(SlabComparisonTest, otherElevationAndOtherOutlineAreTold)
{
    EXPECT_EQ(deviations(b1, slab("B1", "POLYGON((0 0, 900 0, 900 800, 0 800, 0 0))", "2.95")),
              "lost: slab B1 (120, 3 m, around 450, 400)\nadded: slab B1 (120, 2.95 m, around 450, 400)");
    EXPECT_EQ(deviations(b1, slab("B1", "POLYGON((0 0, 900 0, 900 802, 0 802, 0 0))")),
              "lost: slab B1 (120, 3 m, around 450, 400)\nadded: slab B1 (120, 3 m, around 450, 401)");
}

TEST_F(SlabComparisonTest, barsAreComparedByWhatTheySay)
{
    EXPECT_EQ(compare(slabWithBars("C10@200"), slabWithBars("C10@200")).compared, 2);
    EXPECT_TRUE(compare(slabWithBars("C10@200"), slabWithBars("C10@200")).isSame());
    EXPECT_FALSE(compare(slabWithBars("C10@200"), slabWithBars("C12@200")).isSame());
}

TEST_F(SlabComparisonTest, barsRunBothWaysAlongTheirDirection)
{
    const QByteArray bars = slabWithBars("C10@200");
    EXPECT_EQ(deviations(bars, slabWithBars("C10@200", "LINESTRING(900 500, 0 500)")), "");
    EXPECT_FALSE(compare(bars, slabWithBars("C10@200", "LINESTRING(500 0, 500 900)")).isSame());
    EXPECT_EQ(deviations(slabWithBars("C10@200", "LINESTRING(500 0, 500 900)"),
                         slabWithBars("C10@200", "LINESTRING(500 900, 500 0)")),
              "");
}

TEST_F(SlabComparisonTest, floorsWithoutSlabsAreTheSame)
{
    EXPECT_TRUE(compare(wall("Q1", "LINESTRING(0 0, 5000 0)"), column("K1", 0, 0)).isSame());
}

} // namespace

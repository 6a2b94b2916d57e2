#include "slab/SlabSameObject.h"

#include "slab/SlabSearchFixture.h"

#include <cmath>
#include <tuple>

using namespace slabs;
using shapes::Point;

namespace {

using SlabSameObjectTest = SlabSearchFixture;
using SameBoard = SlabSearchFixture;
using SameHole = SlabSearchFixture;
using SameForcedBar = SlabSearchFixture;
using SameStraddleForcedBar = SlabSearchFixture;
using SameNegativeForcedBar = SlabSearchFixture;

Point heading(double degrees)
{
    const double angle = degrees * shapes::kPi / 180.0;
    return {std::cos(angle), std::sin(angle)};
}

/** Two strips with a bridge at one end: what of it lies across the strips is in two pieces. */
shapes::PolygonPtr twoProngs()
{
    return shapes::polygon(
        {{{0, 0}, {1000, 0}, {1000, 1000}, {900, 1000}, {900, 300}, {100, 300}, {100, 1000}, {0, 1000}}});
}

} // namespace

TEST_F(SameBoard, equalOutlinesMatch)
{
    auto *slab = board(model, rectangle(0, 0, 5000, 4000));
    EXPECT_EQ(hits(board(recognised, rectangle(0, 0, 5000, 4000))), Objects{slab});
}

TEST_F(SameBoard, anElementOfTheModelItselfMatches)
{
    auto *slab = board(model, rectangle(0, 0, 5000, 4000));
    EXPECT_EQ(hits(slab), Objects{slab});
}

TEST_F(SameBoard, eachBoardThatMatchesIsFoundInTheOrderOfTheModel)
{
    auto *first = board(model, rectangle(0, 0, 5000, 4000));
    board(model, rectangle(0, 0, 5000, 3000));
    auto *second = board(model, rectangle(10, 0, 5000, 4000));
    EXPECT_EQ(hits(board(recognised, rectangle(0, 0, 5000, 4000))), (Objects{first, second}));
}

TEST_F(SameBoard, theSenseAndStartOfAnOutlineMeanNothing)
{
    board(model, shapes::polygon({{{5000, 4000}, {5000, 0}, {0, 0}, {0, 4000}}}));
    EXPECT_TRUE(finds(board(recognised, rectangle(0, 0, 5000, 4000))));
}

TEST_F(SameBoard, tenMillimetresMakeNoDifferenceAndTwentyDo)
{
    board(model, rectangle(0, 0, 5000, 4000));
    EXPECT_TRUE(finds(board(recognised, rectangle(0, 0, 5010, 4000))));
    EXPECT_TRUE(finds(board(recognised, rectangle(10, 10, 4980, 3980))));
    EXPECT_TRUE(finds(board(recognised, rectangle(0, 0, 5015, 4000))));
    EXPECT_FALSE(finds(board(recognised, rectangle(0, 0, 5016, 4000))));
    EXPECT_FALSE(finds(board(recognised, rectangle(0, 0, 5020, 4000))));
    EXPECT_FALSE(finds(board(recognised, rectangle(0, 0, 4980, 4000))));
}

TEST_F(SameBoard, oneLoopAndTwoDoNotMatchHoweverAlike)
{
    // A hole smaller than the tolerance of outlines, which alone would let it pass.
    board(model, shapes::polygon({shapes::box(0, 0, 5000, 4000), shapes::box(1000, 1000, 10, 10)}));
    EXPECT_FALSE(finds(board(recognised, rectangle(0, 0, 5000, 4000))));
    EXPECT_TRUE(
        finds(board(recognised, shapes::polygon({shapes::box(0, 0, 5000, 4000), shapes::box(1000, 1000, 10, 10)}))));
}

TEST_F(SameBoard, holesAtDifferentPlacesDoNotMatch)
{
    board(model, shapes::polygon({shapes::box(0, 0, 5000, 4000), shapes::box(1000, 1000, 500, 500)}));
    EXPECT_FALSE(
        finds(board(recognised, shapes::polygon({shapes::box(0, 0, 5000, 4000), shapes::box(3000, 1000, 500, 500)}))));
    EXPECT_TRUE(
        finds(board(recognised, shapes::polygon({shapes::box(0, 0, 5000, 4000), shapes::box(1010, 1000, 500, 500)}))));
}

TEST_F(SameBoard, moreThanThreeTimesTheAreaDoesNotMatchEvenIfTheyCoincide)
{
    // Strips so thin that they are the same within 15 mm whatever their width.
    board(model, rectangle(0, 0, 5000, 5));
    EXPECT_TRUE(finds(board(recognised, rectangle(0, 0, 5000, 15))));
    EXPECT_FALSE(finds(board(recognised, rectangle(0, 0, 5000, 15.1))));
    model.clearChildNodes();
    board(model, rectangle(0, 0, 5000, 15.1));
    EXPECT_FALSE(finds(board(recognised, rectangle(0, 0, 5000, 5)))); // the other way round
}

TEST_F(SameBoard, boardsSideBySideDoNotMatch)
{
    board(model, rectangle(0, 0, 5000, 4000));
    EXPECT_FALSE(finds(board(recognised, rectangle(5000, 0, 5000, 4000))));
}

TEST_F(SameBoard, boardsApartDoNotMatchEvenIfTheirBoxesOverlap)
{
    board(model, shapes::polygon({{{0, 0}, {5000, 0}, {5000, 1000}, {1000, 1000}, {1000, 5000}, {0, 5000}}}));
    EXPECT_FALSE(finds(board(recognised, rectangle(1500, 1500, 3000, 3000))));
}

TEST_F(SameBoard, aBoardUpToAWallMatchesOneUpToItsAxis)
{
    board(model, rectangle(0, 0, 3000, 3000));
    support<Model::Wall>(model, line({3000, 0}, {3000, 3000}), 200);
    EXPECT_TRUE(finds(board(recognised, rectangle(0, 0, 2900, 3000))));
    EXPECT_TRUE(finds(board(recognised, rectangle(0, 0, 3100, 3000))));
    EXPECT_FALSE(finds(board(recognised, rectangle(0, 0, 2880, 3000))));
}

TEST_F(SameBoard, aBoardUpToABeamMatchesOneUpToItsAxis)
{
    board(model, rectangle(0, 0, 3000, 3000));
    support<Model::Beam>(model, line({3000, 0}, {3000, 3000}), 200);
    EXPECT_TRUE(finds(board(recognised, rectangle(0, 0, 2900, 3000))));
}

TEST_F(SameBoard, theLargeFirstAndTheSmallFirstMatchAlike)
{
    board(model, rectangle(0, 0, 2900, 3000));
    support<Model::Wall>(model, line({3000, 0}, {3000, 3000}), 200);
    EXPECT_TRUE(finds(board(recognised, rectangle(0, 0, 3000, 3000))));
}

TEST_F(SameBoard, supportsThatAreNotInTheIndexTakeNothing)
{
    board(model, rectangle(0, 0, 3000, 3000));
    support<Model::Wall>(model, line({3000, 0}, {3000, 3000}), 200);
    auto *query = board(recognised, rectangle(0, 0, 2900, 3000));
    EXPECT_TRUE(finds(query, Types::BoardKind | Types::WallKind));
    EXPECT_FALSE(finds(query, Types::BoardKind));
}

TEST_F(SameBoard, supportsBesideTheQueryInItsOwnModelTakeNothing)
{
    board(model, rectangle(0, 0, 3000, 3000));
    support<Model::Wall>(recognised, line({3000, 0}, {3000, 3000}), 200);
    EXPECT_FALSE(finds(board(recognised, rectangle(0, 0, 2900, 3000))));
}

TEST_F(SameBoard, boardsThatShareLessThanAThirdOfTheSmallerDoNotMatchWhateverWallsCover)
{
    // Walls leave the common part of both boards alone, so that the net areas are the same.
    board(model, rectangle(0, 0, 1000, 1000));
    support<Model::Wall>(model, line({350, 0}, {350, 1000}), 700);
    support<Model::Wall>(model, line({1350, 0}, {1350, 1000}), 700);
    EXPECT_FALSE(finds(board(recognised, rectangle(700, 0, 1000, 1000)))); // 0.3 of either
    model.clearChildNodes();
    board(model, rectangle(0, 0, 1000, 1000));
    support<Model::Wall>(model, line({325, 0}, {325, 1000}), 650);
    support<Model::Wall>(model, line({1325, 0}, {1325, 1000}), 650);
    EXPECT_TRUE(finds(board(recognised, rectangle(650, 0, 1000, 1000)))); // 0.35 of either
}

TEST_F(SameBoard, aCommonPartInSeveralPiecesIsLeftToTheNetArea)
{
    // Two squares of 100 by 300 are less than a third of the strip, but no plain polygon.
    board(model, twoProngs());
    support<Model::Wall>(model, line({0, 300}, {1000, 300}), 600);
    support<Model::Wall>(model, line({0, 950}, {1000, 950}), 100);
    support<Model::Wall>(model, line({500, 600}, {500, 900}), 800);
    EXPECT_TRUE(finds(board(recognised, rectangle(0, 600, 1000, 300))));
}

TEST_F(SameBoard, aBoardThatIsAllSupportDoesNotMatchByNetArea)
{
    board(model, rectangle(0, 0, 1000, 200));
    support<Model::Wall>(model, line({0, 50}, {1000, 50}), 100);
    support<Model::Wall>(model, line({0, 150}, {1000, 150}), 100);
    EXPECT_FALSE(finds(board(recognised, rectangle(0, 0, 900, 200))));
}

TEST_F(SameBoard, cornersNearerThanAMillimetreAreOneInTheNetArea)
{
    // Differ by more than 15 mm without the wall, and by a spike that the repair takes away with it.
    board(model, shapes::polygon({{{0, 0}, {2900, 0}, {2900, 3000}, {1500.5, 3000}, {1500, 3000}, {0, 3000}}}));
    support<Model::Wall>(model, line({3000, 0}, {3000, 3000}), 200);
    EXPECT_TRUE(finds(board(recognised, rectangle(0, 0, 3000, 3000))));
}

TEST_F(SameBoard, missingAndBrokenOutlinesDoNotMatch)
{
    const auto bowTie = shapes::polygon({{{0, 0}, {3000, 3000}, {3000, 0}, {0, 3000}}});
    board(model, rectangle(0, 0, 3000, 3000));
    EXPECT_FALSE(finds(board(recognised, nullptr)));
    EXPECT_FALSE(finds(board(recognised, new vks::CPolygon)));
    EXPECT_FALSE(finds(board(recognised, bowTie)));
    EXPECT_FALSE(finds(board(recognised, rectangle(0, 0, 3000, 0))));
}

TEST_F(SameBoard, boardsThatCrossThemselvesAreComparedAsRepaired)
{
    const auto bowTie = [] { return shapes::polygon({{{0, 0}, {3000, 3000}, {3000, 0}, {0, 4000}}}); };
    board(model, bowTie());
    EXPECT_TRUE(finds(board(recognised, bowTie())));
}

TEST_F(SameBoard, arcsAreComparedExactly)
{
    board(model, shapes::circle({0, 0}, 3000));
    EXPECT_TRUE(finds(board(recognised, shapes::circle({10, 0}, 3000))));
    EXPECT_FALSE(finds(board(recognised, shapes::circle({20, 0}, 3000))));
}

TEST_F(SameBoard, theModelIsLeftAsItWas)
{
    auto *slab = board(model, rectangle(0, 0, 3000, 3000));
    auto *column = section<Model::Column>(model, rectangle(2900, 2900, 300, 300));
    auto *query = board(recognised, rectangle(0, 0, 2980, 3000));
    const auto texts = [&] { return slab->surface->ToText() + column->surface->ToText() + query->surface->ToText(); };
    const std::string before = texts();
    finds(query);
    EXPECT_EQ(texts(), before);
    EXPECT_EQ(column->surface->HolderCount(), 1);
}

TEST_F(SameHole, outlinesMatchWithinFifteenMillimetres)
{
    auto *hole = section<Model::BoardHole>(model, rectangle(1000, 1000, 800, 600));
    EXPECT_EQ(hits(section<Model::BoardHole>(recognised, rectangle(1000, 1000, 800, 600))), Objects{hole});
    EXPECT_TRUE(finds(section<Model::BoardHole>(recognised, rectangle(1000, 1000, 815, 600))));
    EXPECT_FALSE(finds(section<Model::BoardHole>(recognised, rectangle(1000, 1000, 816, 600))));
}

TEST_F(SameHole, aHoleUpToAWallMatchesOneUpToItsAxis)
{
    section<Model::BoardHole>(model, rectangle(0, 0, 1000, 1000));
    support<Model::Wall>(model, line({1000, 0}, {1000, 1000}), 200);
    EXPECT_TRUE(finds(section<Model::BoardHole>(recognised, rectangle(0, 0, 900, 1000))));
    EXPECT_FALSE(finds(section<Model::BoardHole>(recognised, rectangle(0, 0, 880, 1000))));
}

TEST_F(SameHole, neitherLoopsNorAreasAreComparedApartFromTheNetArea)
{
    // The column leaves a ring of the hole; the other one is drawn as that ring.
    section<Model::BoardHole>(model, rectangle(0, 0, 1000, 1000));
    section<Model::Column>(model, rectangle(100, 100, 800, 800));
    const auto ring = shapes::polygon({shapes::box(0, 0, 1000, 1000), shapes::box(100, 100, 800, 800)});
    EXPECT_TRUE(finds(section<Model::BoardHole>(recognised, ring)));
}

TEST_F(SameHole, missingOutlinesAndHolesThatAreAllSupportDoNotMatch)
{
    section<Model::BoardHole>(model, rectangle(0, 0, 1000, 100));
    support<Model::Wall>(model, line({0, 25}, {1000, 25}), 50);
    support<Model::Wall>(model, line({0, 75}, {1000, 75}), 50);
    EXPECT_FALSE(finds(section<Model::BoardHole>(recognised, rectangle(0, 0, 1000, 100))));
    EXPECT_FALSE(finds(section<Model::BoardHole>(recognised, nullptr)));
}

TEST_F(SameForcedBar, areasMatchWithinTenMillimetres)
{
    auto *bar = areaBar<Model::ForcedBar>(model, rectangle(0, 0, 4000, 3000));
    EXPECT_EQ(hits(areaBar<Model::ForcedBar>(recognised, rectangle(0, 0, 4000, 3000))), Objects{bar});
    EXPECT_TRUE(finds(areaBar<Model::ForcedBar>(recognised, rectangle(0, 0, 4010, 3000))));
    EXPECT_FALSE(finds(areaBar<Model::ForcedBar>(recognised, rectangle(0, 0, 4011, 3000))));
    EXPECT_FALSE(finds(areaBar<Model::ForcedBar>(recognised, nullptr)));
}

TEST_F(SameForcedBar, supportsTakeNothingFromTheArea)
{
    areaBar<Model::ForcedBar>(model, rectangle(0, 0, 3000, 3000));
    support<Model::Wall>(model, line({3000, 0}, {3000, 3000}), 200);
    EXPECT_FALSE(finds(areaBar<Model::ForcedBar>(recognised, rectangle(0, 0, 2900, 3000))));
}

TEST_F(SameForcedBar, layerAndRowsAreEqual)
{
    areaBar<Model::ForcedBar>(model, rectangle(0, 0, 4000, 3000))->forcedType = 1;
    auto *query = areaBar<Model::ForcedBar>(recognised, rectangle(0, 0, 4000, 3000));
    query->forcedType = 2;
    EXPECT_FALSE(finds(query));
    query->forcedType = 1;
    EXPECT_TRUE(finds(query));
    query->rowNumber = 2;
    EXPECT_FALSE(finds(query));
}

TEST_F(SameForcedBar, directionsMatchWithinTenDegreesEitherWayRound)
{
    areaBar<Model::ForcedBar>(model, rectangle(0, 0, 4000, 3000), heading(0));
    for (const double degrees : {0.0, 10.0, -10.0, 170.0, 180.0, 190.0})
        EXPECT_TRUE(finds(areaBar<Model::ForcedBar>(recognised, rectangle(0, 0, 4000, 3000), heading(degrees))));
    for (const double degrees : {11.0, -11.0, 90.0, 169.0, 191.0})
        EXPECT_FALSE(finds(areaBar<Model::ForcedBar>(recognised, rectangle(0, 0, 4000, 3000), heading(degrees))));
}

TEST_F(SameStraddleForcedBar, areaRowsAndDirectionAreCompared)
{
    auto *bar = areaBar<Model::StraddleForcedBar>(model, rectangle(0, 0, 4000, 3000));
    const auto ask = [&](double width, double degrees, int rows) {
        return hits(
            areaBar<Model::StraddleForcedBar>(recognised, rectangle(0, 0, width, 3000), heading(degrees), rows));
    };
    EXPECT_EQ(ask(4000, 0, 1), Objects{bar});
    EXPECT_EQ(ask(4010, 190, 1), Objects{bar});
    EXPECT_EQ(ask(4011, 0, 1), Objects{});
    EXPECT_EQ(ask(4000, 11, 1), Objects{});
    EXPECT_EQ(ask(4000, 0, 2), Objects{});
}

TEST_F(SameStraddleForcedBar, stretchesLabelsAndTextsAreNotCompared)
{
    areaBar<Model::StraddleForcedBar>(model, rectangle(0, 0, 4000, 3000));
    auto *query = areaBar<Model::StraddleForcedBar>(recognised, rectangle(0, 0, 4000, 3000));
    query->leftStretchLength = 900;
    query->labelPosition = 1;
    query->barInfo = "C12@150";
    EXPECT_TRUE(finds(query));
}

TEST_F(SameStraddleForcedBar, aBarOfOneSlabIsNotOneAcrossSlabs)
{
    areaBar<Model::StraddleForcedBar>(model, rectangle(0, 0, 4000, 3000));
    auto *ofOneSlab = areaBar<Model::ForcedBar>(recognised, rectangle(0, 0, 4000, 3000));
    EXPECT_EQ(Search(&model, kAll).find(ofOneSlab->shape(), kAll), Objects{});
}

TEST_F(SameNegativeForcedBar, linesThatShareAStretchMatch)
{
    auto *bar = topBar(model, line({0, 0}, {3000, 0}), 900, 900);
    EXPECT_EQ(hits(topBar(recognised, line({0, 0}, {3000, 0}), 800, 1000)), Objects{bar});
    EXPECT_TRUE(finds(topBar(recognised, line({4000, 1}, {2000, 1}), 900, 900)));
    EXPECT_FALSE(finds(topBar(recognised, line({0, 1.5}, {3000, 1.5}), 900, 900)));
    EXPECT_FALSE(finds(topBar(recognised, line({1000, -1000}, {1000, 1000}), 900, 900)));
    EXPECT_FALSE(finds(topBar(recognised, nullptr, 900, 900)));
}

TEST_F(SameNegativeForcedBar, rowsAreEqual)
{
    topBar(model, line({0, 0}, {3000, 0}), 900, 900, 1);
    EXPECT_FALSE(finds(topBar(recognised, line({0, 0}, {3000, 0}), 900, 900, 2)));
}

TEST_F(SameNegativeForcedBar, leftStretchesOnBothSidesOfAHalfDoNotMatchWhereTheRightOneIsAbove)
{
    topBar(model, line({0, 0}, {3000, 0}), 0.4, 900);
    EXPECT_FALSE(finds(topBar(recognised, line({0, 0}, {3000, 0}), 0.6, 900)));
    EXPECT_TRUE(finds(topBar(recognised, line({0, 0}, {3000, 0}), 0.4, 0.6)));
}

namespace {

/** A top bar along x (true) or along y, with what it reaches to: 0 left, 1 right, 2 both, in the usual sense. */
struct ReachCase
{
    bool alongX;
    double left;
    double right;
    int reach;
};

// Bars along x have their left and right exchanged, those along y do not.
constexpr ReachCase kReaches[] = {
    {true, 0.0, 900, 0},  {true, 0.5, 900, 0},   {true, -0.5, 900, 0},  {true, 0.4, 0.4, 0},   {true, 900, 0.0, 1},
    {true, 900, 0.5, 1},  {true, 900, -0.5, 1},  {true, 900, 900, 2},   {true, 0.51, 0.51, 2}, {true, -0.51, 900, 2},
    {true, 900, -900, 2}, {false, 0.0, 900, 1},  {false, 0.5, 900, 1},  {false, -0.5, 900, 1}, {false, 0.4, 0.4, 1},
    {false, 900, 0.0, 0}, {false, 900, 0.5, 0},  {false, 900, -0.5, 0}, {false, 900, 900, 2},  {false, 0.51, 0.51, 2},
    {false, 900, 0.6, 2}, {false, -0.51, 1.0, 2}};

CurvePtr lineOf(const ReachCase &bar)
{
    return CurvePtr(new vks::CLine2d({0, 0}, bar.alongX ? Point(3000, 0) : Point(0, 3000)));
}

} // namespace

TEST_F(SameNegativeForcedBar, barsOnOneLineMatchWhereTheyReachToTheSameSide)
{
    for (const ReachCase &one : kReaches)
        for (const ReachCase &other : kReaches) {
            if (one.alongX != other.alongX)
                continue;
            model.clearChildNodes();
            topBar(model, lineOf(one), one.left, one.right);
            EXPECT_EQ(finds(topBar(recognised, lineOf(other), other.left, other.right)), one.reach == other.reach)
                << one.left << ' ' << one.right << " and " << other.left << ' ' << other.right;
        }
}

TEST_F(SameNegativeForcedBar, aBarTurnedAroundReachesToItsOtherSide)
{
    topBar(model, line({0, 0}, {0, 3000}), 0, 900); // upwards: to its right
    EXPECT_TRUE(finds(topBar(recognised, line({0, 3000}, {0, 0}), 900, 0)));
    EXPECT_FALSE(finds(topBar(recognised, line({0, 3000}, {0, 0}), 0, 900)));
}

TEST_F(SlabSameObjectTest, passingOfBeamsStays)
{
    auto *beam = support<Model::Beam>(model, line({0, 0}, {5000, 0}), 300);
    auto *other = support<Model::Beam>(model, line({2000, -1000}, {2000, 1000}), 300);
    support<Model::Beam>(model, line({0, 9000}, {5000, 9000}), 300);
    const Search search(&model, kAll);
    auto *query = board(recognised, rectangle(0, 0, 5000, 5000));
    EXPECT_EQ(search.find(query->shape(), kAll), (Objects{beam, other}));
    EXPECT_EQ(search.find(query->shape(), Types::BeamKind), (Objects{beam, other}));
    auto *unlike = support<Model::Wall>(recognised, line({0, 1}, {9000, 1}), 100);
    EXPECT_EQ(search.find(unlike->shape(), kAll), (Objects{beam, other}));
}

TEST_F(SlabSameObjectTest, elementsOfKindsWithoutATestAreNeverTheSame)
{
    auto *wall = support<Model::Wall>(model, line({0, 0}, {5000, 0}), 200);
    auto *column = section<Model::Column>(model, rectangle(0, 0, 400, 400));
    auto *raft = section<Model::Raft>(model, rectangle(0, 0, 5000, 5000));
    auto *raftBar = areaBar<Model::RaftMainForcedBar>(model, rectangle(0, 0, 5000, 5000));
    auto *raftStraddle = areaBar<Model::RaftMainStraddleForcedBar>(model, rectangle(0, 0, 5000, 5000));
    auto *raftTopBar = addWith<Model::RaftNegativeForcedBar>(line({0, 0}, {5000, 0}));
    auto *net = addWith<Model::AxisNet>(rectangle(0, 0, 5000, 5000));
    const Search search(&model, kAll);
    for (const Object *each :
         std::initializer_list<const Object *>{wall, column, raft, raftBar, raftStraddle, raftTopBar, net})
        EXPECT_EQ(search.find(each->shape(), kAll), Objects{}) << each->type();
}

TEST_F(SlabSameObjectTest, aKindThatTextOverwroteIsWhatTheTestGoesBy)
{
    auto *column = addWith<Model::Column>(rectangle(0, 0, 5000, 5000));
    auto *query = board(recognised, rectangle(0, 0, 5000, 5000));
    Access::setType(*column, Types::BoardKind); // said to be a board, made as a column
    EXPECT_EQ(hits(query), Objects{});
    Access::setType(*column, Types::BeamKind);
    EXPECT_EQ(Search(&model, kAll).find(query->shape(), kAll), Objects{column});
}

TEST_F(SlabSameObjectTest, kindsWithoutATestPassByTheLowByteOfTheirNumber)
{
    auto *column = addWith<Model::Column>(rectangle(0, 0, 5000, 5000));
    auto *query = board(recognised, rectangle(0, 0, 5000, 5000));
    for (const int kind : {0x101, 0x7F01}) {
        Access::setType(*column, kind);
        EXPECT_EQ(Search(&model, -1).find(query->shape(), -1), Objects{column}) << kind;
    }
    for (const int kind : {2, 3, 5, 128, 255, 256, 512, 0x102}) {
        Access::setType(*column, kind);
        EXPECT_EQ(Search(&model, -1).find(query->shape(), -1), Objects{}) << kind;
    }
}

TEST_F(SlabSameObjectTest, theQueryIsOfTheClassOfTheHit)
{
    const auto outline = [] { return rectangle(0, 0, 5000, 5000); };
    auto *slab = board(model, outline());
    auto *hole = section<Model::BoardHole>(model, outline());
    auto *bar = areaBar<Model::ForcedBar>(model, outline());
    auto *straddle = areaBar<Model::StraddleForcedBar>(model, outline());
    const Search search(&model, kAll);
    EXPECT_EQ(search.find(board(recognised, outline())->shape(), kAll), Objects{slab});
    EXPECT_EQ(search.find(section<Model::BoardHole>(recognised, outline())->shape(), kAll), Objects{hole});
    EXPECT_EQ(search.find(areaBar<Model::ForcedBar>(recognised, outline())->shape(), kAll), Objects{bar});
    EXPECT_EQ(search.find(areaBar<Model::StraddleForcedBar>(recognised, outline())->shape(), kAll), Objects{straddle});
    EXPECT_EQ(search.find(section<Model::Raft>(recognised, outline())->shape(), kAll), Objects{});
}

TEST_F(SlabSameObjectTest, theMaskOfTheFindStandsInFrontOfTheTest)
{
    board(model, rectangle(0, 0, 5000, 5000));
    auto *query = board(recognised, rectangle(0, 0, 5000, 5000));
    EXPECT_EQ(Search(&model, kAll).find(query->shape(), Types::BoardHoleKind | Types::ColumnKind), Objects{});
}

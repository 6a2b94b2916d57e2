#include "HostContract.h"

using namespace host_contract;

TEST_P(HostLinkContract, beamThatIsLinkedToNothingIsItsOwnHead)
{
    for (const qint64 type : {15, 17, 18, 47}) {
        IHBXElementDrawObj &beam = placed(type);
        EXPECT_EQ(beam.chainHead(), &beam) << type;
        EXPECT_EQ(beam.nextInChain(), nullptr) << type;
    }
}

TEST_P(HostLinkContract, otherTypesAndNewBeamsHaveNoHead)
{
    for (const qint64 type : {0, 19, 25, 52, 1003})
        EXPECT_EQ(placed(type).chainHead(), nullptr) << type;
    EXPECT_EQ(makeDrawObj(makeElement(15)).chainHead(), nullptr);
}

TEST_P(HostLinkContract, chainHasOneHeadAndIsWalkedLinkByLink)
{
    const auto [a, b, c] = beams<3>();
    b->linkNext(c); // from the end of the chain to its start, as the writers do
    a->linkNext(b);
    for (IHBXElementDrawObj *link : {a, b, c})
        EXPECT_EQ(link->chainHead(), a);
    EXPECT_EQ(a->nextInChain(), b);
    EXPECT_EQ(b->nextInChain(), c);
    EXPECT_EQ(c->nextInChain(), nullptr);
}

TEST_P(HostLinkContract, linkToNullEndsTheChain)
{
    const auto [a, b] = beams<2>();
    a->linkNext(b);
    a->linkNext(nullptr);
    EXPECT_EQ(a->nextInChain(), nullptr);
    EXPECT_EQ(a->chainHead(), a);
    EXPECT_EQ(b->chainHead(), b);
}

TEST_P(HostLinkContract, newLinkTakesThePlaceOfTheOldOne)
{
    const auto [a, b, c] = beams<3>();
    a->linkNext(b);
    a->linkNext(c);
    EXPECT_EQ(a->nextInChain(), c);
    EXPECT_EQ(c->chainHead(), a);
    EXPECT_EQ(b->chainHead(), b);
}

TEST_P(HostLinkContract, linkThatWouldCloseARingChangesNothing)
{
    const auto [a, b, c] = beams<3>();
    a->linkNext(a);
    EXPECT_EQ(a->nextInChain(), nullptr);
    a->linkNext(b);
    b->linkNext(c);
    c->linkNext(a);
    b->linkNext(a);
    EXPECT_EQ(c->nextInChain(), nullptr);
    EXPECT_EQ(b->nextInChain(), c);
    EXPECT_EQ(c->chainHead(), a);
}

TEST_P(HostLinkContract, onlyBeamsOfOneElementAreLinked)
{
    IHBXElement &column = makeElement(25);
    IHBXElementDrawObj &first = placed(column);
    first.linkNext(&placed(column));
    EXPECT_EQ(first.nextInChain(), nullptr);
    IHBXElementDrawObj &beam = placed(15);
    beam.linkNext(&placed(15)); // of another element
    EXPECT_EQ(beam.nextInChain(), nullptr);
}

TEST_P(HostLinkContract, onlyOpeningsStandInWalls)
{
    IHBXElementDrawObj &column = placed(25);
    column.attachTo(&placed(1003));
    EXPECT_EQ(column.parent(), nullptr);
    IHBXElementDrawObj &door = placed(4);
    door.attachTo(&placed(19));
    EXPECT_EQ(door.parent(), nullptr);
}

TEST_P(HostLinkContract, removedLinkIsOutOfItsChain)
{
    const auto [a, b, c] = beams<3>();
    a->linkNext(b);
    b->linkNext(c);
    c->remove();
    EXPECT_EQ(b->nextInChain(), nullptr);
    b->remove();
    EXPECT_EQ(a->nextInChain(), nullptr);
    EXPECT_EQ(a->chainHead(), a);
}

TEST_P(HostLinkContract, removedHeadLeavesTheRestAChain)
{
    const auto [a, b, c] = beams<3>();
    a->linkNext(b);
    b->linkNext(c);
    a->remove();
    EXPECT_EQ(b->chainHead(), b);
    EXPECT_EQ(c->chainHead(), b);
}

TEST_P(HostLinkContract, openingTellsTheWallThatItIsAttachedTo)
{
    IHBXElementDrawObj &wall = placed(1003);
    IHBXElementDrawObj &door = placed(4);
    EXPECT_EQ(door.parent(), nullptr);
    door.attachTo(&wall);
    EXPECT_EQ(door.parent(), &wall);
    EXPECT_EQ(wall.parent(), nullptr);
}

TEST_P(HostLinkContract, attachmentIsReplacedByAnotherAndEndedByNull)
{
    IHBXElementDrawObj &door = placed(4);
    IHBXElementDrawObj &first = placed(1003);
    IHBXElementDrawObj &second = placed(1003);
    door.attachTo(&first);
    door.attachTo(&second);
    EXPECT_EQ(door.parent(), &second);
    door.attachTo(nullptr);
    EXPECT_EQ(door.parent(), nullptr);
}

TEST_P(HostLinkContract, newOpeningIsAttachedBeforeItIsEntered)
{
    IHBXElementDrawObj &wall = placed(0);
    IHBXElementDrawObj &window = makeDrawObj(makeElement(5));
    window.attachTo(&wall);
    drawObjs().addDrawObj(&window);
    EXPECT_EQ(window.parent(), &wall);
}

TEST_P(HostLinkContract, holeTellsTheSlabThatItIsAttachedTo)
{
    IHBXElementDrawObj &slab = placed(19);
    IHBXElementDrawObj &hole = placed(24);
    hole.attachTo(&slab);
    EXPECT_EQ(hole.parent(), &slab);
}

TEST_P(HostLinkContract, openingOfARemovedWallIsAttachedToNothing)
{
    IHBXElementDrawObj &wall = placed(1003);
    IHBXElementDrawObj &door = placed(4);
    door.attachTo(&wall);
    wall.remove();
    EXPECT_EQ(door.parent(), nullptr);
    EXPECT_EQ(drawObjs().drawObjById(door.id()), &door);
}

TEST_P(HostLinkContract, wallOutlivesItsRemovedOpening)
{
    IHBXElementDrawObj &wall = placed(1003);
    IHBXElementDrawObj &door = placed(4);
    door.attachTo(&wall);
    door.remove();
    EXPECT_EQ(drawObjs().drawObjById(wall.id()), &wall);
    wall.remove();
}

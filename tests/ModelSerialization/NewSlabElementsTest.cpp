#include "ModelSerialization/NewSlabElements.h"

#include <gtest/gtest.h>

using namespace slabhost;

namespace {

using Model = ORVCADBoardLocalModel_Sample;

/** The identities that its elements were given, in their order. */
template <typename Element> QString numbersOf(const std::vector<const Element *> &elements)
{
    QString numbers;
    for (const Element *element : elements)
        numbers += QString::number(element->recongnizedID.data1) + ' ';
    return numbers;
}

template <typename Element> Element *add(cv::Object_AI &parent, uint number)
{
    auto *element = new Element(&parent);
    element->recongnizedID = QUuid(number, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
    return element;
}

TEST(NewSlabElementsTest, elementsOfAClassStandInTheOrderOfTheChildren)
{
    Model local;
    add<Model::Board>(local, 1);
    add<Model::Raft>(local, 2);
    add<Model::Board>(local, 3);
    add<Model::BoardHole>(local, 4);
    add<Model::ForcedBar>(local, 5);
    add<Model::StraddleForcedBar>(local, 6);
    add<Model::NegativeForcedBar>(local, 7);
    add<Model::RaftMainForcedBar>(local, 8);
    add<Model::RaftMainStraddleForcedBar>(local, 9);
    add<Model::RaftNegativeForcedBar>(local, 10);
    add<Model::ForcedBar>(local, 11);

    const NewSlabElements elements(local);
    EXPECT_EQ(numbersOf(elements.boards), "1 3 ");
    EXPECT_EQ(numbersOf(elements.rafts), "2 ");
    EXPECT_EQ(numbersOf(elements.holes), "4 ");
    EXPECT_EQ(numbersOf(elements.forcedBars), "5 11 ");
    EXPECT_EQ(numbersOf(elements.straddleForcedBars), "6 ");
    EXPECT_EQ(numbersOf(elements.negativeForcedBars), "7 ");
    EXPECT_EQ(numbersOf(elements.raftMainForcedBars), "8 ");
    EXPECT_EQ(numbersOf(elements.raftMainStraddleForcedBars), "9 ");
    EXPECT_EQ(numbersOf(elements.raftNegativeForcedBars), "10 ");
}

TEST(NewSlabElementsTest, whatTheHostHasIsPassedOver)
{
    Model local;
    add<Model::Board>(local, 1)->elementId = 1;
    add<Model::Board>(local, 2)->elementId = 0;
    add<Model::Board>(local, 3)->elementId = -1;
    add<Model::NegativeForcedBar>(local, 4)->elementId = 7;
    const NewSlabElements elements(local);
    EXPECT_EQ(numbersOf(elements.boards), "2 3 ");
    EXPECT_EQ(numbersOf(elements.negativeForcedBars), "");
}

TEST(NewSlabElementsTest, supportsAxisNetsAndOtherObjectsArePassedOver)
{
    Model local;
    add<Model::Beam>(local, 1);
    add<Model::Wall>(local, 2);
    add<Model::Column>(local, 3);
    add<Model::AxisNet>(local, 4);
    new cv::Object_AI(&local);
    const NewSlabElements elements(local);
    EXPECT_TRUE(elements.boards.empty() && elements.rafts.empty() && elements.holes.empty());
    EXPECT_TRUE(elements.forcedBars.empty() && elements.straddleForcedBars.empty());
    EXPECT_TRUE(elements.negativeForcedBars.empty() && elements.raftMainForcedBars.empty());
    EXPECT_TRUE(elements.raftMainStraddleForcedBars.empty() && elements.raftNegativeForcedBars.empty());
}

TEST(NewSlabElementsTest, elementsBelowOthersStandBehindThose)
{
    Model local;
    auto *slab = add<Model::Board>(local, 1);
    add<Model::Board>(*slab, 2);
    add<Model::Board>(local, 3);
    EXPECT_EQ(numbersOf(NewSlabElements(local).boards), "1 3 2 ");
}

} // namespace

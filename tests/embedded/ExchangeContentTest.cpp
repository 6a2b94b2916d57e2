#include "platform/embedded/ExchangeContent.h"

#include "embedded/ExchangeDocuments.h"

using hbx::embedded::DrawObjRecord;
using hbx::embedded::ExchangeContent;
using hbx::embedded::ProjectRecord;

namespace {

// Ids of the small building: region 1, floors 2 and 26, elements 3 to 13, draw objects 14 to 25; the beams are 16 and 17,
// the slab is 18, the object with a unit 21 and its child 22.
class ExchangeContentTest : public ::testing::Test
{
protected:
    const DrawObjRecord &drawObj(qint64 id) { return project.drawObjs[static_cast<std::size_t>(id - 14)]; }

    ProjectRecord project = exchangetest::recordOf(exchangetest::kSmallBuilding);
};

} // namespace

TEST_F(ExchangeContentTest, recordsStandUnderTheirOwners)
{
    const ExchangeContent content(project);
    EXPECT_EQ(content.floorsOf(1).size(), 2U);
    EXPECT_EQ(content.elementsOf(2).size(), 10U) << "all but the unit";
    EXPECT_TRUE(content.elementsOf(26).empty());
    ASSERT_EQ(content.unitsOf(9).size(), 1U);
    EXPECT_EQ(content.unitsOf(9)[0]->id, 10);
    EXPECT_EQ(content.drawObjsOf(5).size(), 2U);
    ASSERT_EQ(content.childrenOf(21).size(), 1U);
    EXPECT_EQ(content.childrenOf(21)[0]->id, 22);
    EXPECT_TRUE(content.drawObjsOf(10).empty()) << "its object is a child";
}

TEST_F(ExchangeContentTest, aPositionCountsWithinTheElement)
{
    const ExchangeContent content(project);
    EXPECT_EQ(content.positionOf(16), 0);
    EXPECT_EQ(content.positionOf(17), 1);
}

TEST_F(ExchangeContentTest, recordsAreFoundById)
{
    const ExchangeContent content(project);
    EXPECT_EQ(content.element(3), &project.elements[0]);
    EXPECT_EQ(content.drawObj(14), &project.drawObjs[0]);
    EXPECT_EQ(content.element(14), nullptr);
    EXPECT_EQ(content.drawObj(0), nullptr);
}

TEST_F(ExchangeContentTest, keysAreThoseOfTheFile)
{
    const ExchangeContent content(project);
    EXPECT_EQ(content.keyOf(drawObj(18)), QString("slab"));
    EXPECT_EQ(content.keyOfId("18"), QString("slab"));
    EXPECT_EQ(content.keyOf(drawObj(14)), QString()) << "nobody refers to it";
    EXPECT_FALSE(content.keyOfId("14"));
    EXPECT_FALSE(content.keyOfId("4711"));
    EXPECT_FALSE(content.keyOfId("slab"));
}

TEST_F(ExchangeContentTest, whoIsReferredToGetsAKeyThatNobodyHas)
{
    project.drawObjs[4].key.clear();
    project.drawObjs[0].key = "object-18";
    const ExchangeContent content(project);
    EXPECT_EQ(content.keyOf(drawObj(18)), QString("object-18'"));
}

TEST_F(ExchangeContentTest, theOrderOfCreationIsToldOnlyWhereItIsNotThatOfTheFile)
{
    EXPECT_TRUE(ExchangeContent(project).creationOrderOf(2).isEmpty());
    project.drawObjs[11].elementId = 3; // the last one made stands with the first element
    const QHash<qint64, int> order = ExchangeContent(project).creationOrderOf(2);
    EXPECT_EQ(order.size(), 12);
    EXPECT_EQ(order.value(14), 0);
    EXPECT_EQ(order.value(25), 11);
}

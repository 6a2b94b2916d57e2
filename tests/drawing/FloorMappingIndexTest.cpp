#include "drawing/FloorMappingIndex.h"

#include <gmock/gmock.h>

#include <vector>

using drawing::FloorMappingIndex;
using drawing::FloorMappingList;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::vector<qint64> numbersOf(const FloorMappingIndex::Entries &entries)
{
    std::vector<qint64> numbers;
    for (const FloorMappingIndex::Entry &entry : entries)
        numbers.push_back(entry.number);
    return numbers;
}

/** Records 1 and 3 of floor F1 of region 7, 5 of F2 there, 8 of F1 of region 9. */
class FloorMappingIndexTest : public testing::Test
{
protected:
    FloorMappingIndexTest()
    {
        put(1, 7, "F1", {"plan", "beams"});
        put(3, 7, "F1", {"plan"});
        put(5, 7, "F2", {"beams"});
        put(8, 9, "F1", {"plan", "plan"});
        index.build(list);
    }
    void put(qint64 number, qint64 region, const char *floor, const QStringList &drawings)
    {
        list.insert(number, std::make_shared<ORVCADDrawingFloorMapping>(
                                ORVCADDrawingFloorMapping{region, QString::fromUtf8(floor), drawings}));
    }
    FloorMappingIndex::Entry entry(qint64 number) const { return {number, list.value(number).get()}; }

    FloorMappingList list;
    FloorMappingIndex index;
};

TEST_F(FloorMappingIndexTest, recordsStandInListOrderUnderEachOfTheirKeys)
{
    EXPECT_THAT(numbersOf(index.ofFloor(7, "F1")), ElementsAre(1, 3));
    EXPECT_THAT(numbersOf(index.ofRegion(7)), ElementsAre(1, 3, 5));
    EXPECT_THAT(numbersOf(index.ofDrawing("plan")), ElementsAre(1, 3, 8));
    EXPECT_EQ(index.ofFloor(9, "F1").first().record, list.value(8).get());
}

TEST_F(FloorMappingIndexTest, unknownKeysHaveNoRecords)
{
    EXPECT_THAT(numbersOf(index.ofFloor(9, "F2")), IsEmpty());
    EXPECT_THAT(numbersOf(index.ofRegion(1)), IsEmpty());
    EXPECT_THAT(numbersOf(index.ofDrawing("Plan")), IsEmpty());
    EXPECT_THAT(numbersOf(index.ofDrawing(QString())), IsEmpty());
}

TEST_F(FloorMappingIndexTest, recordHoldsItsDrawingsAlone)
{
    EXPECT_TRUE(index.holds(1, "beams"));
    EXPECT_FALSE(index.holds(3, "beams"));
    EXPECT_FALSE(index.holds(2, "plan"));
    EXPECT_FALSE(index.holds(1, "section"));
}

TEST_F(FloorMappingIndexTest, drawingThatARecordNamesTwiceFindsItOnce)
{
    EXPECT_THAT(numbersOf(index.ofDrawing("plan")), ElementsAre(1, 3, 8));
    index.addDrawing(entry(8), "plan");
    EXPECT_THAT(numbersOf(index.ofDrawing("plan")), ElementsAre(1, 3, 8));
}

TEST_F(FloorMappingIndexTest, drawingAddedToAnEarlyRecordStandsInItsPlace)
{
    index.addDrawing(entry(3), "beams");
    EXPECT_THAT(numbersOf(index.ofDrawing("beams")), ElementsAre(1, 3, 5));
    index.removeDrawing(entry(1), "beams");
    EXPECT_THAT(numbersOf(index.ofDrawing("beams")), ElementsAre(3, 5));
}

TEST_F(FloorMappingIndexTest, removedRecordIsFoundUnderNoKey)
{
    index.remove(entry(3));
    EXPECT_THAT(numbersOf(index.ofFloor(7, "F1")), ElementsAre(1));
    EXPECT_THAT(numbersOf(index.ofRegion(7)), ElementsAre(1, 5));
    EXPECT_THAT(numbersOf(index.ofDrawing("plan")), ElementsAre(1, 8));
    EXPECT_FALSE(index.holds(3, "plan"));
}

TEST_F(FloorMappingIndexTest, removingWhatIsNotThereChangesNothing)
{
    index.remove(entry(3));
    index.remove(entry(3));
    index.removeDrawing(entry(5), "section");
    EXPECT_THAT(numbersOf(index.ofRegion(7)), ElementsAre(1, 5));
}

TEST_F(FloorMappingIndexTest, buildingForgetsWhatWasThereBefore)
{
    list.remove(1);
    index.build(list);
    EXPECT_THAT(numbersOf(index.ofRegion(7)), ElementsAre(3, 5));
    index.build({});
    EXPECT_THAT(numbersOf(index.ofRegion(7)), IsEmpty());
}

} // namespace

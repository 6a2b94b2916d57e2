#include "platform/embedded/HBXModel.h"

#include "embedded/EmbeddedBuilding.h"

namespace hbx::embedded {
namespace {

class HBXModelTest : public EmbeddedBuilding
{};

TEST_F(HBXModelTest, bracketsNestByKey)
{
    model().beginBatch("outer", true);
    model().beginBatch("inner", true);
    model().beginBatch("outer", true);
    model().endBatch("unknown");
    EXPECT_EQ(store.openBatches(), (std::vector<std::string>{"outer", "inner", "outer"}));
    model().endBatch("outer");
    EXPECT_EQ(store.openBatches(), (std::vector<std::string>{"outer", "inner"}));
    model().endBatch("inner");
    model().endBatch("outer");
    EXPECT_TRUE(store.openBatches().empty());
    const auto &entries = store.journal().entries();
    ASSERT_EQ(entries.size(), 6u);
    EXPECT_EQ(entries[0].kind, JournalEntry::kBracketOpened);
    EXPECT_EQ(entries[0].name, QStringLiteral("outer"));
    EXPECT_EQ(entries[5].kind, JournalEntry::kBracketClosed);
}

TEST_F(HBXModelTest, changesOutsideABracketAreTaken)
{
    EXPECT_NE(element(19), nullptr);
    model().refresh(0);
    EXPECT_EQ(elements().count(), 1);
}

TEST_F(HBXModelTest, newIdsStandAboveAllThatWereLoaded)
{
    ProjectRecord record = emptyHouse();
    record.nextId = 1; // which is wrong
    store.load(record);
    EXPECT_EQ(element(19)->id(), 4);
}

TEST_F(HBXModelTest, floorsOfSeveralRegionsAreSavedInIdOrder)
{
    ProjectRecord record = emptyHouse();
    record.regions.push_back({9, QStringLiteral("Shed")});
    record.floors[0].regionId = 9;
    store.load(record);
    const ProjectRecord saved = store.snapshot();
    ASSERT_EQ(saved.floors.size(), 2U);
    EXPECT_EQ(saved.floors[0].id, 2);
    EXPECT_EQ(saved.floors[0].regionId, 9);
    EXPECT_EQ(saved.floors[1].id, 3);
}

TEST_F(HBXModelTest, aUnitIsLoadedBehindItsParentWhateverItsId)
{
    IHBXElement *foundation = element(52);
    unit(foundation);
    ProjectRecord record = store.snapshot();
    std::swap(record.elements[0].id, record.elements[1].id);
    std::swap(record.elements[0], record.elements[1]);
    record.elements[0].parentId = record.elements[1].id; // the unit comes first
    store.load(record);
    const IHBXElement *loaded = elements().elementById(record.elements[0].id);
    ASSERT_NE(loaded, nullptr);
    EXPECT_EQ(loaded->parent(), elements().elementById(record.elements[1].id));
}

} // namespace
} // namespace hbx::embedded

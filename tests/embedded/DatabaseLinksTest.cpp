#include "platform/embedded/DatabaseLinks.h"

#include "embedded/ProjectFiles.h"
#include "embedded/ToldRefusal.h"

using namespace projecttest;
using hbx::embedded::checkLinks;
using hbx::embedded::ProjectRecord;

namespace {

// Ids of the small building: region 1, floors 2 and 26, elements 3 to 13, draw objects 14 to 25.
const Damage kDamages[] = {
    {"UPDATE floor SET region_id=99", "floor[id=2].region_id: names nothing that fits"},
    {"UPDATE element SET floor_id=1 WHERE id=3", "element[id=3].floor_id: names nothing that fits"},
    {"UPDATE element SET parent_id=10 WHERE id=3", "element[id=3].parent_id: names nothing that fits"},
    {"UPDATE element SET parent_id=99 WHERE id=10", "element[id=10].parent_id: names nothing that fits"},
    {"UPDATE element SET floor_id=26 WHERE id=10", "element[id=10].parent_id: names nothing that fits"},
    {"UPDATE draw_object SET element_id=99 WHERE id=14", "draw_object[id=14].element_id: names nothing that fits"},
    {"UPDATE draw_object SET next_id=99 WHERE id=16", "draw_object[id=16].next_id: names nothing that fits"},
    {"UPDATE draw_object SET next_id=16 WHERE id=17", "draw_object[id=16].next_id: closes the chain to a ring"},
    {"UPDATE draw_object SET next_id=17 WHERE id=14", "draw_object[id=16].next_id: names nothing that fits"},
    {"UPDATE draw_object SET owner_id=14 WHERE id=22", "draw_object[id=22].owner_id: names nothing that fits"},
    {"UPDATE draw_object SET owner_id=99 WHERE id=22", "draw_object[id=22].owner_id: names nothing that fits"},
    {"UPDATE draw_object SET attached_to=99 WHERE id=15", "draw_object[id=15].attached_to: names nothing that fits"},
    {"UPDATE project SET next_id=26", "floor[id=26].id: was never given out"},
    {"UPDATE region SET id=0", "region[id=0].id: was never given out"},
    {"INSERT INTO region VALUES(14,'twice')", "draw_object[id=14].id: stands twice in the project"},
};

class DatabaseLinksDamageTest : public DamagedFileTest
{};

TEST_P(DatabaseLinksDamageTest, isToldAndTheFileStaysAsItIs) { expectTold(); }

INSTANTIATE_TEST_SUITE_P(Damages, DatabaseLinksDamageTest, ::testing::ValuesIn(kDamages));

std::string refusalOf(const ProjectRecord &project)
{
    return refusaltest::toldBy([&] { checkLinks(project); });
}

} // namespace

TEST(DatabaseLinksTest, aProjectAsItIsReadIsSound)
{
    EXPECT_EQ(refusalOf(ProjectRecord()), "good");
    EXPECT_EQ(refusalOf(exchangetest::recordOf(exchangetest::kSmallBuilding)), "good");
}

TEST(DatabaseLinksTest, aUnitStandsOnTheFloorOfItsParent)
{
    ProjectRecord project = exchangetest::recordOf(exchangetest::kSmallBuilding);
    ASSERT_EQ(project.elements[7].parentId, 9);
    project.elements[7].floorId = 26;
    EXPECT_EQ(refusalOf(project), "element[id=10].parent_id: names nothing that fits");
}

TEST(DatabaseLinksTest, aChildHasNoChildren)
{
    ProjectRecord project = exchangetest::recordOf(exchangetest::kSmallBuilding);
    ASSERT_EQ(project.drawObjs[8].owner, 21);
    project.drawObjs[7].owner = 22; // and so the two own each other
    EXPECT_EQ(refusalOf(project), "draw_object[id=21].owner_id: names nothing that fits");
}

#include "beam/ORVCADBaseUnitEntEdoInfo.h"

#include <gtest/gtest.h>

namespace {

TEST(ORVCADBaseUnitEntEdoInfoTest, copyAndAssignmentGoMemberByMember)
{
    ORVCADBaseUnitEntEdoInfo unit;
    unit.name = "DJ1-1";
    unit.elementType = 82;
    unit.height = 500.0;
    const ORVCADBaseUnitEntEdoInfo copy = unit;
    ORVCADBaseUnitEntEdoInfo assigned;
    assigned = copy;
    unit.name = "DJ2-1";
    EXPECT_EQ(copy.name, "DJ1-1");
    EXPECT_EQ(assigned.elementType, 82);
    EXPECT_EQ(assigned.height, 500.0);
}

TEST(ORVCADBaseUnitEntEdoInfoTest, destructorIsVirtual)
{
    EXPECT_TRUE(std::has_virtual_destructor_v<ORVCADBaseUnitEntEdoInfo>);
}

} // namespace

#include "beam/ORVCADBaseFDEntEdoInfo.h"

#include <gtest/gtest.h>

namespace {

TEST(ORVCADBaseFDEntEdoInfoTest, copyAndAssignmentGoMemberByMemberAndShareTheUnits)
{
    ORVCADBaseFDEntEdoInfo foundation;
    foundation.name = "DJ1";
    foundation.units = {std::make_shared<ORVCADBaseUnitEntEdoInfo>()};
    const ORVCADBaseFDEntEdoInfo copy = foundation;
    ORVCADBaseFDEntEdoInfo assigned;
    assigned = copy;
    foundation.name = "DJ2";
    EXPECT_EQ(copy.name, "DJ1");
    EXPECT_EQ(assigned.name, "DJ1");
    EXPECT_EQ(assigned.units[0], foundation.units[0]);
}

TEST(ORVCADBaseFDEntEdoInfoTest, destructorIsVirtual)
{
    EXPECT_TRUE(std::has_virtual_destructor_v<ORVCADBaseFDEntEdoInfo>);
}

} // namespace

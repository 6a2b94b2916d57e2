#include "slab/ORVCADBoardOptions_Sample.h"

#include "slab/SlabIOModelFixture.h"

namespace {

using Access = ORVCADBoardLocalIOModelTestAccess;

TEST(ORVCADBoardOptionsTest, unknownKeyGivesTheEmptyTextAndAddsNothing)
{
    const ORVCADBoardOptions_Sample options;
    EXPECT_EQ(options.value("grade"), QString());
    EXPECT_TRUE(Access::values(options).empty());
}

TEST(ORVCADBoardOptionsTest, valuesAreWritableThroughConstOptions)
{
    const ORVCADBoardOptions_Sample options;
    Access::values(options)["grade"] = "C30";
    EXPECT_EQ(options.value("grade"), "C30");
    EXPECT_EQ(options.value("Grade"), QString());
}

} // namespace

#include "beam/BeamIdentifyResult.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace {

TEST(BeamIdentifyResultTest, canBeMadeCopiedMovedAndAssigned)
{
    EXPECT_TRUE(std::is_default_constructible_v<BeamIdentifyResult>);
    EXPECT_TRUE(std::is_copy_constructible_v<BeamIdentifyResult>);
    EXPECT_TRUE(std::is_move_constructible_v<BeamIdentifyResult>);
    EXPECT_TRUE(std::is_copy_assignable_v<BeamIdentifyResult>);
    EXPECT_TRUE(std::is_move_assignable_v<BeamIdentifyResult>);
}

TEST(BeamIdentifyResultTest, holdsOneListOfPointerSize) { EXPECT_EQ(sizeof(BeamIdentifyResult), sizeof(void *)); }

} // namespace

#include "IdentifyInputModel/Wall/ORVCADWallDataCheckModel.h"

#include <gtest/gtest.h>

namespace {

TEST(ORVCADWallDataCheckModelTest, holdsTheNumberOfItsConstructor)
{
    EXPECT_EQ(ORVCADWallDataCheckModel(7).m_number, 7);
}

} // namespace

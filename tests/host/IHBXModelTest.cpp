#include "platform/host/IHBXModel.h"

#include <gtest/gtest.h>

namespace {

TEST(IHBXModelTest, shapesMayBringThemselvesUpToDateUnlessSomebodySaysOtherwise)
{
    EXPECT_TRUE(IHBXModel::g_bDefaultAutoCalc);
}

} // namespace

#include "platform/dwgx/HBXCADFileHelper.h"

#include "platform/dwgx/HBXCADIOperator.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

TEST(HBXCADFileHelperTest, thereIsOneHelper)
{
    ASSERT_NE(HBXCADFileHelper::getInstance(), nullptr);
    EXPECT_EQ(HBXCADFileHelper::getInstance(), HBXCADFileHelper::getInstance());
}

TEST(HBXCADFileHelperTest, eachOperatorIsNewAndBelongsToTheCaller)
{
    const std::unique_ptr<HBXCADIOperator> first(HBXCADFileHelper::getInstance()->createCADIOperator());
    const std::unique_ptr<HBXCADIOperator> second(HBXCADFileHelper::getInstance()->createCADIOperator());
    ASSERT_NE(first, nullptr);
    ASSERT_NE(second, nullptr);
    EXPECT_NE(first, second);
    EXPECT_TRUE(first->lastErrorReason().isEmpty());
}

} // namespace

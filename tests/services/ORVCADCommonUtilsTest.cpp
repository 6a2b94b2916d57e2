#include "platform/services/ORVCADCommonUtils.h"

#include <gtest/gtest.h>

namespace {

TEST(ORVCADCommonUtilsTest, optionTableHasTheNameThatProjectsKeepItUnder)
{
    EXPECT_EQ(ORVCADCommonUtils::getCADIdentifyOptionTableName(), "CADIdentifyOption");
}

} // namespace

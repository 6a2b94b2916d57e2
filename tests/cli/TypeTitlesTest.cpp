#include "cli/TypeTitles.h"

#include "platform/services/HBXElementTypeTable.h"

#include <gtest/gtest.h>

#include <set>

using orvcad::typeTitle;

namespace {

TEST(TypeTitlesTest, everyElementTypeHasATitleOfItsOwn)
{
    std::set<QString> titles;
    for (const hbx::ElementTypeInfo &type : hbx::kElementTypes)
        titles.insert(typeTitle(type.number));
    EXPECT_EQ(titles.size(), std::size(hbx::kElementTypes));
    EXPECT_EQ(titles.count("type"), 0U);
}

TEST(TypeTitlesTest, unknownTypeIsCalledType) { EXPECT_EQ(typeTitle(12345), "type"); }

} // namespace

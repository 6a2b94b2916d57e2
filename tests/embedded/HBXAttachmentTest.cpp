#include "platform/embedded/HBXAttachment.h"

#include <gtest/gtest.h>

using hbx::embedded::attachmentRuleOf;

TEST(HBXAttachmentTest, openingsNameWalls)
{
    for (const qint64 opening : {4, 5, 6, 7}) {
        const auto *rule = attachmentRuleOf(opening);
        ASSERT_NE(rule, nullptr) << opening;
        EXPECT_EQ(rule->hosts, (std::vector<qint64>{0, 1, 202, 1001, 1003})) << opening;
        EXPECT_STREQ(rule->otherHost, "names no wall");
    }
}

TEST(HBXAttachmentTest, holesNameSlabsAndRafts)
{
    const auto *rule = attachmentRuleOf(24);
    ASSERT_NE(rule, nullptr);
    EXPECT_EQ(rule->hosts, (std::vector<qint64>{19, 48}));
    EXPECT_STREQ(rule->otherHost, "names no slab or raft");
}

TEST(HBXAttachmentTest, allOtherTypesAreAttachedToNothing)
{
    for (const qint64 type : {-1, 0, 1, 15, 19, 22, 25, 48, 52, 1003})
        EXPECT_EQ(attachmentRuleOf(type), nullptr) << type;
}

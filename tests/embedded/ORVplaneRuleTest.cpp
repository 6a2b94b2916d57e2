#include "platform/services/ORVplaneRule.h"

#include "platform/embedded/HBXModelStore.h"
#include "platform/embedded/HBXProject.h"

#include <gtest/gtest.h>

namespace {

bool isTrueFor(const QString &rule)
{
    hbx::embedded::HBXProject project;
    project.store().setPlaneRule(rule);
    project.makeCurrent();
    return ORVplaneRule::getInstance()->is11gor16gPlaneRule();
}

TEST(ORVplaneRuleTest, rulesOf11And16AreTheTwoThatCount)
{
    EXPECT_TRUE(isTrueFor("11G"));
    EXPECT_TRUE(isTrueFor("16G"));
    for (const char *other : {"", "22G", "03G", "11g", "11G101"})
        EXPECT_FALSE(isTrueFor(other)) << other;
}

TEST(ORVplaneRuleTest, ruleIsThatOfTheCurrentProject)
{
    hbx::embedded::HBXProject first;
    first.store().setPlaneRule("16G");
    hbx::embedded::HBXProject second;
    second.makeCurrent();
    EXPECT_FALSE(ORVplaneRule::getInstance()->is11gor16gPlaneRule());
    first.makeCurrent();
    EXPECT_TRUE(ORVplaneRule::getInstance()->is11gor16gPlaneRule());
}

TEST(ORVplaneRuleTest, withoutAProjectNoRuleCounts)
{
    ASSERT_FALSE(hbx::embedded::HBXProject::current());
    EXPECT_FALSE(ORVplaneRule::getInstance()->is11gor16gPlaneRule());
}

} // namespace

#include "platform/services/ORVRegionRuleManager.h"

#include "platform/embedded/HBXModelStore.h"
#include "platform/embedded/HBXProject.h"

#include <gtest/gtest.h>

namespace {

TEST(ORVRegionRuleManagerTest, materialIsFoundByItsNumberWhereverItStands)
{
    hbx::embedded::HBXProject project;
    project.store().setMaterials({{2, "MU10"}, {1, "C30"}, {7, ""}});
    project.makeCurrent();
    const ORVRegionRuleManager *rules = ORVRegionRuleManager::getInstance();
    ASSERT_TRUE(rules->findMaterial(1));
    EXPECT_EQ(rules->findMaterial(1)->name, "C30");
    EXPECT_EQ(rules->findMaterial(2)->name, "MU10");
    ASSERT_TRUE(rules->findMaterial(7));
    EXPECT_EQ(rules->findMaterial(7)->name, "");
    for (const int unknown : {0, -1, 3})
        EXPECT_FALSE(rules->findMaterial(unknown)) << unknown;
}

TEST(ORVRegionRuleManagerTest, materialsAreThoseOfTheCurrentProject)
{
    hbx::embedded::HBXProject first;
    first.store().setMaterials({{1, "C30"}});
    hbx::embedded::HBXProject second;
    second.makeCurrent();
    EXPECT_FALSE(ORVRegionRuleManager::getInstance()->findMaterial(1));
    first.makeCurrent();
    EXPECT_TRUE(ORVRegionRuleManager::getInstance()->findMaterial(1));
}

TEST(ORVRegionRuleManagerTest, withoutAProjectThereIsNoMaterial)
{
    ASSERT_FALSE(hbx::embedded::HBXProject::current());
    EXPECT_FALSE(ORVRegionRuleManager::getInstance()->findMaterial(1));
}

} // namespace

#include "platform/services/HBXCADLayerBuilder.h"

#include "platform/embedded/HBXModelStore.h"
#include "platform/embedded/HBXProject.h"
#include "platform/services/HBXOptionNames.h"

#include <gtest/gtest.h>

namespace {

TEST(HBXCADLayerBuilderTest, nameIsTheOneThatTheCurrentProjectKeepsElseTheTitle)
{
    hbx::embedded::ProjectRecord record;
    record.options = {{ptnCADLayerNames, QStringLiteral("梁集中标注"), "BEAM-TEXT"},
                      {ptnCADLayerNames, QStringLiteral("墙标注"), ""},
                      {ptnBeamSetting, QStringLiteral("柱边线"), "other group"}};
    hbx::embedded::HBXProject project;
    project.store().load(std::move(record));
    project.makeCurrent();
    EXPECT_EQ(HBXCADLayerBuilder::getCustomLayerStoredName(L"梁集中标注"), L"BEAM-TEXT");
    EXPECT_EQ(HBXCADLayerBuilder::getCustomLayerStoredName(L"墙标注"), L"墙标注");
    EXPECT_EQ(HBXCADLayerBuilder::getCustomLayerStoredName(L"柱边线"), L"柱边线");
}

TEST(HBXCADLayerBuilderTest, withoutAProjectTheNameIsTheTitle)
{
    ASSERT_FALSE(hbx::embedded::HBXProject::current());
    EXPECT_EQ(HBXCADLayerBuilder::getCustomLayerStoredName(L"梁集中标注"), L"梁集中标注");
}

} // namespace

#include "platform/services/HBXOptionNames.h"

#include <QSet>
#include <QStringList>

#include <gmock/gmock.h>

#include <set>

namespace {

const QStringList kColumns{pfnCADIdentifyOptionGroup, pfnCADIdentifyOptionName, pfnCADIdentifyOptionValue};
const QStringList kGroups{ptnBeamSetting, ptnColumnSetting, ptnWallHolesSetting, ptnAutoIdentifyBackstrapsSetting,
                          ptnWallSetting, ptnCADLayerNames};

} // namespace

TEST(HBXOptionNamesTest, columnsAndGroupsCanStandInACondition)
{
    for (const QString &name : kColumns + kGroups) {
        EXPECT_FALSE(name.isEmpty());
        for (const QChar c : {u',', u'(', u')', u'"', u'%'}) {
            EXPECT_FALSE(name.contains(c)) << qPrintable(name);
        }
    }
}

TEST(HBXOptionNamesTest, noTwoColumnsAndNoTwoGroupsAreTheSame)
{
    EXPECT_EQ(QSet<QString>(kColumns.begin(), kColumns.end()).size(), 3);
    EXPECT_EQ(QSet<QString>(kGroups.begin(), kGroups.end()).size(), 6);
}

TEST(HBXOptionNamesTest, wallOptionsAndLayerNamesStandUnderTheirFixedGroups)
{
    EXPECT_EQ(ptnWallSetting, QStringLiteral("OrvCadIdentiFyWall"));
    EXPECT_STREQ(s_strOrvCadIdentiFyWall, "OrvCadIdentiFyWall");
    EXPECT_EQ(ptnCADLayerNames, QStringLiteral("CADLayerNames"));
}

TEST(HBXOptionNamesTest, layerTitlesDiffer)
{
    const std::set<std::string> titles{s_strBeamLabel, s_strYWBZBeamLabel, s_strWallLabel, s_strConcreteWall,
                                       s_strBrickWall, s_strWindowsLine,   s_strColumn,    s_strHoleLabel};
    EXPECT_EQ(titles.size(), 8u);
}

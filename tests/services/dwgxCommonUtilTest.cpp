#include "platform/services/dwgxCommonUtil.h"

#include "platform/services/HBXElementTypeTable.h"

#include <gmock/gmock.h>

namespace {

QPair<QString, int> layerInfo(int type, const char *layer) { return getCADLayerInfo(type, QString::fromUtf8(layer)); }

} // namespace

TEST(DwgxCommonUtilTest, typeHasItsAnalysisKeyFirstAndItsOwnNameSecond)
{
    EXPECT_EQ(dwgxCommonUtil::getElementTypeName(15), qMakePair(QStringLiteral("etBeam"), QStringLiteral("梁")));
    EXPECT_EQ(dwgxCommonUtil::getElementTypeName(0), qMakePair(QStringLiteral("etWall"), QStringLiteral("混凝土墙")));
    EXPECT_EQ(dwgxCommonUtil::getElementTypeName(74), qMakePair(QStringLiteral("etAxisGrid"), QStringLiteral("轴网")));
    EXPECT_EQ(dwgxCommonUtil::getElementTypeName(1003),
              qMakePair(QStringLiteral("etBrickWall"), QStringLiteral("砌体墙")));
}

TEST(DwgxCommonUtilTest, unknownTypeHasNoNames)
{
    for (const int type : {-1, 2, 9, 1000, 2147483647, -2147483647 - 1})
        EXPECT_EQ(dwgxCommonUtil::getElementTypeName(type), qMakePair(QString(), QString())) << type;
}

TEST(DwgxCommonUtilTest, typeIsFoundByItsOwnName)
{
    EXPECT_EQ(dwgxCommonUtil::getElementTypeByName(QStringLiteral("混凝土墙")), 0);
    EXPECT_EQ(dwgxCommonUtil::getElementTypeByName(QStringLiteral("梁")), 15);
    EXPECT_EQ(dwgxCommonUtil::getElementTypeByName(QStringLiteral("现浇板")), 19);
    EXPECT_EQ(dwgxCommonUtil::getElementTypeByName(QStringLiteral("砌体墙")), 1003);
}

TEST(DwgxCommonUtilTest, unknownNameGivesMinusOne)
{
    for (const char *name : {"", "etBeam", "梁 ", "15", "\xF0\x9F\x8F\xA0"})
        EXPECT_EQ(dwgxCommonUtil::getElementTypeByName(QString::fromUtf8(name)), -1) << name;
    EXPECT_EQ(dwgxCommonUtil::getElementTypeByName(QString(QChar(0))), -1);
}

TEST(DwgxCommonUtilTest, everyTypeOfTheTableIsFoundBothWays)
{
    for (const hbx::ElementTypeInfo &info : hbx::kElementTypes) {
        const auto names = dwgxCommonUtil::getElementTypeName(static_cast<int>(info.number));
        EXPECT_EQ(names.first, info.analysisKey);
        EXPECT_EQ(names.second, QString::fromUtf8(info.ownName));
        EXPECT_EQ(dwgxCommonUtil::getElementTypeByName(names.second), info.number);
    }
}

TEST(DwgxCommonUtilTest, everyTypeThatTheSystemKnowsHasTwoNamesAndALayer)
{
    const int types[] = {0,  1,  4,  5,  6,  7,  15, 17, 18, 19, 22, 23,  24,   25,   26,
                         47, 48, 49, 50, 52, 53, 54, 74, 75, 82, 83, 202, 1001, 1002, 1003};
    for (const int type : types) {
        const auto names = dwgxCommonUtil::getElementTypeName(type);
        EXPECT_FALSE(names.first.isEmpty()) << type;
        EXPECT_EQ(dwgxCommonUtil::getElementTypeByName(names.second), type);
        EXPECT_EQ(getCADLayerInfo(type, names.second).first, names.second) << type;
        EXPECT_NE(getCADLayerInfo(type, names.second).second, 0) << type;
    }
}

TEST(DwgxCommonUtilTest, layerWithAWordOfTheTypeIsOfTheType)
{
    EXPECT_EQ(layerInfo(15, "梁集中标注"), qMakePair(QStringLiteral("梁集中标注"), 0x3366CC));
    EXPECT_EQ(layerInfo(25, "S-COLU-25"), qMakePair(QStringLiteral("S-COLU-25"), 0xA61E4D));
    EXPECT_EQ(layerInfo(74, "A-Axis"), qMakePair(QStringLiteral("A-Axis"), 0xADB5BD));
}

TEST(DwgxCommonUtilTest, layerWordsAreFoundInAnyCase)
{
    for (const char *layer : {"s_beam", "S_BEAM", "s_BeAm_con"})
        EXPECT_EQ(layerInfo(15, layer).first, QString::fromUtf8(layer));
}

TEST(DwgxCommonUtilTest, layerOfAnotherTypeHasNoNameAndNoColour)
{
    const QPair<QString, int> none(QString(), 0);
    EXPECT_EQ(layerInfo(15, "柱边线"), none);
    EXPECT_EQ(layerInfo(15, "b e a m"), none);
    EXPECT_EQ(layerInfo(15, ""), none);
    EXPECT_EQ(layerInfo(-1, "beam"), none);
    EXPECT_EQ(layerInfo(9, "beam"), none);
}

TEST(DwgxCommonUtilTest, layerCanBeOfSeveralTypes)
{
    EXPECT_EQ(layerInfo(15, "连梁线").first, QStringLiteral("连梁线"));
    EXPECT_EQ(layerInfo(17, "连梁线").first, QStringLiteral("连梁线"));
}

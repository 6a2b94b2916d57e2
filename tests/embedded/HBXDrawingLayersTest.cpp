#include "platform/embedded/HBXDrawingLayers.h"

#include "platform/services/HBXElementTypeTable.h"

#include <gtest/gtest.h>

namespace {

using hbx::embedded::HBXDrawingLayers;

HBXDrawingLayers::Names namesOf(qint64 type) { return HBXDrawingLayers(nullptr).namesOf(*hbx::elementTypeInfo(type)); }

TEST(HBXDrawingLayersTest, typesOfTheLayerManagerStandOnItsLayers)
{
    EXPECT_EQ(namesOf(0).lines, QStringLiteral("混凝土墙线"));
    EXPECT_EQ(namesOf(0).texts, QStringLiteral("墙标注"));
    EXPECT_EQ(namesOf(1003).lines, QStringLiteral("砌体墙线"));
    EXPECT_EQ(namesOf(1003).texts, QStringLiteral("墙标注"));
    EXPECT_EQ(namesOf(25).lines, QStringLiteral("柱边线"));
    for (const qint64 opening : {4, 5, 6, 7}) {
        EXPECT_EQ(namesOf(opening).lines, QStringLiteral("门窗线"));
        EXPECT_EQ(namesOf(opening).texts, QStringLiteral("门窗洞标注"));
    }
    EXPECT_EQ(namesOf(15).texts, QStringLiteral("梁集中标注"));
}

TEST(HBXDrawingLayersTest, otherTypesStandOnLayersOfTheirOwnName)
{
    EXPECT_EQ(namesOf(19).lines, QStringLiteral("现浇板"));
    EXPECT_EQ(namesOf(19).texts, QStringLiteral("现浇板标注"));
    EXPECT_EQ(namesOf(74).lines, QStringLiteral("轴网"));
    EXPECT_EQ(namesOf(25).texts, QStringLiteral("柱标注"));
}

TEST(HBXDrawingLayersTest, lineLayerOfEveryTypeIsToldByItsWords)
{
    for (const hbx::ElementTypeInfo &type : hbx::kElementTypes) {
        const QString layer = namesOf(type.number).lines;
        bool told = layer == QStringLiteral("柱边线") || layer == QStringLiteral("门窗线"); // shared by several types
        for (const QString &word : type.words())
            told = told || layer.contains(word, Qt::CaseInsensitive);
        EXPECT_TRUE(told) << type.analysisKey;
    }
}

TEST(HBXDrawingLayersTest, colourIsTheNearestOfTheFirstNine)
{
    EXPECT_EQ(HBXDrawingLayers::colorIndexOf(0xFF0000), 1);
    EXPECT_EQ(HBXDrawingLayers::colorIndexOf(0xFFFF00), 2);
    EXPECT_EQ(HBXDrawingLayers::colorIndexOf(0x00FF00), 3);
    EXPECT_EQ(HBXDrawingLayers::colorIndexOf(0x00FFFF), 4);
    EXPECT_EQ(HBXDrawingLayers::colorIndexOf(0x1010F0), 5);
    EXPECT_EQ(HBXDrawingLayers::colorIndexOf(0xFF00E0), 6);
    EXPECT_EQ(HBXDrawingLayers::colorIndexOf(0x101010), 7);
    EXPECT_EQ(HBXDrawingLayers::colorIndexOf(0x868E96), 8);
    EXPECT_EQ(HBXDrawingLayers::colorIndexOf(0xCED4DA), 9);
}

} // namespace

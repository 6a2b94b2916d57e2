#include "platform/services/HBXElementTypeTable.h"

#include "platform/embedded/HBXPropertyCatalogue.h"
#include "platform/services/HBXOptionNames.h"

#include <gmock/gmock.h>

#include <set>

using namespace hbx;

namespace {

std::vector<qint64> numbers()
{
    std::vector<qint64> result;
    for (const ElementTypeInfo &info : kElementTypes) {
        result.push_back(info.number);
    }
    return result;
}

bool isLayerOf(qint64 type, const QString &layer)
{
    const QStringList words = elementTypeInfo(type)->words();
    return std::any_of(words.begin(), words.end(),
                       [&layer](const QString &word) { return layer.contains(word, Qt::CaseInsensitive); });
}

} // namespace

TEST(HBXElementTypeTableTest, typesAreThoseOfTheCatalogueInAscendingOrder)
{
    EXPECT_EQ(numbers(), embedded::HBXPropertyCatalogue::instance().types());
    EXPECT_TRUE(std::is_sorted(std::begin(kElementTypes), std::end(kElementTypes),
                               [](const auto &a, const auto &b) { return a.number < b.number; }));
}

TEST(HBXElementTypeTableTest, everyTypeIsFoundByItsNumber)
{
    for (const ElementTypeInfo &info : kElementTypes) {
        EXPECT_EQ(elementTypeInfo(info.number), &info) << info.number;
    }
}

TEST(HBXElementTypeTableTest, seatsOfBeamsHaveTheKeysOfTheirPayload)
{
    EXPECT_STREQ(elementTypeInfo(18)->analysisKey, "etTieBeam");
    EXPECT_STREQ(elementTypeInfo(52)->analysisKey, "etIsolatedFD");
    EXPECT_STREQ(elementTypeInfo(53)->analysisKey, "etPileCap");
    EXPECT_STREQ(elementTypeInfo(54)->analysisKey, "etPile");
}

TEST(HBXElementTypeTableTest, unknownNumbersGiveNull)
{
    for (const qint64 type : {-1LL, 2LL, 16LL, 84LL, 1000LL, 1004LL, 4294967296LL}) {
        EXPECT_EQ(elementTypeInfo(type), nullptr) << type;
    }
}

TEST(HBXElementTypeTableTest, noTwoTypesShareKeyNameOrColour)
{
    std::set<QString> keys;
    std::set<QString> names;
    std::set<int> colours;
    for (const ElementTypeInfo &info : kElementTypes) {
        EXPECT_TRUE(keys.insert(info.key()).second) << info.number;
        EXPECT_TRUE(names.insert(info.name()).second) << info.number;
        EXPECT_TRUE(colours.insert(info.colour).second) << info.number;
        EXPECT_TRUE(info.colour > 0 && info.colour <= 0xFFFFFF) << info.number;
    }
}

TEST(HBXElementTypeTableTest, everyTypeHasSeveralLayerWordsAndNoEmptyOne)
{
    for (const ElementTypeInfo &info : kElementTypes) {
        EXPECT_FALSE(info.words().contains(QString())) << info.number;
        EXPECT_GE(info.words().size(), 2) << info.number;
    }
}

TEST(HBXElementTypeTableTest, layersOfTheLayerManagerAreOfTheirTypes)
{
    EXPECT_TRUE(isLayerOf(15, QString::fromUtf8(s_strBeamLabel)));
    EXPECT_TRUE(isLayerOf(15, QString::fromUtf8(s_strYWBZBeamLabel)));
    EXPECT_TRUE(isLayerOf(0, QString::fromUtf8(s_strConcreteWall)));
    EXPECT_TRUE(isLayerOf(0, QString::fromUtf8(s_strWallLabel)));
    EXPECT_TRUE(isLayerOf(1003, QString::fromUtf8(s_strWallLabel)));
    EXPECT_TRUE(isLayerOf(1003, QString::fromUtf8(s_strBrickWall)));
    EXPECT_TRUE(isLayerOf(4, QString::fromUtf8(s_strWindowsLine)));
    EXPECT_TRUE(isLayerOf(5, QString::fromUtf8(s_strWindowsLine)));
    EXPECT_TRUE(isLayerOf(25, QString::fromUtf8(s_strColumn)));
    EXPECT_TRUE(isLayerOf(7, QString::fromUtf8(s_strHoleLabel)));
    EXPECT_FALSE(isLayerOf(1003, QString::fromUtf8(s_strConcreteWall)));
    EXPECT_FALSE(isLayerOf(0, QString::fromUtf8(s_strBrickWall)));
}

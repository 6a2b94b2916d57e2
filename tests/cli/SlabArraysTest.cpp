#include "cli/SlabArrays.h"

#include <gtest/gtest.h>

#include <QJsonArray>

using namespace orvcad;

namespace {

const SlabArray &arrayOf(const char *key)
{
    for (const SlabArray &array : slabArrays())
        if (array.key == QLatin1String(key))
            return array;
    throw std::out_of_range(key);
}

std::string keysOf(const QJsonObject &object) { return object.keys().join(',').toStdString(); }

TEST(SlabArraysTest, whatBarsLieInIsWrittenAheadOfThem)
{
    QStringList keys;
    for (const SlabArray &array : slabArrays())
        keys.append(array.key);
    EXPECT_EQ(keys, (QStringList{"boards", "rafts", "board_holes", "forced_bars", "negative_forced_bars",
                                 "straddle_forced_bars", "raft_main_forced_bars", "raft_straddle_main_forced_bars",
                                 "raft_negative_forced_bars", "columns", "beams", "walls", "axisGrids"}));
}

TEST(SlabArraysTest, supportsAndAxesAreMadeByNoReply)
{
    for (const char *key : {"columns", "beams", "walls", "axisGrids"})
        EXPECT_FALSE(arrayOf(key).isMade()) << key;
    EXPECT_EQ(arrayOf("boards").type, 19);
    EXPECT_EQ(arrayOf("rafts").type, 48);
    EXPECT_EQ(arrayOf("board_holes").type, 24);
    EXPECT_EQ(arrayOf("straddle_forced_bars").type, 22);
    EXPECT_EQ(arrayOf("negative_forced_bars").type, 23);
    EXPECT_EQ(arrayOf("raft_straddle_main_forced_bars").type, 49);
    EXPECT_EQ(arrayOf("raft_negative_forced_bars").type, 50);
}

TEST(SlabArraysTest, negativeBarsLieOnALineAndAllOthersInAnOutline)
{
    EXPECT_EQ(arrayOf("negative_forced_bars").geometryKey(), "line");
    EXPECT_EQ(arrayOf("raft_negative_forced_bars").geometryKey(), "line");
    for (const char *key : {"boards", "rafts", "board_holes", "forced_bars", "raft_straddle_main_forced_bars"})
        EXPECT_EQ(arrayOf(key).geometryKey(), "surface") << key;
}

TEST(SlabArraysTest, patternHasEveryKeyThatIsReadAndNoOther)
{
    const QJsonObject slab = arrayOf("boards").pattern();
    EXPECT_EQ(keysOf(slab), "elev,id,name,recongnizedID,surface,thinkness");
    EXPECT_TRUE(slab["elev"].isDouble());
    EXPECT_TRUE(slab["surface"].isString());
    const QJsonObject bar = arrayOf("forced_bars").pattern();
    for (const QString &key : arrayOf("forced_bars").required)
        EXPECT_TRUE(bar.contains(key)) << key.toStdString();
    EXPECT_FALSE(bar.contains("SupportPoly"));
}

TEST(SlabArraysTest, requiredAndWholeKeysAreKeysOfTheMember)
{
    for (const SlabArray &array : slabArrays()) {
        const QJsonObject pattern = array.pattern();
        for (const QString &key : array.required + array.whole)
            EXPECT_TRUE(pattern.contains(key)) << array.key.data() << ": " << key.toStdString();
        EXPECT_EQ(array.required.contains(array.geometryKey()), array.isMade()) << array.key.data();
    }
}

TEST(SlabArraysTest, membersAreCountedByArray)
{
    const QJsonObject model{{"boards", QJsonArray{1, 2}}, {"rafts", QJsonArray()}, {"walls", QJsonArray{1}}, {"x", 7}};
    EXPECT_EQ(slabCountsText(model), "2 slabs, 1 wall");
    EXPECT_EQ(slabCounts(model), (QJsonObject{{"boards", 2}, {"rafts", 0}, {"walls", 1}}));
    EXPECT_EQ(slabCountsText({}), "nothing");
    EXPECT_EQ(slabCounts({}), QJsonObject());
}

} // namespace

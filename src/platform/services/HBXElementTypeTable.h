#pragma once

#include "platform/services/HBXElementTypes.h"

#include <QString>
#include <QStringList>

#include <algorithm>
#include <iterator>

/** What is said of each element type by name and on a picture, in one table.
 *
 *  The analysis key is the type's key in drawing-analysis JSON; the own name is its name in this system's JSON and its
 *  title in a legend. A CAD layer is of a type when its name holds one of the type's layer words, case ignored. */
namespace hbx {

/** A row of the table. */
struct ElementTypeInfo
{
    qint64 number;           ///< of HBXElementTypes.h
    const char *analysisKey; ///< ASCII; no two types share one
    const char *ownName;     ///< UTF-8; no two types share one
    const char *layerWords;  ///< UTF-8, separated by blanks
    int colour;              ///< 0xRRGGBB

    /** The analysis key as text. */
    QString key() const { return QString::fromLatin1(analysisKey); }
    /** The own name as text. */
    QString name() const { return QString::fromUtf8(ownName); }
    /** The layer words, one by one. */
    QStringList words() const { return QString::fromUtf8(layerWords).split(QLatin1Char(' ')); }
};

// clang-format off
/** Ascending by number. */
inline constexpr ElementTypeInfo kElementTypes[] = {
    {type::forceWall,              "etWall",           "混凝土墙",     "混凝土墙 剪力墙 墙标注 concwall shearwall",    0x5B6770},
    {type::partitionWall,          "etPartitionWall",  "隔墙",         "隔墙 partition",                              0xC9A66B},
    {type::door,                   "etDoor",           "门",           "门 door",                                     0x2E8B57},
    {type::window,                 "etWindow",         "窗",           "窗 window wind",                              0x1F9BCF},
    {type::doorWithWindow,         "etDoorWindow",     "门联窗",       "门联窗 doorwindow",                           0x2AA198},
    {type::wallOpening,            "etWallHole",       "墙洞",         "洞 opening hole",                             0x8FBC8F},
    {type::beam,                   "etBeam",           "梁",           "梁 beam",                                     0x3366CC},
    {type::linkBeam,               "etLinkBeam",       "连梁",         "连梁 linkbeam couplingbeam",                  0x5C7CFA},
    {type::tieBeam,                "etTieBeam",        "连系梁",       "连系梁 联系梁 拉梁 tiebeam",                  0x7048E8},
    {type::slab,                   "etSlab",           "现浇板",       "板 slab",                                     0xB8C4D0},
    {type::slabBar,                "etSlabBar",        "板受力筋",     "受力筋 底筋 面筋 mainbar",                    0xD9480F},
    {type::slabNegativeBar,        "etSlabNegBar",     "板负筋",       "负筋 negbar",                                 0xE8590C},
    {type::slabHole,               "etSlabHole",       "板洞",         "板洞 slabhole",                               0xE03131},
    {type::column,                 "etColumn",         "柱",           "柱 column colu",                              0xA61E4D},
    {type::tieColumn,              "etTieColumn",      "构造柱",       "构造柱 tiecolumn",                            0xC2255C},
    {type::foundationBeam,         "etFoundationBeam", "基础梁",       "基础梁 地梁 foundationbeam groundbeam",       0x364FC7},
    {type::raft,                   "etRaft",           "筏板基础",     "筏板 raft",                                   0x9AA5B1},
    {type::raftBar,                "etRaftBar",        "筏板主筋",     "筏板主筋 筏板受力筋 raftbar",                 0xF76707},
    {type::raftNegativeBar,        "etRaftNegBar",     "筏板负筋",     "筏板负筋 raftnegbar",                         0xFD7E14},
    {type::isolatedFoundation,     "etIsolatedFD",     "独立基础",     "独立基础 独基 footing isolatedfd",            0x868E96},
    {type::pileCap,                "etPileCap",        "桩承台",       "承台 pilecap",                                0x748496},
    {type::pile,                   "etPile",           "桩",           "桩 pile",                                     0x495057},
    {type::axisGrid,               "etAxisGrid",       "轴网",         "轴网 轴线 axis grid",                         0xADB5BD},
    {type::axisLine,               "etAxisLine",       "辅助轴线",     "辅助轴线 辅轴 auxaxis",                       0xCED4DA},
    {type::isolatedFoundationUnit, "etIsolatedFDUnit", "独立基础单元", "独立基础单元 独基单元 footingunit",           0x9C9FA3},
    {type::pileCapUnit,            "etPileCapUnit",    "桩承台单元",   "承台单元 pilecapunit",                        0x8B99A8},
    {type::retainingWall,          "etRetainingWall",  "挡土墙",       "挡土墙 retaining",                            0x6B5B4F},
    {type::curtainWall,            "etCurtainWall",    "幕墙",         "幕墙 curtain",                                0x74C0FC},
    {type::masonryColumn,          "etMasonryColumn",  "砌体柱",       "砌体柱 砖柱 brickcolumn",                     0xB5654A},
    {type::brickWall,              "etBrickWall",      "砌体墙",       "砌体墙 砖墙 填充墙 墙标注 brickwall masonry", 0xCC8B5C},
};
// clang-format on

/** Null for an unknown type. */
inline const ElementTypeInfo *elementTypeInfo(qint64 type)
{
    const auto place =
        std::lower_bound(std::begin(kElementTypes), std::end(kElementTypes), type,
                         [](const ElementTypeInfo &info, qint64 number) { return info.number < number; });
    return place != std::end(kElementTypes) && place->number == type ? place : nullptr;
}

} // namespace hbx

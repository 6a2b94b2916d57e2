#pragma once

#include <QString>

/** Names that the option table and the layer manager go by: the host's own words, in one place.
 *
 *  The option table has rows of group, name and value, which are read by the condition `SameString(<column>,"<text>")`;
 *  so neither a column nor a group may hold a comma, a bracket or a quotation mark. */

/** The option table. */
inline const QString g_strCADIdentifyOptionTable = QStringLiteral("CADIdentifyOption");

// Its columns.
inline const QString pfnCADIdentifyOptionGroup = QStringLiteral("OptionGroup");
inline const QString pfnCADIdentifyOptionName = QStringLiteral("OptionName");
inline const QString pfnCADIdentifyOptionValue = QStringLiteral("OptionValue");

// Its groups.
inline const QString ptnBeamSetting = QStringLiteral("BeamSetting");
inline const QString ptnColumnSetting = QStringLiteral("ColumnSetting");
inline const QString ptnWallHolesSetting = QStringLiteral("WallHolesSetting");
inline const QString ptnAutoIdentifyBackstrapsSetting = QStringLiteral("AutoIdentifyBackstrapsSetting");
/** Integer options of wall recognition, by label. */
inline const QString ptnWallSetting = QStringLiteral("OrvCadIdentiFyWall");
/** The name under which a building keeps a layer, by the layer's label. */
inline const QString ptnCADLayerNames = QStringLiteral("CADLayerNames");

// Translation contexts.
inline constexpr char s_strHBXCADLayerManager[] = "HBXCADLayerManager";
inline constexpr char s_strOrvCadIdentiFyWall[] = "OrvCadIdentiFyWall";

// Titles of layers, UTF-8, to be translated in the context of the layer manager.
inline constexpr char s_strBeamLabel[] = "梁集中标注";
inline constexpr char s_strYWBZBeamLabel[] = "梁原位标注";
inline constexpr char s_strWallLabel[] = "墙标注";
inline constexpr char s_strConcreteWall[] = "混凝土墙线";
inline constexpr char s_strBrickWall[] = "砌体墙线";
inline constexpr char s_strWindowsLine[] = "门窗线";
inline constexpr char s_strColumn[] = "柱边线";
inline constexpr char s_strHoleLabel[] = "门窗洞标注";

// Labels of the options of wall recognition, UTF-8, to be translated in their own context.
inline constexpr char s_strMaxOpeningWidth[] = "最大洞口宽度(mm)";
inline constexpr char s_strMaxWallLineWidth[] = "平行墙线宽度范围(mm)";
inline constexpr char s_strWallLineWidthDeviation[] = "平行墙线宽度误差范围(mm)";
inline constexpr char s_strWallEndExtension[] = "墙端头相交延伸误差范围(mm)";
inline constexpr char s_strWallAndWindowExtenH[] = "墙端头与门窗相交延伸误差范围(水平)(mm)";
inline constexpr char s_strWallAndWindowExtenV[] = "墙端头与门窗相交延伸误差范围(垂直)(mm)";

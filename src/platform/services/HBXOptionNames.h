#pragma once

#include <QString>

/** @file
 *  Names that the option table and the layer manager go by: the host's own words, in one place.
 *
 *  The option table has rows of group, name and value, which are read by the condition `SameString(<column>,"<text>")`;
 *  so neither a column nor a group may hold a comma, a bracket or a quotation mark. */

/** The option table. */
inline const QString g_strCADIdentifyOptionTable = QStringLiteral("CADIdentifyOption");

// Its columns.
inline const QString pfnCADIdentifyOptionGroup = QStringLiteral("OptionGroup"); ///< by which rows are asked for
inline const QString pfnCADIdentifyOptionName = QStringLiteral("OptionName");   ///< the first row of a name counts
inline const QString pfnCADIdentifyOptionValue = QStringLiteral("OptionValue"); ///< always a text

// Its groups.
/** Options of beam recognition, name codes among them. */
inline const QString ptnBeamSetting = QStringLiteral("BeamSetting");
/** Options of column recognition. */
inline const QString ptnColumnSetting = QStringLiteral("ColumnSetting");
/** Options of the recognition of doors, windows and wall openings. */
inline const QString ptnWallHolesSetting = QStringLiteral("WallHolesSetting");
/** Options of the recognition of slab bars. */
inline const QString ptnAutoIdentifyBackstrapsSetting = QStringLiteral("AutoIdentifyBackstrapsSetting");
/** Integer options of wall recognition, by label. */
inline const QString ptnWallSetting = QStringLiteral("OrvCadIdentiFyWall");
/** The name under which a building keeps a layer, by the layer's label. */
inline const QString ptnCADLayerNames = QStringLiteral("CADLayerNames");

// Translation contexts.
inline constexpr char s_strHBXCADLayerManager[] = "HBXCADLayerManager"; ///< of the titles of layers
inline constexpr char s_strOrvCadIdentiFyWall[] = "OrvCadIdentiFyWall"; ///< of the labels of wall options

// Titles of layers, UTF-8, to be translated in the context of the layer manager.
inline constexpr char s_strBeamLabel[] = "梁集中标注";     ///< texts that tell of a whole beam
inline constexpr char s_strYWBZBeamLabel[] = "梁原位标注"; ///< texts that tell of a place of a beam
inline constexpr char s_strWallLabel[] = "墙标注";         ///< texts at walls
inline constexpr char s_strConcreteWall[] = "混凝土墙线";  ///< sides of load-bearing walls
inline constexpr char s_strBrickWall[] = "砌体墙线";       ///< sides of brick walls
inline constexpr char s_strWindowsLine[] = "门窗线";       ///< lines of doors and windows
inline constexpr char s_strColumn[] = "柱边线";            ///< sides of columns
inline constexpr char s_strHoleLabel[] = "门窗洞标注";     ///< texts at doors, windows and openings

// Labels of the options of wall recognition, UTF-8, to be translated in their own context.
/** Widest opening that is bridged as one wall, mm. */
inline constexpr char s_strMaxOpeningWidth[] = "最大洞口宽度(mm)";
/** Greatest distance of the two lines of a wall, mm. */
inline constexpr char s_strMaxWallLineWidth[] = "平行墙线宽度范围(mm)";
/** Tolerance of that distance, mm. */
inline constexpr char s_strWallLineWidthDeviation[] = "平行墙线宽度误差范围(mm)";
/** Tolerance when an end is extended to another wall, mm. */
inline constexpr char s_strWallEndExtension[] = "墙端头相交延伸误差范围(mm)";
/** The same to a door or window, horizontal, mm. */
inline constexpr char s_strWallAndWindowExtenH[] = "墙端头与门窗相交延伸误差范围(水平)(mm)";
/** The same, vertical, mm. */
inline constexpr char s_strWallAndWindowExtenV[] = "墙端头与门窗相交延伸误差范围(垂直)(mm)";

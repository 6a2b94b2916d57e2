#pragma once

#include "encoding/RecordKey.h"

/** Names that slab models have in JSON. Meant: they keep their spelling. */
namespace slab::key {

using encoding::operator""_key;

// Arrays of the model document
constexpr QLatin1String rafts = "rafts"_key;
constexpr QLatin1String boards = "boards"_key;
constexpr QLatin1String boardHoles = "board_holes"_key;
constexpr QLatin1String raftNegativeForcedBars = "raft_negative_forced_bars"_key;
constexpr QLatin1String raftMainForcedBars = "raft_main_forced_bars"_key;
constexpr QLatin1String raftStraddleMainForcedBars = "raft_straddle_main_forced_bars"_key;
constexpr QLatin1String negativeForcedBars = "negative_forced_bars"_key;
constexpr QLatin1String forcedBars = "forced_bars"_key;
constexpr QLatin1String straddleForcedBars = "straddle_forced_bars"_key;
constexpr QLatin1String beams = "beams"_key;
constexpr QLatin1String walls = "walls"_key;
constexpr QLatin1String columns = "columns"_key;
constexpr QLatin1String axisGrids = "axisGrids"_key;

// Elements
constexpr QLatin1String id = "id"_key;
constexpr QLatin1String recongnizedID = "recongnizedID"_key;
constexpr QLatin1String name = "name"_key;
constexpr QLatin1String stateDescript = "state_descript"_key;
constexpr QLatin1String surface = "surface"_key;
constexpr QLatin1String line = "line"_key;
constexpr QLatin1String type = "type"_key;

// Slabs, holes and rafts
constexpr QLatin1String thickness = "thinkness"_key;
constexpr QLatin1String elev = "elev"_key;
constexpr QLatin1String topElev = "topElev"_key;
constexpr QLatin1String bottomElev = "bottomElev"_key;
constexpr QLatin1String longSpanReinforceBar = "longSpanReinforceBar"_key;
constexpr QLatin1String shortSpanReinforceBar = "shortSpanReinforceBar"_key;
constexpr QLatin1String obliqueReinforceBar = "obliqueReinforceBar"_key;

// Bars
constexpr QLatin1String barInfo = "bar_info"_key;
constexpr QLatin1String distributeBarInfo = "distribute_bar_info"_key;
constexpr QLatin1String saddleBarlineCount = "saddle_barline_count"_key;
constexpr QLatin1String labelPosition = "label_position"_key;
constexpr QLatin1String leftStretchLength = "left_strech_length"_key;
constexpr QLatin1String rightStretchLength = "right_strech_length"_key;
constexpr QLatin1String leftHookLength = "left_hook_length"_key;
constexpr QLatin1String rightHookLength = "right_hook_length"_key;
constexpr QLatin1String refPointX = "ref_point_x"_key;
constexpr QLatin1String refPointY = "ref_point_y"_key;
constexpr QLatin1String refPointValid = "ref_point_valid"_key;
constexpr QLatin1String directionX = "direction_x"_key;
constexpr QLatin1String directionY = "direction_y"_key;
constexpr QLatin1String forcedType = "forced_type"_key;
constexpr QLatin1String rowNumber = "row_number"_key;
constexpr QLatin1String supportPoly = "SupportPoly"_key;
constexpr QLatin1String supportPolys = "SupportPolys"_key;

// Supports
constexpr QLatin1String width = "width"_key;
constexpr QLatin1String distanceToLeft = "distance_to_left"_key;
constexpr QLatin1String startPointTopElev = "start_point_top_elev"_key;
constexpr QLatin1String endPointTopElev = "end_point_top_elev"_key;
constexpr QLatin1String columnTopElev = "top_elev"_key; // rafts have "topElev"

// Axis nets
constexpr QLatin1String uStart = "U_start"_key;
constexpr QLatin1String uEnd = "U_end"_key;
constexpr QLatin1String vStart = "V_start"_key;
constexpr QLatin1String vEnd = "V_end"_key;
constexpr QLatin1String uData = "U_Data"_key;
constexpr QLatin1String vData = "V_Data"_key;

// The document around a model
constexpr QLatin1String model = "model"_key;
constexpr QLatin1String options = "options"_key;
constexpr QLatin1String drawing = "drawing"_key;
constexpr QLatin1String drawingName = "drawing_name"_key;
constexpr QLatin1String wzd = "wzd"_key;
constexpr QLatin1String state = "state"_key;
constexpr QLatin1String regionName = "region_name"_key;
constexpr QLatin1String floorName = "floor_name"_key;
constexpr QLatin1String floorTopElev = "floor_topElev"_key;
constexpr QLatin1String floorBtmElev = "floor_btmElev"_key;
constexpr QLatin1String caseInfo = "case_info"_key;
constexpr QLatin1String orvFileName = "orv_file_name"_key;

} // namespace slab::key

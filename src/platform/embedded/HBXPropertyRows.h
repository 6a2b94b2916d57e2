#pragma once

#include "platform/embedded/HBXPropertyCatalogue.h"

#include <cstddef>

/** The rows of the property catalogue, by families of types, and below them which families make up each type.
 *
 *  Kinds follow what a value is, not how a single caller reads it: sizes of structural parts are doubles, although most
 *  callers read them as integers, since a real building has sizes between whole millimetres. Sizes of openings, labels
 *  of bars, ids, flags and counts are whole numbers everywhere. */
namespace hbx::embedded::rows {

struct PropertyRow
{
    const char *name;
    PropertyKind kind;
    PropertyOwner owner = PropertyOwner::Element;
    PropertyRole role = PropertyRole::Plain;
    const char *defaultText = nullptr;
    const char *alias = nullptr;
};

/** One family of rows. */
struct PropertyFamily
{
    constexpr PropertyFamily() = default;
    template <std::size_t N> constexpr PropertyFamily(const PropertyRow (&family)[N]) : rows(family), count(N) {}

    const PropertyRow *rows = nullptr;
    std::size_t count = 0;
};

struct TypeFamilies
{
    qint64 type;
    PropertyFamily families[4];
};

inline constexpr PropertyKind kInteger = PropertyKind::Integer;
inline constexpr PropertyKind kDouble = PropertyKind::Double;
inline constexpr PropertyKind kText = PropertyKind::Text;
inline constexpr PropertyKind kElevation = PropertyKind::Elevation;
inline constexpr PropertyKind kPoint = PropertyKind::Point;
inline constexpr PropertyKind kCurve = PropertyKind::Curve;
inline constexpr PropertyKind kPolygon = PropertyKind::Polygon;
inline constexpr PropertyOwner kElement = PropertyOwner::Element;
inline constexpr PropertyOwner kDrawObj = PropertyOwner::DrawObject;
inline constexpr PropertyRole kPlain = PropertyRole::Plain;
inline constexpr PropertyRole kShape = PropertyRole::Shape;
inline constexpr PropertyRole kIds = PropertyRole::DrawObjIds;
inline constexpr PropertyRole kIdInBrackets = PropertyRole::DrawObjIdInBrackets;
inline constexpr char kFloorTop[] = "层顶标高";
inline constexpr char kFloorBottom[] = "层底标高";

// clang-format off
inline constexpr PropertyRow kWallRows[] = {
    // A wall fills its floor: a recognised piece without elevations leaves these as they are.
    {"StartPtTopElev",    kElevation, kElement, kPlain, kFloorTop},
    {"EndPtTopElev",      kElevation, kElement, kPlain, kFloorTop},
    {"StartPtBottomElev", kElevation, kElement, kPlain, kFloorBottom},
    {"EndPtBottomElev",   kElevation, kElement, kPlain, kFloorBottom},
    {"Thickness",         kDouble,    kElement, kShape},
    {"AxisOffset",        kDouble,    kElement, kShape, nullptr, "AxisOffset_JZBZ"},
};
inline constexpr PropertyRow kRecognisedWallRows[] = {
    {"Type",                kInteger}, // 255: left out of recognition
    {"HoriDistributionBar", kText},
    {"VertDistributionBar", kText},
};
inline constexpr PropertyRow kForceWallRows[] = {
    {"TieBar", kText},
};
inline constexpr PropertyRow kBrickWallRows[] = {
    {"Material",          kText}, // a material's number; as text it can be empty, which stands for none
    {"MasonryThroughBar", kText},
    {"TransverseBar",     kText},
};

inline constexpr PropertyRow kBeamRows[] = {
    {"SectionWidth",   kDouble,  kElement, kShape},
    {"SectionHeight",  kDouble},
    {"SectionTypeID",  kInteger},
    {"SectionPoly",    kPolygon}, // across the axis: the plan does not follow it
    {"InsertPt",       kPoint},
    {"AxisOffset",     kDouble,  kElement, kShape, nullptr, "AxisOffset_JZBZ"},
    {"StartPtTopElev", kElevation},
    {"EndPtTopElev",   kElevation},
    {"HoopBar",        kText},
    {"Limb",           kText},
    {"TieBar",         kText},
};
inline constexpr PropertyRow kSpannedBeamRows[] = {
    {"SpanCount",        kText}, // may carry cantilevers behind the number: 3A
    {"TopThroughBar",    kText},
    {"BottomThroughBar", kText},
    {"SideBar",          kText},
};
inline constexpr PropertyRow kFloorBeamRows[] = {
    {"Type1", kInteger},
};
inline constexpr PropertyRow kLinkBeamRows[] = {
    {"TopHoriBar",    kText},
    {"BottomHoriBar", kText},
    {"SideBarAL",     kText},
};
inline constexpr PropertyRow kFoundationBeamRows[] = {
    {"Type", kInteger},
};
inline constexpr PropertyRow kTieBeamRows[] = {
    {"Type",   kInteger},
    {"Type1",  kInteger}, // as of each seat of a beam
    {"Height", kDouble},  // as of each seat of a beam
};

inline constexpr PropertyRow kPlateRows[] = {
    {"Thickness",         kDouble,    kElement, kShape},
    {"TopElev",           kElevation},
    {"Remark",            kText},
    {"ReinforcementInfo", kText,      kDrawObj, kIds}, // its bars
};
inline constexpr PropertyRow kRaftRows[] = {
    {"BottomElev", kElevation},
};
inline constexpr PropertyRow kHoleRows[] = {
    {"SectionTypeID",          kInteger}, // 0 rectangle, 1 circle, 2 any outline
    {"Width",                  kDouble,  kElement, kShape},
    {"Length",                 kDouble,  kElement, kShape},
    {"Radius",                 kDouble,  kElement, kShape},
    {"SectionPoly",            kPolygon, kElement, kShape},
    {"InsertPt",               kPoint,   kElement, kShape},
    {"SectionInfo",            kText},
    {"Remark",                 kText},
    {"LongSpanReinforcedBar",  kText},
    {"ShortSpanReinforcedBar", kText},
    {"ObliqueReinforcedBar",   kText},
};

inline constexpr PropertyRow kSectionRows[] = {
    {"SectionTypeID", kInteger},
    {"SectionWidth",  kDouble,  kElement, kShape},
    {"SectionHeight", kDouble,  kElement, kShape},
    {"Radius",        kDouble,  kElement, kShape},
    {"SectionPoly",   kPolygon, kElement, kShape},
    {"InsertPt",      kPoint,   kElement, kShape},
    {"SectionInfo",   kText},
};
inline constexpr PropertyRow kColumnRows[] = {
    {"Type",       kInteger}, // 2: an A column to the beams that rest on it
    {"TopElev",    kElevation},
    {"BottomElev", kElevation},
};
inline constexpr PropertyRow kFoundationRows[] = {
    {"Type1",      kInteger},
    {"TopElev",    kElevation},
    {"BottomElev", kElevation},
    {"AxisOffset", kDouble, kElement, kPlain, nullptr, "AxisOffset_JZBZ"}, // as of each seat of a beam
};
inline constexpr PropertyRow kUnitRows[] = { // and of whatever stands on units
    {"Height", kDouble},
};

inline constexpr PropertyRow kOpeningRows[] = {
    {"OpeningWidth",     kInteger, kElement, kShape},
    {"OpeningHeight",    kInteger},
    {"AboveFloorHeight", kInteger},
};
inline constexpr PropertyRow kDoorWithWindowRows[] = { // the divide between door and window
    {"WinDoorWidth",        kInteger},
    {"WindDoorFloorHeight", kInteger},
};

inline constexpr PropertyRow kBarRows[] = {
    {"BarInfo",       kText},
    {"Remark",        kText},
    {"CurveData",     kCurve,   kDrawObj},
    {"LeftHook",      kText,    kDrawObj}, // the decimal text of a length
    {"RightHook",     kText,    kDrawObj},
    {"LeftLabel",     kInteger, kDrawObj},
    {"RightLabel",    kInteger, kDrawObj},
    {"LabelPosition", kInteger, kDrawObj},
};
inline constexpr PropertyRow kAreaBarRows[] = {
    {"Type",              kInteger}, // 1: straddles several slabs, which its element tells, too
    {"Position",          kInteger, kDrawObj},
    {"IsRadiate",         kInteger, kDrawObj},
    {"ReferenceCurve",    kCurve,   kDrawObj},
    {"ReinforcementInfo", kText,    kDrawObj, kIds}, // its slabs or rafts
    {"Catalog",           kText,    kDrawObj, kIdInBrackets}, // name[id] of its first slab
};
inline constexpr PropertyRow kLineBarRows[] = {
    {"IncludeSupport", kInteger, kDrawObj},
    {"DependSlabID",   kInteger, kDrawObj, kIds}, // -1: none
};
inline constexpr PropertyRow kSlabBarRows[] = {
    {"DistributedBar",     kText, kDrawObj},
    {"SaddleBarLineCount", kText, kDrawObj},
};

inline constexpr PropertyRow kAxisRows[] = {
    {"Remark", kText},
};

inline constexpr TypeFamilies kTypeFamilies[] = {
    {0,    {kWallRows, kRecognisedWallRows, kForceWallRows}},
    {1,    {kWallRows}},
    {4,    {kOpeningRows}},
    {5,    {kOpeningRows}},
    {6,    {kOpeningRows, kDoorWithWindowRows}},
    {7,    {kOpeningRows}},
    {15,   {kBeamRows, kSpannedBeamRows, kFloorBeamRows}},
    {17,   {kBeamRows, kLinkBeamRows}},
    {18,   {kBeamRows, kSpannedBeamRows, kTieBeamRows}},
    {19,   {kPlateRows}},
    {22,   {kBarRows, kAreaBarRows, kSlabBarRows}},
    {23,   {kBarRows, kLineBarRows, kSlabBarRows}},
    {24,   {kHoleRows}},
    {25,   {kSectionRows, kColumnRows}},
    {26,   {kSectionRows, kColumnRows}},
    {47,   {kBeamRows, kSpannedBeamRows, kFoundationBeamRows}},
    {48,   {kPlateRows, kRaftRows}},
    {49,   {kBarRows, kAreaBarRows}},
    {50,   {kBarRows, kLineBarRows}},
    {52,   {kSectionRows, kFoundationRows, kUnitRows}},
    {53,   {kSectionRows, kFoundationRows, kUnitRows}},
    {54,   {kSectionRows, kFoundationRows, kUnitRows}},
    {74,   {kAxisRows}},
    {75,   {kAxisRows}},
    {82,   {kSectionRows, kUnitRows}},
    {83,   {kSectionRows, kUnitRows}},
    {202,  {kWallRows}},
    {1001, {kWallRows}},
    {1002, {kSectionRows, kColumnRows}},
    {1003, {kWallRows, kRecognisedWallRows, kBrickWallRows}},
};
// clang-format on

} // namespace hbx::embedded::rows

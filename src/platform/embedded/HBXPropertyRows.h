#pragma once

#include "platform/embedded/HBXElevationText.h"
#include "platform/embedded/HBXPropertyCatalogue.h"
#include "platform/services/HBXElementTypes.h"
#include "platform/services/HBXPropertyNames.h"

#include <cstddef>
#include <string>

/** The rows of the property catalogue, by families of types, and below them which families make up each type.
 *
 *  Kinds follow what a value is, not how a single caller reads it: sizes of structural parts are doubles, although most
 *  callers read them as integers, since a real building has sizes between whole millimetres. Sizes of openings, labels
 *  of bars, ids, flags and counts are whole numbers everywhere. */
namespace hbx::embedded::rows {

struct PropertyRow
{
    const std::wstring &name;
    PropertyKind kind;
    PropertyOwner owner = PropertyOwner::Element;
    PropertyRole role = PropertyRole::Plain;
    const char *defaultText = nullptr;
    const std::wstring *alias = nullptr;
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

// clang-format off
inline constexpr PropertyRow kWallRows[] = {
    // A wall fills its floor: a recognised piece without elevations leaves these as they are.
    {property::startPtTopElev,    kElevation, kElement, kPlain, kFloorTopWord},
    {property::endPtTopElev,      kElevation, kElement, kPlain, kFloorTopWord},
    {property::startPtBottomElev, kElevation, kElement, kPlain, kFloorBottomWord},
    {property::endPtBottomElev,   kElevation, kElement, kPlain, kFloorBottomWord},
    {property::thickness,         kDouble,    kElement, kShape},
    {property::axisOffset,        kDouble,    kElement, kShape, nullptr, &property::axisOffsetJzbz},
};
inline constexpr PropertyRow kRecognisedWallRows[] = {
    {property::type,                kInteger}, // 255: left out of recognition
    {property::horiDistributionBar, kText},
    {property::vertDistributionBar, kText},
};
inline constexpr PropertyRow kForceWallRows[] = {
    {property::tieBar, kText},
};
inline constexpr PropertyRow kBrickWallRows[] = {
    {property::material,          kText}, // a material's number; as text it can be empty, which stands for none
    {property::masonryThroughBar, kText},
    {property::transverseBar,     kText},
};

inline constexpr PropertyRow kBeamRows[] = {
    {property::sectionWidth,   kDouble,  kElement, kShape},
    {property::sectionHeight,  kDouble},
    {property::sectionTypeId,  kInteger},
    {property::sectionPoly,    kPolygon}, // across the axis: the plan does not follow it
    {property::insertPt,       kPoint},
    {property::axisOffset,     kDouble,  kElement, kShape, nullptr, &property::axisOffsetJzbz},
    {property::startPtTopElev, kElevation},
    {property::endPtTopElev,   kElevation},
    {property::hoopBar,        kText},
    {property::limb,           kText},
    {property::tieBar,         kText},
};
inline constexpr PropertyRow kSpannedBeamRows[] = {
    {property::spanCount,        kText}, // may carry cantilevers behind the number: 3A
    {property::topThroughBar,    kText},
    {property::bottomThroughBar, kText},
    {property::sideBar,          kText},
};
inline constexpr PropertyRow kFloorBeamRows[] = {
    {property::type1, kInteger},
};
inline constexpr PropertyRow kLinkBeamRows[] = {
    {property::topHoriBar,    kText},
    {property::bottomHoriBar, kText},
    {property::sideBarAl,     kText},
};
inline constexpr PropertyRow kFoundationBeamRows[] = {
    {property::type, kInteger},
};
inline constexpr PropertyRow kTieBeamRows[] = {
    {property::type,   kInteger},
    {property::type1,  kInteger}, // as of each seat of a beam
    {property::height, kDouble},  // as of each seat of a beam
};

inline constexpr PropertyRow kPlateRows[] = {
    {property::thickness,         kDouble,    kElement, kShape},
    {property::topElev,           kElevation},
    {property::remark,            kText},
    {property::reinforcementInfo, kText,      kDrawObj, kIds}, // its bars
};
inline constexpr PropertyRow kRaftRows[] = {
    {property::bottomElev, kElevation},
};
inline constexpr PropertyRow kHoleRows[] = {
    {property::sectionTypeId,          kInteger}, // 0 rectangle, 1 circle, 2 any outline
    {property::width,                  kDouble,  kElement, kShape},
    {property::length,                 kDouble,  kElement, kShape},
    {property::radius,                 kDouble,  kElement, kShape},
    {property::sectionPoly,            kPolygon, kElement, kShape},
    {property::insertPt,               kPoint,   kElement, kShape},
    {property::sectionInfo,            kText},
    {property::remark,                 kText},
    {property::longSpanReinforcedBar,  kText},
    {property::shortSpanReinforcedBar, kText},
    {property::obliqueReinforcedBar,   kText},
};

inline constexpr PropertyRow kSectionRows[] = {
    {property::sectionTypeId, kInteger},
    {property::sectionWidth,  kDouble,  kElement, kShape},
    {property::sectionHeight, kDouble,  kElement, kShape},
    {property::radius,        kDouble,  kElement, kShape},
    {property::sectionPoly,   kPolygon, kElement, kShape},
    {property::insertPt,      kPoint,   kElement, kShape},
    {property::sectionInfo,   kText},
};
inline constexpr PropertyRow kColumnRows[] = {
    {property::type,       kInteger}, // 2: an A column to the beams that rest on it
    {property::topElev,    kElevation},
    {property::bottomElev, kElevation},
};
inline constexpr PropertyRow kFoundationRows[] = {
    {property::type1,      kInteger},
    {property::topElev,    kElevation},
    {property::bottomElev, kElevation},
    {property::axisOffset, kDouble, kElement, kPlain, nullptr, &property::axisOffsetJzbz}, // as of each seat of a beam
};
inline constexpr PropertyRow kUnitRows[] = { // and of whatever stands on units
    {property::height, kDouble},
};

inline constexpr PropertyRow kOpeningRows[] = {
    {property::openingWidth,     kInteger, kElement, kShape},
    {property::openingHeight,    kInteger},
    {property::aboveFloorHeight, kInteger},
};
inline constexpr PropertyRow kDoorWithWindowRows[] = { // the divide between door and window
    {property::winDoorWidth,        kInteger},
    {property::windDoorFloorHeight, kInteger},
};

inline constexpr PropertyRow kBarRows[] = {
    {property::barInfo,       kText},
    {property::remark,        kText},
    {property::curveData,     kCurve,   kDrawObj},
    {property::leftHook,      kText,    kDrawObj}, // the decimal text of a length
    {property::rightHook,     kText,    kDrawObj},
    {property::leftLabel,     kInteger, kDrawObj},
    {property::rightLabel,    kInteger, kDrawObj},
    {property::labelPosition, kInteger, kDrawObj},
};
inline constexpr PropertyRow kAreaBarRows[] = {
    {property::type,              kInteger}, // 1: straddles several slabs, which its element tells, too
    {property::position,          kInteger, kDrawObj},
    {property::isRadiate,         kInteger, kDrawObj},
    {property::referenceCurve,    kCurve,   kDrawObj},
    {property::reinforcementInfo, kText,    kDrawObj, kIds}, // its slabs or rafts
    {property::catalog,           kText,    kDrawObj, kIdInBrackets}, // name[id] of its first slab
};
inline constexpr PropertyRow kLineBarRows[] = {
    {property::includeSupport, kInteger, kDrawObj},
    {property::dependSlabId,   kInteger, kDrawObj, kIds}, // -1: none
};
inline constexpr PropertyRow kSlabBarRows[] = {
    {property::distributedBar,     kText, kDrawObj},
    {property::saddleBarLineCount, kText, kDrawObj},
};

inline constexpr PropertyRow kAxisRows[] = {
    {property::remark, kText},
};

inline constexpr TypeFamilies kTypeFamilies[] = {
    {type::forceWall,              {kWallRows, kRecognisedWallRows, kForceWallRows}},
    {type::partitionWall,          {kWallRows}},
    {type::door,                   {kOpeningRows}},
    {type::window,                 {kOpeningRows}},
    {type::doorWithWindow,         {kOpeningRows, kDoorWithWindowRows}},
    {type::wallOpening,            {kOpeningRows}},
    {type::beam,                   {kBeamRows, kSpannedBeamRows, kFloorBeamRows}},
    {type::linkBeam,               {kBeamRows, kLinkBeamRows}},
    {type::tieBeam,                {kBeamRows, kSpannedBeamRows, kTieBeamRows}},
    {type::slab,                   {kPlateRows}},
    {type::slabBar,                {kBarRows, kAreaBarRows, kSlabBarRows}},
    {type::slabNegativeBar,        {kBarRows, kLineBarRows, kSlabBarRows}},
    {type::slabHole,               {kHoleRows}},
    {type::column,                 {kSectionRows, kColumnRows}},
    {type::tieColumn,              {kSectionRows, kColumnRows}},
    {type::foundationBeam,         {kBeamRows, kSpannedBeamRows, kFoundationBeamRows}},
    {type::raft,                   {kPlateRows, kRaftRows}},
    {type::raftBar,                {kBarRows, kAreaBarRows}},
    {type::raftNegativeBar,        {kBarRows, kLineBarRows}},
    {type::isolatedFoundation,     {kSectionRows, kFoundationRows, kUnitRows}},
    {type::pileCap,                {kSectionRows, kFoundationRows, kUnitRows}},
    {type::pile,                   {kSectionRows, kFoundationRows, kUnitRows}},
    {type::axisGrid,               {kAxisRows}},
    {type::axisLine,               {kAxisRows}},
    {type::isolatedFoundationUnit, {kSectionRows, kUnitRows}},
    {type::pileCapUnit,            {kSectionRows, kUnitRows}},
    {type::retainingWall,          {kWallRows}},
    {type::curtainWall,            {kWallRows}},
    {type::masonryColumn,          {kSectionRows, kColumnRows}},
    {type::brickWall,              {kWallRows, kRecognisedWallRows, kBrickWallRows}},
};
// clang-format on

} // namespace hbx::embedded::rows

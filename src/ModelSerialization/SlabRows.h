#pragma once

#include "ModelSerialization/SlabFieldKinds.h"
#include "slab/ORVCADBoardLocalModel_Sample.h"
#include "slab/SlabKeys.h"

#include <tuple>

/** The keys of the elements of the model document, array by array, in the order in which they are written.
 *
 *  A row is a key and a field, behind the word that says how: fieldOr is written and read plainly, fieldAs by a kind of
 *  SlabFieldKinds.h; part and partAs are the same for a value inside a field, ofGrid for one of an axis net's grid. An
 *  identity is read where its element is made. docs/formats/slab-model.md has these tables with what the keys mean. */
namespace slab {

using encoding::fieldAs;
using encoding::fieldOr;
using encoding::Flow;
using encoding::KernelText;

using Model = ORVCADBoardLocalModel_Sample;
using Object = Model::Object;
using LineObject = Model::LineObject;
using SectionObject = Model::SectionObject;
using Support = Model::Support;
using Column = Model::Column;
using Board = Model::Board;
using BoardHole = Model::BoardHole;
using Raft = Model::Raft;
using AreaBar = Model::AbstractForcedBar;
using ForcedBar = Model::ForcedBar;
using StraddleBar = Model::StraddleForcedBar;
using NegativeBar = Model::NegativeForcedBar;
using RaftBar = Model::RaftMainForcedBar;
using RaftStraddleBar = Model::RaftMainStraddleForcedBar;
using RaftNegativeBar = Model::RaftNegativeForcedBar;
using AxisNet = Model::AxisNet;
using Grid = AxisGrid_Sample;
using GridHalf = AxisGridHalf;
using Point = vks::CVec2<double>;

// clang-format off
// One row, one line.

/** What all elements but axis nets begin with. */
template <typename Id> inline constexpr auto elementRows = std::make_tuple(
    fieldAs<Id>(key::id, &Object::elementId),
    fieldAs<UuidText>(key::recongnizedID, &Object::recongnizedID, Flow::WriteOnly));

inline constexpr auto outlineRows = std::tuple_cat(elementRows<NarrowId>, std::make_tuple(
    fieldOr(key::name, &Object::name),
    fieldAs<KernelText>(key::surface, &SectionObject::surface)));

// ---- Slabs, holes and rafts

inline constexpr auto raftRows = std::tuple_cat(outlineRows, std::make_tuple(
    fieldAs<Magnitude>(key::thickness, &Raft::thickness), // meant: no sign
    fieldOr(key::topElev, &Raft::topElev),
    fieldOr(key::bottomElev, &Raft::bottomElev),
    fieldOr(key::stateDescript, &Object::stateDescript)));

inline constexpr auto boardRows = std::tuple_cat(outlineRows, std::make_tuple(
    fieldOr(key::thickness, &Board::thickness), // meant: with its sign, unlike a raft's
    fieldOr(key::elev, &Board::elev),
    fieldAs<EnumNumber>(key::type, &Board::boardType, Flow::WriteOnly), // meant: never read
    fieldOr(key::stateDescript, &Object::stateDescript)));

inline constexpr auto boardHoleRows = std::tuple_cat(outlineRows, std::make_tuple(
    fieldOr(key::barInfo, &BoardHole::barInfo),
    fieldOr(key::stateDescript, &Object::stateDescript),
    fieldOr(key::longSpanReinforceBar, &BoardHole::longSpanReinforceBar),
    fieldOr(key::shortSpanReinforceBar, &BoardHole::shortSpanReinforceBar),
    fieldOr(key::obliqueReinforceBar, &BoardHole::obliqueReinforceBar)));

// ---- Bars: what those of slabs and of rafts have in common

/** Top bars. */
template <typename Bar> inline constexpr auto negativeRows = std::tuple_cat(elementRows<NarrowId>, std::make_tuple(
    fieldOr(key::name, &Object::name),
    fieldAs<KernelText>(key::line, &LineObject::line),
    fieldOr(key::labelPosition, &Bar::labelPosition),
    fieldOr(key::leftStretchLength, &Bar::leftStretchLength),
    fieldOr(key::rightStretchLength, &Bar::rightStretchLength),
    fieldAs<CutLength>(key::leftHookLength, &Bar::leftHookLength),
    fieldAs<CutLength>(key::rightHookLength, &Bar::leftHookLength, Flow::WriteOnly), // meant: the left
    fieldAs<CutLength>(key::rightHookLength, &Bar::rightHookLength, Flow::ReadOnly),
    fieldOr(key::barInfo, &Bar::barInfo),
    part(key::refPointX, &Bar::refPoint, &Point::x),
    part(key::refPointY, &Bar::refPoint, &Point::y),
    fieldOr(key::refPointValid, &Bar::refPointValid),
    fieldAs<TextReadFromCode>(key::stateDescript, &Object::stateDescript),
    fieldOr(key::rowNumber, &Bar::rowNumber)));

/** Bars of an area. */
inline constexpr auto areaBarRows = std::tuple_cat(outlineRows, std::make_tuple(
    part(key::directionX, &AreaBar::direction, &Point::x),
    part(key::directionY, &AreaBar::direction, &Point::y),
    fieldOr(key::barInfo, &AreaBar::barInfo),
    part(key::refPointX, &AreaBar::refPoint, &Point::x),
    part(key::refPointY, &AreaBar::refPoint, &Point::y),
    fieldOr(key::refPointValid, &AreaBar::refPointValid),
    fieldOr(key::rowNumber, &AreaBar::rowNumber)));

template <typename Bar> inline constexpr auto mainRows = std::tuple_cat(areaBarRows, std::make_tuple(
    fieldOr(key::stateDescript, &Object::stateDescript),
    fieldOr(key::forcedType, &Bar::forcedType),
    fieldAs<CutLength>(key::leftHookLength, &AreaBar::leftHookLength),
    fieldAs<CutLength>(key::rightHookLength, &AreaBar::rightHookLength)));

template <typename Bar> inline constexpr auto straddleRows = std::tuple_cat(areaBarRows, std::make_tuple(
    fieldOr(key::labelPosition, &Bar::labelPosition),
    fieldOr(key::leftStretchLength, &Bar::leftStretchLength),
    fieldOr(key::rightStretchLength, &Bar::rightStretchLength),
    fieldOr(key::leftHookLength, &AreaBar::leftHookLength),
    fieldOr(key::rightHookLength, &AreaBar::rightHookLength),
    fieldAs<TextReadFromCode>(key::stateDescript, &Object::stateDescript)));

// ---- Bars of slabs

inline constexpr auto negativeForcedBarRows = std::tuple_cat(negativeRows<NegativeBar>, std::make_tuple(
    fieldOr(key::distributeBarInfo, &NegativeBar::distributeBarInfo),
    fieldOr(key::saddleBarlineCount, &NegativeBar::saddleBarlineCount)));

inline constexpr auto forcedBarRows = std::tuple_cat(mainRows<ForcedBar>, std::make_tuple(
    fieldAs<KernelText>(key::supportPoly, &ForcedBar::supportPoly)));

inline constexpr auto straddleForcedBarRows = std::tuple_cat(straddleRows<StraddleBar>, std::make_tuple(
    fieldOr(key::distributeBarInfo, &StraddleBar::distributeBarInfo),
    fieldOr(key::saddleBarlineCount, &StraddleBar::saddleBarlineCount),
    fieldAs<PolygonListText>(key::supportPolys, &StraddleBar::supportPolys, Flow::WriteOnly), // meant: never read, but
    fieldAs<PolygonListText>(key::surface, &StraddleBar::supportPolys, Flow::ReadOnly))); // meant: from the outline

// ---- Bars of rafts

inline constexpr auto raftNegativeForcedBarRows = negativeRows<RaftNegativeBar>;
inline constexpr auto raftMainForcedBarRows = mainRows<RaftBar>;
inline constexpr auto raftStraddleMainForcedBarRows = straddleRows<RaftStraddleBar>;

// ---- Supports

inline constexpr auto beamRows = std::tuple_cat(elementRows<IdReadFromText>, std::make_tuple(
    fieldAs<TextReadFromCode>(key::name, &Object::name),
    fieldAs<KernelText>(key::line, &LineObject::line),
    fieldOr(key::width, &Support::width),
    fieldOr(key::distanceToLeft, &Support::distanceToLeft),
    fieldOr(key::type, &Support::supportType),
    fieldOr(key::startPointTopElev, &LineObject::startTopElev),
    fieldOr(key::endPointTopElev, &LineObject::endTopElev)));

inline constexpr auto wallRows = std::tuple_cat(elementRows<IdReadFromText>, std::make_tuple(
    fieldOr(key::name, &Object::name),
    fieldAs<KernelText>(key::line, &LineObject::line),
    fieldOr(key::distanceToLeft, &Support::distanceToLeft),
    fieldOr(key::width, &Support::width),
    fieldOr(key::type, &Support::supportType))); // meant: the elevations of walls are not written

/** @param kind  the field that type() gives, which the services alone may name */
constexpr auto columnRows(Object::Types Object::*kind)
{
    return std::tuple_cat(elementRows<IdReadFromText>, std::make_tuple(
        fieldOr(key::name, &Object::name),
        fieldAs<KernelText>(key::surface, &SectionObject::surface),
        fieldAs<EnumNumber>(key::type, kind), // meant: the document's kind counts
        fieldOr(key::columnTopElev, &Column::topElev)));
}

// ---- Axes

inline constexpr auto axisGridRows = std::make_tuple(
    fieldAs<NarrowId>(key::id, &Object::elementId),
    fieldOr(key::name, &Object::name),
    fieldAs<KernelText>(key::surface, &AxisNet::surface),
    ofGrid(part(key::uStart, &Grid::gridU, &GridHalf::start)),
    ofGrid(part(key::uEnd, &Grid::gridU, &GridHalf::end)),
    ofGrid(part(key::vStart, &Grid::gridV, &GridHalf::start)),
    ofGrid(part(key::vEnd, &Grid::gridV, &GridHalf::end)),
    ofGrid(partAs<AxisListText>(key::uData, &Grid::gridU, &GridHalf::data)),
    ofGrid(partAs<AxisListText>(key::vData, &Grid::gridV, &GridHalf::data)));

// clang-format on

} // namespace slab

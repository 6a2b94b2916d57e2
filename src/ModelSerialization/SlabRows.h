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

// ---- Slabs, holes and rafts

inline constexpr auto raftRows = std::make_tuple(
    fieldAs<NarrowId>(key::id, &Object::elementId),
    fieldAs<UuidText>(key::recongnizedID, &Object::recongnizedID, Flow::WriteOnly),
    fieldOr(key::name, &Object::name),
    fieldAs<PolygonText>(key::surface, &SectionObject::surface),
    fieldAs<Magnitude>(key::thickness, &Raft::thickness), // meant: no sign
    fieldOr(key::topElev, &Raft::topElev),
    fieldOr(key::bottomElev, &Raft::bottomElev),
    fieldOr(key::stateDescript, &Object::stateDescript));

inline constexpr auto boardRows = std::make_tuple(
    fieldAs<NarrowId>(key::id, &Object::elementId),
    fieldAs<UuidText>(key::recongnizedID, &Object::recongnizedID, Flow::WriteOnly),
    fieldOr(key::name, &Object::name),
    fieldAs<PolygonText>(key::surface, &SectionObject::surface),
    fieldOr(key::thickness, &Board::thickness), // meant: with its sign, unlike a raft's
    fieldOr(key::elev, &Board::elev),
    fieldAs<EnumNumber>(key::type, &Board::boardType, Flow::WriteOnly), // meant: never read
    fieldOr(key::stateDescript, &Object::stateDescript));

inline constexpr auto boardHoleRows = std::make_tuple(
    fieldAs<NarrowId>(key::id, &Object::elementId),
    fieldAs<UuidText>(key::recongnizedID, &Object::recongnizedID, Flow::WriteOnly),
    fieldOr(key::name, &Object::name),
    fieldAs<PolygonText>(key::surface, &SectionObject::surface),
    fieldOr(key::barInfo, &BoardHole::barInfo),
    fieldOr(key::stateDescript, &Object::stateDescript),
    fieldOr(key::longSpanReinforceBar, &BoardHole::longSpanReinforceBar),
    fieldOr(key::shortSpanReinforceBar, &BoardHole::shortSpanReinforceBar),
    fieldOr(key::obliqueReinforceBar, &BoardHole::obliqueReinforceBar));

// ---- Bars of slabs

inline constexpr auto negativeForcedBarRows = std::make_tuple(
    fieldAs<NarrowId>(key::id, &Object::elementId),
    fieldAs<UuidText>(key::recongnizedID, &Object::recongnizedID, Flow::WriteOnly),
    fieldOr(key::name, &Object::name),
    fieldAs<CurveText>(key::line, &LineObject::line),
    fieldOr(key::labelPosition, &NegativeBar::labelPosition),
    fieldOr(key::leftStretchLength, &NegativeBar::leftStretchLength),
    fieldOr(key::rightStretchLength, &NegativeBar::rightStretchLength),
    fieldAs<CutLength>(key::leftHookLength, &NegativeBar::leftHookLength),
    fieldAs<CutLength>(key::rightHookLength, &NegativeBar::leftHookLength, Flow::WriteOnly), // meant: the left
    fieldAs<CutLength>(key::rightHookLength, &NegativeBar::rightHookLength, Flow::ReadOnly),
    fieldOr(key::barInfo, &NegativeBar::barInfo),
    part(key::refPointX, &NegativeBar::refPoint, &Point::x),
    part(key::refPointY, &NegativeBar::refPoint, &Point::y),
    fieldOr(key::refPointValid, &NegativeBar::refPointValid),
    fieldOr(key::distributeBarInfo, &NegativeBar::distributeBarInfo),
    fieldOr(key::saddleBarlineCount, &NegativeBar::saddleBarlineCount),
    fieldAs<TextReadFromCode>(key::stateDescript, &Object::stateDescript),
    fieldOr(key::rowNumber, &NegativeBar::rowNumber));

inline constexpr auto forcedBarRows = std::make_tuple(
    fieldAs<NarrowId>(key::id, &Object::elementId),
    fieldAs<UuidText>(key::recongnizedID, &Object::recongnizedID, Flow::WriteOnly),
    fieldOr(key::name, &Object::name),
    fieldAs<PolygonText>(key::surface, &SectionObject::surface),
    part(key::directionX, &AreaBar::direction, &Point::x),
    part(key::directionY, &AreaBar::direction, &Point::y),
    fieldOr(key::barInfo, &AreaBar::barInfo),
    part(key::refPointX, &AreaBar::refPoint, &Point::x),
    part(key::refPointY, &AreaBar::refPoint, &Point::y),
    fieldOr(key::refPointValid, &AreaBar::refPointValid),
    fieldOr(key::stateDescript, &Object::stateDescript),
    fieldOr(key::forcedType, &ForcedBar::forcedType),
    fieldOr(key::rowNumber, &AreaBar::rowNumber),
    fieldAs<CutLength>(key::leftHookLength, &AreaBar::leftHookLength),
    fieldAs<CutLength>(key::rightHookLength, &AreaBar::rightHookLength),
    fieldAs<PolygonText>(key::supportPoly, &ForcedBar::supportPoly));

inline constexpr auto straddleForcedBarRows = std::make_tuple(
    fieldAs<NarrowId>(key::id, &Object::elementId),
    fieldAs<UuidText>(key::recongnizedID, &Object::recongnizedID, Flow::WriteOnly),
    fieldOr(key::name, &Object::name),
    fieldAs<PolygonText>(key::surface, &SectionObject::surface),
    part(key::directionX, &AreaBar::direction, &Point::x),
    part(key::directionY, &AreaBar::direction, &Point::y),
    fieldOr(key::barInfo, &AreaBar::barInfo),
    part(key::refPointX, &AreaBar::refPoint, &Point::x),
    part(key::refPointY, &AreaBar::refPoint, &Point::y),
    fieldOr(key::refPointValid, &AreaBar::refPointValid),
    fieldOr(key::labelPosition, &StraddleBar::labelPosition),
    fieldOr(key::leftStretchLength, &StraddleBar::leftStretchLength),
    fieldOr(key::rightStretchLength, &StraddleBar::rightStretchLength),
    fieldOr(key::leftHookLength, &AreaBar::leftHookLength),
    fieldOr(key::rightHookLength, &AreaBar::rightHookLength),
    fieldAs<TextReadFromCode>(key::stateDescript, &Object::stateDescript),
    fieldOr(key::distributeBarInfo, &StraddleBar::distributeBarInfo),
    fieldOr(key::saddleBarlineCount, &StraddleBar::saddleBarlineCount),
    fieldOr(key::rowNumber, &AreaBar::rowNumber),
    fieldAs<PolygonListText>(key::supportPolys, &StraddleBar::supportPolys, Flow::WriteOnly), // meant: never read, but
    fieldAs<PolygonListText>(key::surface, &StraddleBar::supportPolys, Flow::ReadOnly)); // meant: from the outline

// ---- Bars of rafts

inline constexpr auto raftNegativeForcedBarRows = std::make_tuple(
    fieldAs<NarrowId>(key::id, &Object::elementId),
    fieldAs<UuidText>(key::recongnizedID, &Object::recongnizedID, Flow::WriteOnly),
    fieldOr(key::name, &Object::name),
    fieldAs<CurveText>(key::line, &LineObject::line),
    fieldOr(key::labelPosition, &RaftNegativeBar::labelPosition),
    fieldOr(key::leftStretchLength, &RaftNegativeBar::leftStretchLength),
    fieldOr(key::rightStretchLength, &RaftNegativeBar::rightStretchLength),
    fieldAs<CutLength>(key::leftHookLength, &RaftNegativeBar::leftHookLength),
    fieldAs<CutLength>(key::rightHookLength, &RaftNegativeBar::leftHookLength, Flow::WriteOnly), // meant: the left
    fieldAs<CutLength>(key::rightHookLength, &RaftNegativeBar::rightHookLength, Flow::ReadOnly),
    fieldOr(key::barInfo, &RaftNegativeBar::barInfo),
    part(key::refPointX, &RaftNegativeBar::refPoint, &Point::x),
    part(key::refPointY, &RaftNegativeBar::refPoint, &Point::y),
    fieldOr(key::refPointValid, &RaftNegativeBar::refPointValid),
    fieldAs<TextReadFromCode>(key::stateDescript, &Object::stateDescript),
    fieldOr(key::rowNumber, &RaftNegativeBar::rowNumber));

inline constexpr auto raftMainForcedBarRows = std::make_tuple(
    fieldAs<NarrowId>(key::id, &Object::elementId),
    fieldAs<UuidText>(key::recongnizedID, &Object::recongnizedID, Flow::WriteOnly),
    fieldOr(key::name, &Object::name),
    fieldAs<PolygonText>(key::surface, &SectionObject::surface),
    part(key::directionX, &AreaBar::direction, &Point::x),
    part(key::directionY, &AreaBar::direction, &Point::y),
    fieldOr(key::barInfo, &AreaBar::barInfo),
    part(key::refPointX, &AreaBar::refPoint, &Point::x),
    part(key::refPointY, &AreaBar::refPoint, &Point::y),
    fieldOr(key::refPointValid, &AreaBar::refPointValid),
    fieldOr(key::stateDescript, &Object::stateDescript),
    fieldOr(key::forcedType, &RaftBar::forcedType),
    fieldOr(key::rowNumber, &AreaBar::rowNumber),
    fieldAs<CutLength>(key::leftHookLength, &AreaBar::leftHookLength),
    fieldAs<CutLength>(key::rightHookLength, &AreaBar::rightHookLength));

inline constexpr auto raftStraddleMainForcedBarRows = std::make_tuple(
    fieldAs<NarrowId>(key::id, &Object::elementId),
    fieldAs<UuidText>(key::recongnizedID, &Object::recongnizedID, Flow::WriteOnly),
    fieldOr(key::name, &Object::name),
    fieldAs<PolygonText>(key::surface, &SectionObject::surface),
    part(key::directionX, &AreaBar::direction, &Point::x),
    part(key::directionY, &AreaBar::direction, &Point::y),
    fieldOr(key::barInfo, &AreaBar::barInfo),
    part(key::refPointX, &AreaBar::refPoint, &Point::x),
    part(key::refPointY, &AreaBar::refPoint, &Point::y),
    fieldOr(key::refPointValid, &AreaBar::refPointValid),
    fieldOr(key::labelPosition, &RaftStraddleBar::labelPosition),
    fieldOr(key::leftStretchLength, &RaftStraddleBar::leftStretchLength),
    fieldOr(key::rightStretchLength, &RaftStraddleBar::rightStretchLength),
    fieldOr(key::leftHookLength, &AreaBar::leftHookLength),
    fieldOr(key::rightHookLength, &AreaBar::rightHookLength),
    fieldAs<TextReadFromCode>(key::stateDescript, &Object::stateDescript),
    fieldOr(key::rowNumber, &AreaBar::rowNumber));

// ---- Supports

inline constexpr auto beamRows = std::make_tuple(
    fieldAs<IdReadFromText>(key::id, &Object::elementId),
    fieldAs<UuidText>(key::recongnizedID, &Object::recongnizedID, Flow::WriteOnly),
    fieldAs<TextReadFromCode>(key::name, &Object::name),
    fieldAs<CurveText>(key::line, &LineObject::line),
    fieldOr(key::width, &Support::width),
    fieldOr(key::distanceToLeft, &Support::distanceToLeft),
    fieldOr(key::type, &Support::supportType),
    fieldOr(key::startPointTopElev, &LineObject::startTopElev),
    fieldOr(key::endPointTopElev, &LineObject::endTopElev));

inline constexpr auto wallRows = std::make_tuple(
    fieldAs<IdReadFromText>(key::id, &Object::elementId),
    fieldAs<UuidText>(key::recongnizedID, &Object::recongnizedID, Flow::WriteOnly),
    fieldOr(key::name, &Object::name),
    fieldAs<CurveText>(key::line, &LineObject::line),
    fieldOr(key::distanceToLeft, &Support::distanceToLeft),
    fieldOr(key::width, &Support::width),
    fieldOr(key::type, &Support::supportType)); // meant: the elevations of walls are not written

/** @param kind  the field that type() gives, which the services alone may name */
constexpr auto columnRows(Object::Types Object::*kind)
{
    return std::make_tuple(
        fieldAs<IdReadFromText>(key::id, &Object::elementId),
        fieldAs<UuidText>(key::recongnizedID, &Object::recongnizedID, Flow::WriteOnly),
        fieldOr(key::name, &Object::name),
        fieldAs<PolygonText>(key::surface, &SectionObject::surface),
        fieldAs<EnumNumber>(key::type, kind), // meant: the document's kind counts
        fieldOr(key::columnTopElev, &Column::topElev));
}

// ---- Axes

inline constexpr auto axisGridRows = std::make_tuple(
    fieldAs<NarrowId>(key::id, &Object::elementId),
    fieldOr(key::name, &Object::name),
    fieldAs<PolygonText>(key::surface, &AxisNet::surface),
    ofGrid(part(key::uStart, &Grid::gridU, &GridHalf::start)),
    ofGrid(part(key::uEnd, &Grid::gridU, &GridHalf::end)),
    ofGrid(part(key::vStart, &Grid::gridV, &GridHalf::start)),
    ofGrid(part(key::vEnd, &Grid::gridV, &GridHalf::end)),
    ofGrid(partAs<AxisListText>(key::uData, &Grid::gridU, &GridHalf::data)),
    ofGrid(partAs<AxisListText>(key::vData, &Grid::gridV, &GridHalf::data)));

// clang-format on

} // namespace slab

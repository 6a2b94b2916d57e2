#include "cli/DrawingSetShape.h"

#include "cli/Command.h"
#include "cli/Files.h"
#include "cli/Message.h"
#include "drawing/DrawingKeys.h"

#include <algorithm>
#include <iterator>

namespace orvcad {

namespace {

namespace key = drawing::key;
using Kind = JsonShape::Kind;

constexpr JsonShape kText{Kind::Text};
constexpr JsonShape kWhole{Kind::Whole};
constexpr JsonShape kWhole32{Kind::Whole32};
constexpr JsonShape kNumber{Kind::Number};
constexpr JsonShape kNumberOrNull{Kind::NumberOrNull};
constexpr JsonShape kTexts = listOf(kText);
constexpr JsonShape kWholes = listOf(kWhole);
constexpr JsonShape kRange = listOf(kWhole32, 4);
constexpr JsonShape kPoint = listOf(kNumberOrNull, 2);

constexpr JsonShape::Member kParentMembers[] = {
    {key::parentDrawing, &kText}, {key::subDrawing, &kTexts}, {key::count, &kWhole32}};
constexpr JsonShape kParent = objectOf(kParentMembers);
constexpr JsonShape kParents = listOf(kParent);
constexpr JsonShape::Member kSplitMembers[] = {{key::savePath, &kText}, {key::drawingInfo, &kParents}};
constexpr JsonShape kSplit = orEmpty(objectOf(kSplitMembers));

constexpr JsonShape kRows = mapOf(kTexts);
constexpr JsonShape kGradesOfRow = mapOf(kText);
constexpr JsonShape kGrades = mapOf(kGradesOfRow);
constexpr JsonShape::Member kTableMembers[] = {{key::type, &kText},
                                               {key::lowerDrawingName, &kText},
                                               {key::range, &kRange},
                                               {key::data, &kRows},
                                               {key::concrete, &kGrades}};
constexpr JsonShape kTable = objectOf(kTableMembers);
constexpr JsonShape kTables = mapOf(kTable);

constexpr JsonShape::Member kFloorMembers[] = {
    {key::name, &kText},         {key::code, &kText, JsonShape::Missing::Taken},
    {key::bottomElev, &kNumber}, {key::height, &kNumber},
    {key::stdCount, &kWhole32},  {key::remark, &kText}};
constexpr JsonShape kFloor = objectOf(kFloorMembers);
constexpr JsonShape kFloors = listOf(kFloor);
constexpr JsonShape::Member kFloorInfoMembers[] = {{key::areaName, &kText}, {key::floors, &kFloors}};
constexpr JsonShape kFloorInfos = orEmpty(objectOf(kFloorInfoMembers));

constexpr JsonShape::Member kPlaceMembers[] = {
    {key::regionId, &kWhole}, {key::floorName, &kText}, {key::drawingNames, &kTexts}};
constexpr JsonShape kPlace = objectOf(kPlaceMembers);
constexpr JsonShape kPlaces = orEmpty(listOf(kPlace));

constexpr JsonShape::Member kContentMembers[] = {{key::drawingName, &kText}, {key::elementTypes, &kTexts}};
constexpr JsonShape kContent = objectOf(kContentMembers);
constexpr JsonShape kContents = orEmpty(listOf(kContent));

constexpr JsonShape::Member kLayerMembers[] = {{key::layerName, &kText}, {key::cadEdoIds, &kWholes}};
constexpr JsonShape kLayer = objectOf(kLayerMembers);
constexpr JsonShape kLayers = listOf(kLayer);
constexpr JsonShape::Member kGroupMembers[] = {
    {key::drawingName, &kText}, {key::elementType, &kText}, {key::layers, &kLayers}};
constexpr JsonShape kGroup = objectOf(kGroupMembers);
constexpr JsonShape kGroups = orEmpty(listOf(kGroup));

constexpr JsonShape::Member kScaleMembers[] = {
    {key::lowerDrawingName, &kText}, {key::originScale, &kNumberOrNull}, {key::newScale, &kNumber}};
constexpr JsonShape kScale = objectOf(kScaleMembers);
constexpr JsonShape kScales = orEmpty(listOf(kScale));

constexpr JsonShape::Member kCrossingMembers[] = {
    {key::bayNum, &kText}, {key::depthNum, &kText}, {key::point, &kPoint}};
constexpr JsonShape kCrossing = objectOf(kCrossingMembers);
constexpr JsonShape kCrossings = listOf(kCrossing);
constexpr JsonShape::Member kLocationMembers[] = {{key::lowerDrawingName, &kText}, {key::axisInfo, &kCrossings}};
constexpr JsonShape kLocation = objectOf(kLocationMembers);
constexpr JsonShape kLocations = orEmpty(listOf(kLocation));

constexpr JsonShape::Member kSetMembers[] = {
    {key::splitDrawing, &kSplit},    {key::parseDrawing, &kTables},       {key::floorInfos, &kFloorInfos},
    {key::matchFloorInfo, &kPlaces}, {key::matchElementInfo, &kContents}, {key::classifyLayer, &kGroups},
    {key::reviseScale, &kScales},    {key::locateDrawing, &kLocations},
};
constexpr JsonShape kSet = closed(objectOf(kSetMembers));

bool hasNoStage(const QJsonObject &set)
{
    return std::none_of(std::begin(kSetMembers), std::end(kSetMembers),
                        [&](const JsonShape::Member &stage) { return set.contains(stage.key); });
}

} // namespace

std::optional<JsonFault> drawingSetFault(const QJsonObject &set)
{
    if (hasNoStage(set))
        return JsonFault{QString(), Message::tr("no drawing-set file: none of its stages is there")};
    return firstFault(set, kSet);
}

std::vector<JsonFault> unreadInDrawingSet(const QJsonObject &set) { return unknownMembers(set, kSet); }

QJsonObject readDrawingSet(const QString &path)
{
    QJsonObject set = readJsonObject(path, Message::tr("drawing-set file"));
    if (const auto fault = drawingSetFault(set))
        throw CommandFailure(kBadInput, path, fault->place, fault->reason);
    return set;
}

} // namespace orvcad

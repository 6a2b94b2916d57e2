#include "cli/FloorExchange.h"

#include "cli/Command.h"
#include "cli/Files.h"
#include "cli/JsonDifference.h"
#include "cli/Message.h"
#include "drawing/DrawingKeys.h"

#include <QJsonArray>

#include <algorithm>

namespace orvcad {

namespace {

namespace key = drawing::key;
using Faults = std::vector<JsonFault>;
using Kind = JsonShape::Kind;
constexpr auto kTaken = JsonShape::Missing::Taken;

// The format, in the order in which its reader goes through it. The reader itself tells no place.

constexpr JsonShape kWhole{Kind::Whole32};
constexpr JsonShape kNumber{Kind::Number};
constexpr JsonShape kText{Kind::TextOrPassedOver};

constexpr JsonShape::Member kRegionMembers[] = {{key::id, &kWhole, kTaken}, {key::description, &kText, kTaken}};
constexpr JsonShape kRegion = objectOf(kRegionMembers);

constexpr JsonShape::Member kSettingMembers[] = {
    {key::typeId, &kWhole, kTaken},          {key::basicElementTypeId, &kWhole, kTaken},
    {key::concGradeId, &kWhole, kTaken},     {key::concTypeId, &kWhole, kTaken},
    {key::mortarGradeId, &kWhole, kTaken},   {key::mortarTypeId, &kWhole, kTaken},
    {key::aseismicLevelId, &kWhole, kTaken}, {key::anchor1, &kText, kTaken},
    {key::anchor2, &kText, kTaken},          {key::anchor3, &kText, kTaken},
    {key::anchor4, &kText, kTaken},          {key::anchor5, &kText, kTaken},
    {key::anchor6, &kText, kTaken},          {key::joint1, &kText, kTaken},
    {key::joint2, &kText, kTaken},           {key::joint3, &kText, kTaken},
    {key::joint4, &kText, kTaken},           {key::joint5, &kText, kTaken},
    {key::joint6, &kText, kTaken},           {key::protectiveLayerThickness, &kWhole, kTaken},
    {key::remark, &kText, kTaken},
};
constexpr JsonShape kSetting = objectOf(kSettingMembers);
constexpr JsonShape kSettings = listOf(kSetting);

constexpr JsonShape::Member kFloorMembers[] = {
    {key::id, &kWhole, kTaken},
    {key::description, &kText, kTaken},
    {key::height, &kNumber, kTaken},
    {key::stdFloorCount, &kWhole, kTaken},
    {key::structuralElevation, &kNumber, kTaken},
    {key::startFloorNo, &kWhole, kTaken},
    {key::remark, &kText, kTaken},
    {key::code, &kText, kTaken},
    {key::slabThickness, &kNumber, kTaken},
    {key::floorArea, &kNumber, kTaken},
    {key::relatedFloorId, &kText, kTaken},
    {key::region, &kRegion},
    {key::concreteAnchorJoint, &kSettings, kTaken},
};
constexpr JsonShape kFloor = objectOf(kFloorMembers);
constexpr JsonShape kFloors = listOf(kFloor);

constexpr JsonShape::Member kDocumentMembers[] = {{key::floorSdcData, &kFloors}};
constexpr JsonShape kDocument = closed(objectOf(kDocumentMembers));

// Comparison of a document with what is written from it.

/** The shape of the entries of a list, or of the value itself. */
const JsonShape &entryOf(const JsonShape &shape) { return shape.kind == Kind::List ? *shape.element : shape; }

/** Whether the format has a key, told with the keys of the objects that it stands in. */
bool isKnown(const QStringList &keys)
{
    const JsonShape *shape = &kDocument;
    for (const QString &key : keys) {
        const JsonShape::Member *member = entryOf(*shape).member(key);
        if (!member)
            return false;
        shape = member->shape;
    }
    return true;
}

QString whyLost(const JsonDifference &lost)
{
    if (!isKnown(lost.keys))
        return Message::tr("is no key of this format");
    return lost.keys.last() == key::concreteAnchorJoint ? Message::tr("is empty, so it is not written")
                                                        : Message::tr("is no text, so the field has no value");
}

QString reasonOf(const JsonDifference &difference)
{
    if (difference.after.isUndefined())
        return whyLost(difference);
    if (difference.before.isUndefined())
        return Message::tr("is written and was not there");
    return Message::tr("is written as another value");
}

/** An empty list of settings says as little as none. */
bool isLoss(const JsonDifference &difference)
{
    return !difference.before.isUndefined() &&
           !(difference.before.isArray() && difference.before.toArray().isEmpty() && isKnown(difference.keys));
}

int lossesBetween(const QJsonObject &before, const QJsonObject &after)
{
    const auto all = differencesBetween(before, after);
    return static_cast<int>(std::count_if(all.begin(), all.end(), isLoss));
}

Faults differences(const QJsonObject &before, const QJsonObject &after)
{
    Faults faults;
    for (const JsonDifference &difference : differencesBetween(before, after))
        faults.push_back({difference.place, reasonOf(difference)});
    return faults;
}

/** Throws for a document that the reader refuses. */
std::vector<ORVCADFloorSDCData::Floor> readFloors(const QJsonObject &document, const QString &path)
{
    bool ok = false;
    auto floors = ORVCADFloorSDCData().unserialize(document, ok);
    if (ok)
        return floors;
    const JsonFault fault = firstRefusal(document).value_or(
        JsonFault{QStringLiteral("%1[%2]").arg(key::floorSdcData).arg(floors.size()), Message::tr("is refused")});
    throw CommandFailure(kBadInput, path, fault.place, fault.reason);
}

} // namespace

std::optional<JsonFault> firstRefusal(const QJsonObject &document)
{
    if (!document.contains(key::floorSdcData))
        return JsonFault{QString(), Message::tr("no floor exchange: %1 is missing").arg(key::floorSdcData)};
    return firstFault(document, kDocument);
}

FloorExchange readFloorExchange(const QString &path)
{
    const QJsonObject document = readJsonObject(path, Message::tr("floor exchange"));
    const ORVCADFloorSDCData format;
    FloorExchange exchange;
    exchange.floors = readFloors(document, path);
    exchange.written = format.serialize(exchange.floors);
    exchange.notKept = differences(document, exchange.written);
    exchange.lost = lossesBetween(document, exchange.written);
    exchange.notStable = differences(exchange.written, format.serialize(readFloors(exchange.written, path)));
    return exchange;
}

} // namespace orvcad

#include "doorwindow/ORVCADWinDoorElementStruct.h"

#include "doorwindow/DoorWindowKeys.h"
#include "encoding/RecordFields.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXProperties.h"
#include "platform/host/IHBXRegion.h"

using namespace doorwindow;
using encoding::field;

struct ORVCADWinDoorElementStruct::Fields
{
    using Record = ORVCADWinDoorElementStruct;
    static constexpr auto table = std::make_tuple(
        field(key::name, &Record::name), field(key::height, &Record::openingHeight),
        field(key::width, &Record::openingWidth), field(key::heightFromFloor, &Record::aboveFloorHeight),
        field(key::elementType, &Record::elementType), field(key::elementSubType, &Record::elementSubType),
        field(key::floorName, &Record::floorName), field(key::regionName, &Record::regionName),
        field(key::elementId, &Record::elementID));
};

void ORVCADWinDoorElementStruct::loadFromHBX(IHBXElement *element)
{
    if (!element)
        return;
    elementID = element->id();
    element->name(name);
    elementType = static_cast<int>(element->type());
    elementSubType = static_cast<int>(element->subType());
    if (const IHBXProperties *properties = element->properties()) {
        aboveFloorHeight = properties->asInt(property::aboveFloorHeight);
        openingHeight = properties->asInt(property::openingHeight);
        openingWidth = properties->asInt(property::openingWidth);
    }
    if (const IHBXFloor *floor = element->floor())
        floor->code(floorName);
    if (const IHBXRegion *region = element->region())
        regionName = region->name();
}

QJsonObject ORVCADWinDoorElementStruct::toJson() const { return encoding::writtenFields(*this, Fields::table); }

ORVCADWinDoorElementStruct ORVCADWinDoorElementStruct::fromJson(const QJsonObject &json)
{
    return encoding::readRecord<ORVCADWinDoorElementStruct>(json, Fields::table);
}

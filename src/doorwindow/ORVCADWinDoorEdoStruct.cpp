#include "doorwindow/ORVCADWinDoorEdoStruct.h"

#include "doorwindow/DoorWindowKeys.h"
#include "encoding/RecordFields.h"
#include "platform/host/IHBXCustomPointSolidShape.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXProperties.h"
#include "platform/host/IHBXRegion.h"

using namespace doorwindow;
using encoding::field;

struct ORVCADWinDoorEdoStruct::Fields
{
    using Record = ORVCADWinDoorEdoStruct;
    static constexpr auto table =
        std::make_tuple(field(key::elementName, &Record::elementName), field(key::x, &Record::x),
                        field(key::y, &Record::y), field(key::heightFromFloor, &Record::aboveFloorHeight),
                        field(key::floorName, &Record::floorName), field(key::regionName, &Record::regionName));
};

namespace {

/** Insertion point in the world; the origin for a shape that is no point solid. */
vks::CVec2<double> worldPlace(IHBXShape *shape)
{
    const auto *solid = dynamic_cast<IHBXCustomPointSolidShape *>(shape);
    if (!solid)
        return {};
    vks::CVec2<double> point;
    solid->insertPoint(point);
    vks::CCoord3<double> frame;
    solid->coordinates(frame, IHBXModel::g_bDefaultAutoCalc);
    if (frame.IsAbsent())
        return point;
    const vks::CVec3<double> world = frame.ToWorld(point);
    return {world.x, world.y};
}

} // namespace

void ORVCADWinDoorEdoStruct::loadFromEdo(IHBXElementDrawObj *drawObj)
{
    if (!drawObj)
        return;
    if (const IHBXElement *element = drawObj->element())
        element->name(elementName);
    if (const IHBXFloor *floor = drawObj->floor())
        floor->code(floorName);
    if (const IHBXRegion *region = drawObj->region())
        regionName = region->name();
    const vks::CVec2<double> place = worldPlace(drawObj->shape());
    x = place.x;
    y = place.y;
    const IHBXProperties *properties = drawObj->properties();
    aboveFloorHeight = properties ? properties->asInt(property::aboveFloorHeight) : 0;
}

QJsonObject ORVCADWinDoorEdoStruct::toJson() const { return encoding::writtenFields(*this, Fields::table); }

ORVCADWinDoorEdoStruct ORVCADWinDoorEdoStruct::fromJson(const QJsonObject &json)
{
    return encoding::readRecord<ORVCADWinDoorEdoStruct>(json, Fields::table);
}

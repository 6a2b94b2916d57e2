#include "doorwindow/JsonDoorWin2HBX.h"

#include "doorwindow/DoorWindowKeys.h"
#include "doorwindow/ORVCADWinDoorEdoStruct.h"
#include "doorwindow/ORVCADWinDoorElementStruct.h"
#include "platform/host/HBXModelException.h"
#include "platform/host/IHBXCustomLineSolidShape.h"
#include "platform/host/IHBXCustomPointSolidShape.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXElements.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXFloors.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXProperties.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXRegions.h"
#include "platform/host/IHBXService.h"

#include <QJsonArray>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

using namespace doorwindow;

namespace {

constexpr double kWallSearchHalfSize = 5.0; // mm, half the box about an opening's point
constexpr double kOverlapTolerance = std::numeric_limits<double>::epsilon(); // mm, boxes this far apart still touch
constexpr double kBoxValidityTolerance = 1e-12;                              // mm, a box may be this much inside out
constexpr double kRoundsFrom = 0.4;                                          // smallest amount that roundHalf rounds
constexpr int kElementMode = 4; // of making an element, as the host is told

struct SubTypeOfType
{
    qint64 elementType;
    qint64 subType;
};
constexpr SubTypeOfType kFixedSubTypes[] = {{type::door, 14}, {type::window, 76}, {type::wallOpening, 78}};

bool hasFixedSubType(qint64 elementType)
{
    return std::any_of(std::begin(kFixedSubTypes), std::end(kFixedSubTypes),
                       [elementType](const SubTypeOfType &fixed) { return fixed.elementType == elementType; });
}

/** Sets a size; the inner divide of a combined door and window moves to the middle when the opening shrinks past it. */
void setSizeKeepingDivide(const IHBXElement &element, IHBXProperties &properties, const std::wstring &sizeName,
                          const std::wstring &divideName, int size)
{
    if (!properties.hasProperty(sizeName))
        return;
    const bool divided = element.type() == type::doorWithWindow && properties.hasProperty(divideName);
    if (divided && size <= properties.asInt(divideName))
        properties.setInt(divideName, static_cast<int>(roundHalf(size * 0.5)), false);
    properties.setInt(sizeName, size, false);
}

void createOpeningElement(IHBXModel &model, const ORVCADWinDoorElementStruct &record)
{
    IHBXRegion *region = model.regions()->find(record.regionName);
    if (!region)
        return;
    // An unknown floor goes to the host as null: what becomes of it is the host's decision.
    IHBXFloor *floor = region->floors()->findByCode(record.floorName);
    const qint64 subType = openingSubType(record.elementType, record.elementSubType);
    IHBXElement *element =
        model.elements()->createElement(record.elementType, subType, nullptr, floor, kElementMode, QString(), 0);
    if (!element)
        return;
    element->setName(record.name);
    setOpeningSize(*element, record.openingWidth, record.openingHeight);
    // Meant: the combined kind (6) keeps the height that the host gives it.
    IHBXProperties *properties = hasFixedSubType(record.elementType) ? element->properties() : nullptr;
    if (properties)
        properties->setInt(property::aboveFloorHeight, record.aboveFloorHeight, false);
}

/** The first wall of the floor, in the host's order, whose box touches the search box about the point; null if none. */
IHBXElementDrawObj *findWallAt(IHBXFloor &floor, const vks::CVec2<double> &point)
{
    const auto search = vks::CBox2<double>(point, point).Grown(kWallSearchHalfSize);
    QList<IHBXElementDrawObj *> walls;
    floor.drawObjsOfTypes(walls, {type::brickWall, type::curtainWall, type::forceWall}, true);
    for (IHBXElementDrawObj *wall : qAsConst(walls)) {
        const auto *shape = dynamic_cast<IHBXCustomLineSolidShape *>(wall->shape());
        if (!shape)
            continue;
        vks::CBox2<double> box;
        shape->box(box, IHBXModel::g_bDefaultAutoCalc);
        const bool valid = box.IsValid(kBoxValidityTolerance) && search.IsValid(kBoxValidityTolerance);
        if (valid && box.Touches(search, kOverlapTolerance))
            return wall;
    }
    return nullptr;
}

void placeOpening(IHBXModel &model, IHBXDrawObjs &drawObjs, const ORVCADWinDoorEdoStruct &record)
{
    IHBXRegion *region = model.regions()->find(record.regionName);
    IHBXFloor *floor = region ? region->floors()->findByCode(record.floorName) : nullptr;
    if (!floor)
        return;
    IHBXElement *element = model.elements()->findElement(record.elementName, floor->id(), -1, true, 0);
    if (!element)
        return;
    IHBXElementDrawObj *opening = drawObjs.createDrawObj(floor, element, true);
    if (!opening)
        return;
    drawObjs.addDrawObj(opening);

    const vks::CVec2<double> point(record.x, record.y);
    if (IHBXElementDrawObj *wall = findWallAt(*floor, point))
        opening->attachTo(wall);
    if (auto *shape = dynamic_cast<IHBXCustomPointSolidShape *>(opening->shape()))
        shape->setInsertPoint(&point);
    if (IHBXProperties *properties = opening->properties())
        properties->setInt(property::aboveFloorHeight, record.aboveFloorHeight, false);
}

void writeMember(IHBXModel &model, IHBXDrawObjs &drawObjs, const QJsonObject &member)
{
    try {
        if (member.contains(key::elementId))
            createOpeningElement(model, ORVCADWinDoorElementStruct::fromJson(member));
        else
            placeOpening(model, drawObjs, ORVCADWinDoorEdoStruct::fromJson(member));
    } catch (const HBXModelException &) {
        // The host refused a write: this member ends here, what was made of it stays.
    }
}

} // namespace

namespace doorwindow {

qint64 openingSubType(qint64 elementType, qint64 namedSubType)
{
    for (const auto &fixed : kFixedSubTypes)
        if (fixed.elementType == elementType)
            return fixed.subType;
    return namedSubType;
}

void setOpeningSize(IHBXElement &element, int width, int height)
{
    IHBXProperties *properties = element.properties();
    if (!properties)
        return;
    setSizeKeepingDivide(element, *properties, property::openingWidth, property::winDoorWidth, width);
    setSizeKeepingDivide(element, *properties, property::openingHeight, property::windDoorFloorHeight, height);
}

double roundHalf(double value)
{
    if (value > kRoundsFrom)
        return std::floor(value + 0.5);
    if (value < -kRoundsFrom)
        return -std::floor(0.5 - value);
    return 0.0;
}

} // namespace doorwindow

bool jsonDoorWin2HBX(IHBXService *service, const QJsonObject &reply)
{
    const QJsonArray members = reply[key::reply].toObject()[key::elementsAndEdos].toArray();
    IHBXModel *model = service ? service->model() : nullptr;
    IHBXDrawObjs *drawObjs = model ? model->drawObjects() : nullptr;
    if (!drawObjs)
        return false;
    for (const QJsonValue &member : members)
        writeMember(*model, *drawObjs, member.toObject());
    return false; // meant: the result says nothing, also after success
}

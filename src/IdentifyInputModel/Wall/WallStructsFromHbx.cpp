#include "IdentifyInputModel/Wall/WallStructsFromHbx.h"

#include "IdentifyInputModel/Wall/WallElementReading.h"
#include "IdentifyInputModel/Wall/WallTextRows.h"
#include "platform/geometry/OrientProjectCurve2d.h"
#include "platform/host/IHBXCustomLineSolidShape.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXRegion.h"

using namespace wall;

namespace {

/** Sub-types that are told as another one of their kind. */
struct SubTypeRow
{
    qint64 wallType;
    int subType;
    int toldAs;
};
constexpr SubTypeRow kSubTypes[] = {
    {type::brickWall, 314, 316}, {type::brickWall, 315, 316}, {type::forceWall, 8, 7}, {type::forceWall, 9, 7}};

int toldSubType(qint64 wallType, int subType)
{
    for (const SubTypeRow &row : kSubTypes)
        if (row.wallType == wallType && row.subType == subType)
            return row.toldAs;
    return subType;
}

/** Region and floor of an element or a draw object. */
template <typename Object, typename Record> void readPlace(const Object &object, Record &record)
{
    QString code;
    if (const IHBXFloor *floor = object.floor())
        record.floorCode = floor->code(code).toStdWString();
    if (const IHBXRegion *region = object.region())
        record.region = region->name().toStdWString();
}

/** @return the element's properties, null if it has none
 *  @param wallType  kind of the record, whatever the element's type is */
template <typename Record, std::size_t count>
const IHBXProperties *readElement(IHBXElement &element, qint64 wallType, const TextRow<Record> (&texts)[count],
                                  Record &record)
{
    readHead(element, record);
    record.elementSubType = toldSubType(wallType, record.elementSubType);
    readPlace(element, record);
    const IHBXProperties *properties = element.properties();
    if (!properties)
        return nullptr;
    for (const TextRow<Record> &row : texts)
        if (properties->hasProperty(row.name))
            record.*row.member = textOf(*properties, row.name);
    record.width = properties->asInt(property::thickness);
    return properties;
}

vks::CRefPtr<vks::CCurve2d> projectedLine(const IHBXCustomLineSolidShape &shape)
{
    vks::CRefPtr<vks::CCurve2d> line;
    vks::CCoord3<double> frame;
    shape.localLine(line, IHBXModel::g_bDefaultAutoCalc);
    shape.coordinates(frame, IHBXModel::g_bDefaultAutoCalc);
    const vks::CCoord3<double> world;
    return vks::OrientProjectCurve2d(frame, line.get(), world, {0, 0, 1}, true);
}

} // namespace

void loadORVCADCloudEntBrickWallStructFromHbx(IHBXElement *element, ORVCADCloudEntBrickWallStruct *wall)
{
    if (!element || !wall)
        return;
    if (const IHBXProperties *properties = readElement(*element, type::brickWall, kBrickBarsOfReplies, *wall)) {
        wall->material = textOf(*properties, property::material); // meant: a number, no name
        wall->typePropertyValue = properties->asInt(property::type);
    }
}

void loadORVCADCloudEntForceWallStructFromHbx(IHBXElement *element, ORVCADCloudEntForceWallStruct *wall)
{
    if (element && wall)
        readElement(*element, type::forceWall, kForceBars, *wall);
}

bool loadORVCADWallEdoIdentifyResStructFromHbx(double width, const std::wstring &name, IHBXElementDrawObj *object,
                                               IdentifyResultData *result)
{
    if (!result)
        return false;
    result->sStrEntName = name; // meant: these two are set also where the rest fails
    result->sWidth = width;
    const auto *shape = object ? dynamic_cast<IHBXCustomLineSolidShape *>(object->shape()) : nullptr;
    const IHBXProperties *properties = object ? object->properties() : nullptr;
    if (!shape || !properties)
        return false;
    result->sWorldLine = projectedLine(*shape);
    for (const TextRow<IdentifyResultData> &row : kElevations)
        result->*row.member = textOf(*properties, row.name);
    readPlace(*object, *result);
    return true;
}

#include "faults/HostDocuments.h"

#include "IdentifyInputModel/Wall/ORVCADWallBrickDataOutputModel.h"
#include "IdentifyInputModel/Wall/ORVCADWallForceDataOutputModel.h"
#include "IdentifyInputModel/Wall/WallStructsFromHbx.h"
#include "ModelSerialization/ORVCADBoardLocalModelTransformHBXService_Sample.h"
#include "doorwindow/ORVCADWindoorDataOutputModel.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElements.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXFloors.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXRegions.h"
#include "platform/host/IHBXService.h"

#include <memory>

namespace faults {
namespace {

template <typename Visit> void forEachFloor(IHBXService &service, Visit visit)
{
    IHBXRegions &regions = *service.model()->regions();
    for (int i = 0; i < regions.count(); ++i) {
        IHBXRegion &region = *regions.at(i);
        for (int k = 0; k < region.floors()->count(); ++k)
            visit(region, *region.floors()->at(k));
    }
}

template <typename Output, typename Record>
QJsonObject wallReply(IHBXService &service, qint64 type, void (*load)(IHBXElement *, Record *),
                      void (Output::*set)(Record *, const IdentifyResultData &))
{
    QList<IHBXElement *> elements;
    service.model()->elements()->queryElements(elements, floorIds(service), {type}, true);
    Output output;
    for (IHBXElement *element : qAsConst(elements)) {
        auto record = std::make_unique<Record>();
        load(element, record.get());
        QList<IHBXElementDrawObj *> objects;
        element->drawObjs(objects, 0);
        std::vector<IdentifyResultData> pieces;
        for (IHBXElementDrawObj *object : qAsConst(objects))
            loadORVCADWallEdoIdentifyResStructFromHbx(record->width, record->entName, object, &pieces.emplace_back());
        if (pieces.empty())
            continue;
        Record *given = record.release(); // the output's from the first piece on
        for (const IdentifyResultData &piece : pieces)
            (output.*set)(given, piece);
    }
    QJsonObject walls;
    output.saveToJson(QStringLiteral("ElementsAndEdos"), &walls);
    return walls;
}

} // namespace

QSet<qint64> floorIds(IHBXService &service)
{
    QSet<qint64> ids;
    forEachFloor(service, [&ids](IHBXRegion & /*region*/, IHBXFloor &floor) { ids.insert(floor.id()); });
    return ids;
}

std::vector<FloorName> floorNames(IHBXService &service)
{
    std::vector<FloorName> names;
    forEachFloor(service, [&names](IHBXRegion &region, IHBXFloor &floor) {
        names.push_back({region.name(), floor.name()});
    });
    return names;
}

QJsonObject openingReply(IHBXService &service)
{
    const QSet<qint64> types{4, 5, 6, 7};
    QList<IHBXElement *> elements;
    service.model()->elements()->queryElements(elements, floorIds(service), types, true);
    QList<IHBXElementDrawObj *> objects;
    service.model()->drawObjects()->queryDrawObjs(objects, floorIds(service), types, true);
    ORVCADWindoorDataOutputModel output;
    for (IHBXElement *element : qAsConst(elements))
        output.elements.emplace_back().loadFromHBX(element);
    for (IHBXElementDrawObj *object : qAsConst(objects))
        output.edos.emplace_back().loadFromEdo(object);
    QJsonObject members;
    output.saveToJson(QStringLiteral("ElementsAndEdos"), &members);
    return {{QStringLiteral("eDoorWin"), members}};
}

QJsonObject brickReply(IHBXService &service)
{
    return {{QStringLiteral("eBrickWall"), wallReply(service, 1003, loadORVCADCloudEntBrickWallStructFromHbx,
                                                     &ORVCADWallBrickDataOutputModel::setBrickWallIdentifyData)}};
}

QJsonObject forceReply(IHBXService &service)
{
    return {{QStringLiteral("eWall"), wallReply(service, 0, loadORVCADCloudEntForceWallStructFromHbx,
                                                &ORVCADWallForceDataOutputModel::setForceWallIdentifyData)}};
}

void readFloor(IHBXService &service, const FloorName &name, ORVCADBoardLocalModel_Sample &local)
{
    using Transform = ORVCADBoardLocalModelTransformHBXService_Sample;
    double topElev = 0.0;
    double btmElev = 0.0;
    Transform::hbx2local(service.model(), name.region, name.floor, topElev, btmElev, &local, Transform::Everything);
}

} // namespace faults

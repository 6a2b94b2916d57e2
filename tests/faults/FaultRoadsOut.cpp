#include "faults/FaultRoads.h"

#include "IdentifyInputModel/Wall/ORVCADWallBrickDataInputModel.h"
#include "IdentifyInputModel/Wall/ORVCADWallForceDataInputModel.h"
#include "IdentifyInputModel/Wall/ORVCADWallInputModelConvertion.h"
#include "ModelSerialization/ORVCADBeamHBXModelConvertService.h"
#include "ModelSerialization/ORVCADBoardLocalModelPersistenceService_Sample.h"
#include "ModelSerialization/ORVCADBoardLocalModelTransformHBXService_Sample.h"
#include "beam/BeamIdentifyInput.h"
#include "beam/ORVCADBeamSDCIdentifyInputModel.h"
#include "cli/FloorsDocument.h"
#include "doorwindow/ORVCADWindoorDataInputModel.h"
#include "drawing/ORVCADFloors.h"
#include "faults/HostDocuments.h"
#include "platform/embedded/HBXWallOptions.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXFloors.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXRegions.h"
#include "platform/host/IHBXService.h"
#include "slab/ORVCADBoardLocalModel_Sample.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace faults {
namespace {

constexpr EORVCADIdentifyType kAnyIdentifyType{1};

QByteArray textOf(const QJsonObject &object) { return QJsonDocument(object).toJson(QJsonDocument::Compact); }

/** Each member of each array in an object. */
Records membersOf(const QJsonObject &document)
{
    Records records;
    for (const QJsonValue &array : document)
        for (const QJsonValue &member : array.toArray())
            records.push_back(textOf(member.toObject()));
    return records;
}

Records openings(IHBXService &service)
{
    ORVCADWindoorDataInputModel input;
    input.parseIdentifyOption(&service);
    QJsonObject options;
    input.saveToJason(&options);
    Records records = membersOf(openingReply(service)["eDoorWin"].toObject());
    for (const QByteArray &record : membersOf(options))
        records.push_back(record);
    return records;
}

/** One record for each element and one for each chain: a host that fails in one leaves the others. */
Records beams(IHBXService &service)
{
    Records records;
    for (const auto &beam : ORVCADBeamHBXModelConvertService().convertHBXToCollectDataModel(
             service.model(), floorIds(service), {15, 17, 47})) {
        records.push_back(textOf(beam->elementInfo->toJsonObj()));
        for (const auto &chain : beam->edoInfos)
            records.push_back(textOf(chain->toJsonObj()));
    }
    return records;
}

Records seats(IHBXService &service)
{
    ORVCADBeamSDCIdentifyInputModel input(false);
    getBeamSeatInfo(input, service.model(), floorIds(service));
    return membersOf(input.beamSeatInfoToJsonObj());
}

Records beamInput(IHBXService &service)
{
    using Input = std::unique_ptr<ORVCADBeamSDCIdentifyInputModel, void (*)(ORVCADBeamSDCIdentifyInputModel *)>;
    const Input input(createBeamIdentifyInputModel(&service, true), freeBeamIdentifyInputModel);
    Records records = membersOf(input->beamSeatInfoToJsonObj());
    records.push_back(QByteArray::number(static_cast<int>(input->axisLines.size())));
    return records;
}

QJsonObject withoutFreshIdentities(const QJsonValue &element)
{
    QJsonObject object = element.toObject();
    for (const char *key : {"recongnizedID"})
        object.remove(QLatin1String(key));
    return object;
}

Records slabs(IHBXService &service)
{
    using Json = ORVCADBoardLocalModelPersistenceService_Sample;
    Records records;
    for (const FloorName &name : floorNames(service)) {
        ORVCADBoardLocalModel_Sample local;
        readFloor(service, name, local);
        for (const QJsonValue &array : Json::model2json(&local, Json::Everything))
            for (const QJsonValue &element : array.toArray())
                records.push_back(textOf(withoutFreshIdentities(element)));
    }
    return records;
}

template <typename Model, typename Record>
Records wallInput(IHBXService &service, void (ORVCADWallInputModelConvertion::*getWalls)(std::list<Record> &) const,
                  void (Model::*setWalls)(std::list<Record>))
{
    using Reading = ORVCADWallInputModelConvertion;
    hbx::embedded::HBXWallOptions options(service.model());
    Records records;
    for (const qint64 floorId : floorIds(service)) {
        const Reading reading(floorId, &options, service.model(), kAnyIdentifyType);
        Model model(kAnyIdentifyType);
        std::list<Record> walls;
        (reading.*getWalls)(walls);
        (model.*setWalls)(walls);
        Reading::ModelLines lines;
        reading.getCurFloorModelBrickLineEntDataInfo(lines);
        reading.getCurFloorModelForceLineEntDataInfo(lines);
        reading.getCurFloorModelAxisLineEntDataInfo(lines);
        model.setCurFloorModelBrickLineEntDataInfo(lines);
        std::list<ORVCADCloudHBXModelPointEdoStruct> points;
        reading.getCurFloorModelPointEntDataInfo(points);
        model.setCurFloorModelPointEntDataInfo(points);
        std::map<int, std::wstring> layers;
        reading.getCadLayerInfo(layers);
        model.setCadLayerInfo(layers);
        ORVCADCloudWalloptionDataStruct values;
        reading.getDWGXBaseOptions(values);
        model.setDWGXBaseOptions(values);
        std::wstring text;
        model.saveToJson(text);
        records.push_back(QString::fromStdWString(text).toUtf8());
    }
    return records;
}

Records brickInput(IHBXService &service)
{
    return wallInput(service, &ORVCADWallInputModelConvertion::getCadEntBrickWallDataInfo,
                     &ORVCADWallBrickDataInputModel::setCadEntBrickWallDataInfo);
}

Records forceInput(IHBXService &service)
{
    return wallInput(service, &ORVCADWallInputModelConvertion::getCadEntForceWallDataInfo,
                     &ORVCADWallForceDataInputModel::setCadEntForceWallDataInfo);
}

Records wallReplies(IHBXService &service) { return {textOf(brickReply(service)), textOf(forceReply(service))}; }

Records floors(IHBXService &service)
{
    Records records;
    IHBXRegions &regions = *service.model()->regions();
    for (int i = 0; i < regions.count(); ++i)
        records.push_back(textOf(orvcad::floorsOfRegion(*regions.at(i))->toJson()));
    return records;
}

/** A road that only reads. */
template <Records (*read)(IHBXService &)> Road out(const QByteArray &building)
{
    Road road;
    road.building = building;
    road.start = [](IHBXService &service) { return [&service] { return read(service); }; };
    return road;
}

/** What is read of an element is caught; its sub-type is read there alone. */
Road beamsOut(const QByteArray &building)
{
    Road road = out<beams>(building);
    road.caught = {"subType"};
    return road;
}

} // namespace

const std::vector<NamedRoad> &roadsOut()
{
    static const std::vector<NamedRoad> roads = {
        {"openingsOut", out<openings>},
        {"beamsOut", beamsOut},
        {"seatsOut", out<seats>},
        {"beamInputOut", out<beamInput>},
        {"slabsOut", out<slabs>},
        {"brickWallInputOut", out<brickInput>},
        {"forceWallInputOut", out<forceInput>},
        {"wallRepliesOut", out<wallReplies>},
        {"floorsOut", out<floors>},
    };
    return roads;
}

} // namespace faults

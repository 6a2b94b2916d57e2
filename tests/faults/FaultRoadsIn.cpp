#include "faults/FaultRoads.h"

#include "IdentifyInputModel/Wall/JsonWall2HBX.h"
#include "ModelSerialization/ORVCADBeamHBXModelConvertService.h"
#include "ModelSerialization/ORVCADBeamLocalModel2HBXService.h"
#include "ModelSerialization/ORVCADBoardLocalModelPersistenceService_Sample.h"
#include "ModelSerialization/ORVCADBoardLocalModelTransformHBXService_Sample.h"
#include "beam/BeamIdentifyInput.h"
#include "beam/ORVBeamSDCSeatInfoModel.h"
#include "beam/ORVCADBeamSDCIdentifyInputModel.h"
#include "doorwindow/JsonDoorWin2HBX.h"
#include "faults/HostDocuments.h"
#include "platform/dwgx/DWGXBaseBoxTree.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXElements.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXService.h"
#include "platform/host/IHBXShape.h"
#include "slab/ORVCADBoardLocalModel_Sample.h"
#include "tools/SlabBarGenerator.h"

#include <QJsonArray>

#include <stdexcept>

namespace faults {
namespace {

using hbx::embedded::HBXProject;
using Json = ORVCADBoardLocalModelPersistenceService_Sample;
using Types = QSet<qint64>;

const Types kOpenings{4, 5, 6, 7};
const Types kBeams{15, 17, 47};
const Types kSeats{18, 52, 53, 54};
const Types kHoles{24};
const Types kPlates{19, 48};
const Types kBars{22, 23, 49, 50};

std::unique_ptr<HBXProject> opened(const QByteArray &building)
{
    hbx::embedded::ProjectError error;
    auto project = HBXProject::fromJson(building, QStringLiteral("building"), error);
    if (!project)
        throw std::logic_error(error.text().toStdString());
    return project;
}

QByteArray without(const QByteArray &building, const Types &types)
{
    const auto project = opened(building);
    QList<IHBXElement *> elements;
    IHBXService &service = *project->service();
    service.model()->elements()->queryElements(elements, floorIds(service), types, true);
    for (IHBXElement *element : qAsConst(elements))
        element->remove();
    return project->toJson();
}

/** A journey that gives no records. */
template <typename Write> Journey writing(Write write)
{
    return [write] {
        write();
        return Records();
    };
}

using WriteReply = bool (*)(IHBXService *, const QJsonObject &);

Road replyRoad(const QByteArray &building, const Types &types, const QJsonObject &reply, WriteReply write)
{
    Road road;
    road.makes = types;
    road.building = without(building, types);
    road.start = [reply, write](IHBXService &service) {
        return writing([&service, reply, write] { write(&service, reply); });
    };
    return road;
}

Road openingsIn(const QByteArray &building)
{
    const auto project = opened(building);
    Road road = replyRoad(building, kOpenings, openingReply(*project->service()), jsonDoorWin2HBX);
    road.hostExceptionPasses = {"model", "drawObjects"}; // before the first member
    return road;
}

Road wallsIn(Road road)
{
    road.caught = {"property.setInt", "property.setString"};
    road.hostExceptionPasses = {"model", "beginBatch"};
    return road;
}

Road brickWallsIn(const QByteArray &building)
{
    const auto project = opened(building);
    return wallsIn(replyRoad(building, Types{1003} + kOpenings, brickReply(*project->service()), jsonBrickWall2HBX));
}

Road forceWallsIn(const QByteArray &building)
{
    const auto project = opened(building);
    return wallsIn(replyRoad(building, Types{0} + kOpenings, forceReply(*project->service()), jsonForceWall2HBX));
}

/** Writes to values are caught, whatever is thrown; of the rest nothing is. */
const QSet<QByteArray> kCaughtOfBeams{"setName", "setInt", "setString", "setDouble", "hasProperty"};

Road beamsIn(const QByteArray &building)
{
    using Service = ORVCADBeamLocalModel2HBXService;
    const auto project = opened(building);
    const auto beams = ORVCADBeamHBXModelConvertService().convertHBXToCollectDataModel(
        project->service()->model(), floorIds(*project->service()), kBeams);
    Road road;
    road.makes = kBeams;
    road.building = without(building, kBeams);
    road.start = [beams](IHBXService &service) {
        return writing([&service, beams] {
            Service writer(&service);
            for (const auto &beam : beams)
                writer.reconstructBeam(beam);
        });
    };
    road.caught = kCaughtOfBeams;
    return road;
}

bool reconstruct(ORVCADBeamLocalModel2HBXService &writer, const ORVCADBeamLocalModel2HBXService::Seat &seat)
{
    if (seat->seatElementType == 54)
        return writer.reconstructPile(seat);
    return seat->seatElementType == 18 ? writer.reconstructTieBeam(seat) : writer.reconstructFoundation(seat);
}

Road seatsIn(const QByteArray &building)
{
    using Service = ORVCADBeamLocalModel2HBXService;
    const auto project = opened(building);
    ORVCADBeamSDCIdentifyInputModel input(false);
    getBeamSeatInfo(input, project->service()->model(), floorIds(*project->service()));
    const QJsonObject document = input.beamSeatInfoToJsonObj();
    Road road;
    road.makes = kSeats + Types{82, 83};
    road.mostSuffering = 2; // a unit goes with its foundation
    road.building = without(building, kSeats);
    road.start = [document](IHBXService &service) {
        return writing([&service, document] {
            Service writer(&service);
            for (const QJsonValue &kind : document)
                for (const QJsonValue &json : kind.toArray()) {
                    const auto seat = std::make_shared<ORVBeamSDCSeatInfoModel>();
                    seat->fromJson(json.toObject());
                    reconstruct(writer, seat);
                }
        });
    };
    road.caught = kCaughtOfBeams + QSet<QByteArray>{"setInsertPoint"};
    return road;
}

// ---- Slabs

using Local = ORVCADBoardLocalModel_Sample;
using Tree = std::shared_ptr<dwgx::DWGXBaseBoxTree>;

/** What stands on a floor, as if it were new. */
struct FloorReply
{
    FloorName name;
    std::shared_ptr<Local> local = std::make_shared<Local>();
};

/** What is of the types that the host lacks is new; the rest keeps its id and is passed over. */
QJsonObject asNew(QJsonObject document, const QStringList &kept)
{
    for (auto array = document.begin(); array != document.end(); ++array) {
        if (kept.contains(array.key()))
            continue;
        QJsonArray members;
        for (const QJsonValue member : array.value().toArray()) {
            QJsonObject object = member.toObject();
            object.insert(QStringLiteral("id"), -1);
            members.append(object);
        }
        array.value() = members;
    }
    return document;
}

std::vector<FloorReply> slabReplies(const QByteArray &building, const Types &types, int parts)
{
    const auto project = opened(building);
    const QStringList kept = types == kHoles ? QStringList{QStringLiteral("boards")} : QStringList();
    std::vector<FloorReply> replies;
    for (const FloorName &name : floorNames(*project->service())) {
        Local floor;
        readFloor(*project->service(), name, floor);
        SlabBarGenerator generator(11);
        generator.layOverSlabs(floor, floor);
        generator.layOverRafts(floor, floor);
        replies.push_back({name});
        Json::json2model(asNew(Json::model2json(&floor, Json::Everything), kept), replies.back().local.get(), parts);
    }
    return replies;
}

Tree platesOf(IHBXService &service, const FloorName &name)
{
    Tree tree(dwgx::DWGXBaseBoxTree::createObject());
    QList<IHBXElementDrawObj *> plates;
    service.model()->drawObjects()->queryDrawObjs(plates, floorIds(service), kPlates, true);
    for (IHBXElementDrawObj *plate : qAsConst(plates)) {
        vks::CBox2<double> box;
        if (plate->floor()->name() == name.floor)
            tree->add(plate->shape()->box(box, true), plate);
    }
    return tree;
}

Road slabRoad(const QByteArray &building, const Types &types, int parts)
{
    using Transform = ORVCADBoardLocalModelTransformHBXService_Sample;
    const auto replies = slabReplies(building, types, parts);
    Road road;
    road.makes = types;
    road.building = without(building, types);
    road.start = [replies](IHBXService &service) {
        std::vector<Tree> trees;
        trees.reserve(replies.size());
        for (const FloorReply &reply : replies)
            trees.push_back(platesOf(service, reply.name));
        return writing([&service, replies, trees] {
            for (std::size_t i = 0; i < replies.size(); ++i)
                Transform::local2hbx(replies[i].local.get(), &service, trees[i].get(), replies[i].name.region,
                                     replies[i].name.floor);
        });
    };
    road.hostExceptionPasses = {"model", "curState", "regions", "findRegion", "floors", "findFloor"};
    return road;
}

/** Without holes, which would go with the slab that they lie in. */
Road platesIn(const QByteArray &building)
{
    return slabRoad(without(building, kHoles + kBars), kPlates, Json::Boards | Json::Rafts);
}

Road holesIn(const QByteArray &building)
{
    Road road = slabRoad(without(building, kBars), kHoles, Json::Boards);
    road.mostSuffering = 2; // the next of the name gets it without a suffix
    return road;
}

Road barsIn(const QByteArray &building)
{
    Road road = slabRoad(without(building, kBars), kBars, Json::BoardBars | Json::RaftBars);
    road.mostSuffering = 2; // one that is missing makes room for one over it
    road.thinnedBy = 10;
    return road;
}

} // namespace

const std::vector<NamedRoad> &roadsIn()
{
    static const std::vector<NamedRoad> roads = {
        {"openingsIn", openingsIn},     {"brickWallsIn", brickWallsIn},
        {"forceWallsIn", forceWallsIn}, {"beamsIn", beamsIn},
        {"seatsIn", seatsIn},           {"platesIn", platesIn},
        {"holesIn", holesIn},           {"barsIn", barsIn},
    };
    return roads;
}

} // namespace faults

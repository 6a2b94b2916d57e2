#include "ModelSerialization/ORVCADBoardLocalModelPersistenceService_Sample.h"

#include "ModelSerialization/SlabArray.h"
#include "ModelSerialization/SlabRows.h"

#include <memory>

namespace {

using Model = ORVCADBoardLocalModel_Sample;

} // namespace

/** The arrays of the document. */
struct ORVCADBoardLocalModelPersistenceService_Sample::Arrays
{
    static constexpr auto rafts = slab::arrayOf(slab::key::rafts, &Model::rafts, &Model::addRaft, slab::raftRows);
    static constexpr auto boards = slab::arrayOf(slab::key::boards, &Model::boards, &Model::addBoard, slab::boardRows);
    static constexpr auto boardHoles =
        slab::arrayOf(slab::key::boardHoles, &Model::boardHoles, &Model::addBoardHole, slab::boardHoleRows);

    static constexpr auto raftNegativeForcedBars =
        slab::arrayOf(slab::key::raftNegativeForcedBars, &Model::raftNegativeForcedBars,
                      &Model::addRaftNegativeForcedBar, slab::raftNegativeForcedBarRows);
    static constexpr auto raftMainForcedBars = slab::arrayOf(slab::key::raftMainForcedBars, &Model::raftMainForcedBars,
                                                             &Model::addRaftMainForcedBar, slab::raftMainForcedBarRows);
    static constexpr auto raftStraddleMainForcedBars =
        slab::arrayOf(slab::key::raftStraddleMainForcedBars, &Model::raftMainStraddleForcedBars,
                      &Model::addRaftMainStraddleForcedBar, slab::raftStraddleMainForcedBarRows);

    static constexpr auto negativeForcedBars = slab::arrayOf(slab::key::negativeForcedBars, &Model::negativeForcedBars,
                                                             &Model::addNegativeForcedBar, slab::negativeForcedBarRows);
    static constexpr auto forcedBars =
        slab::arrayOf(slab::key::forcedBars, &Model::forcedBars, &Model::addForcedBar, slab::forcedBarRows);
    static constexpr auto straddleForcedBars = slab::arrayOf(slab::key::straddleForcedBars, &Model::straddleForcedBars,
                                                             &Model::addStraddleForcedBar, slab::straddleForcedBarRows);

    static constexpr auto beams = slab::arrayOf(slab::key::beams, &Model::beams, &Model::addBeam, slab::beamRows);
    static constexpr auto walls = slab::arrayOf(slab::key::walls, &Model::walls, &Model::addWall, slab::wallRows);
    static constexpr auto columns =
        slab::arrayOf(slab::key::columns, &Model::columns, &Model::addColumn, slab::columnRows(&Model::Object::m_type));

    /** With an empty grid, of which U is the direction 0 and V the direction 1. An axis net has no identity. */
    static Model::AxisNet *addAxisNet(Model &model, const QUuid &)
    {
        Model::AxisNet *net = model.addAixsNet();
        net->axisGrid = std::make_shared<AxisGrid_Sample>();
        net->axisGrid->gridV.direction = 1;
        return net;
    }
    static constexpr auto axisGrids =
        slab::arrayOf(slab::key::axisGrids, &Model::axisNet, &addAxisNet, slab::axisGridRows);
};

/** The parts of the document, and the orders in which they are written and read. */
struct ORVCADBoardLocalModelPersistenceService_Sample::Document
{
    static constexpr slab::SlabPart supports = slab::partOf<Arrays::beams, Arrays::walls, Arrays::columns>(Supports);
    static constexpr slab::SlabPart boards = slab::partOf<Arrays::boards, Arrays::boardHoles>(Boards);
    static constexpr slab::SlabPart boardBars =
        slab::partOf<Arrays::negativeForcedBars, Arrays::forcedBars, Arrays::straddleForcedBars>(BoardBars);
    static constexpr slab::SlabPart rafts = slab::partOf<Arrays::rafts>(Rafts);
    static constexpr slab::SlabPart raftBars =
        slab::partOf<Arrays::raftNegativeForcedBars, Arrays::raftMainForcedBars, Arrays::raftStraddleMainForcedBars>(
            RaftBars);
    static constexpr slab::SlabPart axisNets = slab::partOf<Arrays::axisGrids>(AxisNets);

    static constexpr slab::SlabPart writtenAlone[] = {rafts, boards, raftBars, boardBars}; // what is left goes together
    static constexpr slab::SlabPart readingOrder[] = {supports, boards, boardBars, raftBars, axisNets, rafts};
};

QJsonObject ORVCADBoardLocalModelPersistenceService_Sample::model2json(const ORVCADBoardLocalModel_Sample *model,
                                                                       Parts parts)
{
    QJsonObject json;
    if (!model)
        return json;
    // Meant: compared as a whole, so that an OR of parts, and Supports and AxisNets themselves, write the last two.
    for (const slab::SlabPart &part : Document::writtenAlone) {
        if (parts == part.value || parts == Everything)
            part.write(*model, json);
        if (parts == part.value)
            return json;
    }
    Document::supports.write(*model, json);
    Document::axisNets.write(*model, json);
    return json;
}

bool ORVCADBoardLocalModelPersistenceService_Sample::json2model(const QJsonObject &json,
                                                                ORVCADBoardLocalModel_Sample *model, int parts)
{
    if (!model)
        return true;
    // Meant: taken as bits, among which Everything has none for the axis nets.
    for (const slab::SlabPart &part : Document::readingOrder)
        if ((parts & part.value) != 0)
            part.read(json, *model);
    return true;
}

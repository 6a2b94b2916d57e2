#include "beam/BeamIdentifyInput.h"

#include "beam/BeamSeatReader.h"
#include "beam/BeamSeatType.h"
#include "platform/geometry/OrientProjectCurve2d.h"
#include "platform/host/IHBXAxisGrid.h"
#include "platform/host/IHBXCurState.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXService.h"
#include "platform/host/IHBXShape.h"
#include "platform/services/HBXCADLayerBuilder.h"
#include "platform/services/HBXOptionNames.h"
#include "platform/services/ORVCADOptionOperator.h"
#include "platform/services/ORVplaneRule.h"

#include <QCoreApplication>

#include <memory>

namespace {

using Input = ORVCADBeamSDCIdentifyInputModel;

/** Options that hold the prefixes of beam labels, UTF-8: the places of the ten lists, under each of the plane rules. */
struct BeamCodeKey
{
    const char *under11or16G;
    const char *underAnother;
};

constexpr BeamCodeKey kBeamCodeKeys[] = {
    {"框架梁代号:", "框架梁代号:"},     {"屋面框架梁代号:", "屋面框架梁代号:"},
    {"框支梁代号:", "框支梁代号:"},     {"非框架梁代号:", "非框架梁代号:"},
    {"井字梁代号:", "井字梁代号:"},     {"基础联系梁代号:", "地框梁代号"}, // meant: no colon behind the second one
    {"基础主梁代号:", "基础连梁代号:"}, {"基础次梁代号:", "基础主梁代号:"},
    {"承台梁代号:", "基础次梁代号:"},   {"连梁代号:", "连梁代号:"},
};

void readFloor(Input &input, const IHBXFloor &floor)
{
    input.bIsCurFloorFD = floor.flag();
    input.curFloorBtmElev = floor.bottomElev();
    input.nCurFloorID = floor.id();
    input.curFloorHeight = floor.height();
    if (!input.context)
        return;
    FloorInfo &info = *input.context->floorInfo;
    info.BtmElev = floor.bottomElev();
    info.Height = floor.height();
    floor.code(info.FloorCode);
    info.FloorName = floor.name();
    info.FloorID = static_cast<double>(floor.id());
}

std::wstring storedLayerName(const char *title)
{
    const QString translated = QCoreApplication::translate(s_strHBXCADLayerManager, title);
    return HBXCADLayerBuilder::getCustomLayerStoredName(translated.toStdWString());
}

void readLayerNames(Input &input)
{
    input.strBeamYWBZLayerName = storedLayerName(s_strYWBZBeamLabel);
    input.strBeamJZBZLayerName = storedLayerName(s_strBeamLabel);
}

QStringList codesOf(const ORVCADOptionOperator &options, const char *key)
{
    QStringList codes = options.asStringArray(QString::fromUtf8(key));
    codes.removeAll(QString());
    return codes;
}

void readBeamCodes(Input &input, IHBXModel *model)
{
    const ORVCADOptionOperator options(model);
    if (input.context)
        options.getOption(ptnBeamSetting, input.context->cadOptions);
    input.bIs11or16G = ORVplaneRule::getInstance()->is11gor16gPlaneRule();
    for (const BeamCodeKey &key : kBeamCodeKeys)
        input.strRawBeamCodes.append(codesOf(options, input.bIs11or16G ? key.under11or16G : key.underAnother));
}

/** Appends the lines of one direction; null where a line has no projection. */
void appendAxisLines(Input &input, const IHBXAxisGrid &grid, int direction, const vks::CCoord3<double> &frame)
{
    std::vector<HBXAxis> axes;
    grid.axes(axes, direction);
    const vks::CCoord3<double> world;
    const vks::CVec3<double> zAxis(0.0, 0.0, 1.0);
    for (const HBXAxis &axis : axes)
        for (const auto &curve : axis.curves)
            input.axisLines.push_back(vks::OrientProjectCurve2d(frame, curve, world, zAxis, true));
}

void readGrid(Input &input, IHBXElementDrawObj *object)
{
    const std::unique_ptr<IHBXAxisGrid> grid(IHBXAxisGrid::createFromObj(object));
    const IHBXShape *shape = grid ? object->shape() : nullptr;
    if (!shape)
        return;
    vks::CCoord3<double> frame;
    shape->coordinates(frame, IHBXModel::g_bDefaultAutoCalc);
    grid->prepare();
    for (int direction = 0; direction < IHBXAxisGrid::kGroupCount; ++direction)
        appendAxisLines(input, *grid, direction, frame);
}

void readAxisLines(Input &input, IHBXModel &model, int floorId)
{
    QList<IHBXElementDrawObj *> grids;
    model.drawObjects()->queryDrawObjsOfFloor(grids, floorId, static_cast<int>(beam::type::axisGrid),
                                              IHBXDrawObjs::kAnySubType, true);
    for (IHBXElementDrawObj *object : qAsConst(grids))
        readGrid(input, object);
}

} // namespace

ORVCADBeamSDCIdentifyInputModel *createBeamIdentifyInputModel(IHBXService *service, bool withContext)
{
    auto input = std::make_unique<Input>(withContext);
    if (!service)
        return input.release();
    IHBXModel *model = service->model();
    const IHBXFloor *floor = service->curState()->floor();
    if (floor)
        readFloor(*input, *floor);
    input->hostValue = service->unnamedSetting();
    readLayerNames(*input);
    readBeamCodes(*input, model);
    if (floor) {
        getBeamSeatInfo(*input, model, {floor->id()});
        readAxisLines(*input, *model, floor->id());
    }
    return input.release();
}

void freeBeamIdentifyInputModel(ORVCADBeamSDCIdentifyInputModel *model) { delete model; }

void getBeamSeatInfo(ORVCADBeamSDCIdentifyInputModel &input, IHBXModel *model, const QSet<qint64> &floorIds)
{
    if (!model)
        return;
    for (const beam::BeamSeatType &type : beam::kSeatTypes) {
        QList<IHBXElementDrawObj *> objects;
        model->drawObjects()->queryDrawObjs(objects, floorIds, {type.number}, true);
        for (IHBXElementDrawObj *object : qAsConst(objects)) {
            auto seat = object ? beam::readBeamSeat(*object) : nullptr;
            if (seat)
                input.beamSeatInfos.append(seat.release());
        }
    }
}

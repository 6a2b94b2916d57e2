#include "ModelSerialization/HostSlabTransform.h"

#include "ModelSerialization/HostBarReading.h"
#include "ModelSerialization/HostFloor.h"
#include "ModelSerialization/HostSlabReading.h"
#include "ModelSerialization/HostSlabValues.h"
#include "ModelSerialization/SlabHostKeys.h"
#include "platform/dwgx/DWGXModel.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/services/HBXOptionNames.h"
#include "platform/services/OptionGroupReader.h"
#include "slab/DrawingFolder.h"
#include "slab/ORVCADBoardLocalIOModel_Sample.h"

#include <QFileInfo>

using Service = ORVCADBoardLocalModelTransformHBXService_Sample;
using Object = IHBXElementDrawObj;

namespace {

QString elementNameOf(const Object &object)
{
    QString name;
    if (const IHBXElement *element = object.element())
        element->name(name);
    return name;
}

std::map<QString, QString> optionsOf(IHBXModel *model)
{
    const QMap<QString, QString> rows = readOptionGroup(model, ptnAutoIdentifyBackstrapsSetting);
    return {rows.keyValueBegin(), rows.keyValueEnd()};
}

} // namespace

// ---- The walk

struct Service::FromHost::Step
{
    Parts part;
    void (FromHost::*read)() const;
};

void Service::FromHost::read(int parts) const
{
    static constexpr Step steps[] = {{Rafts, &FromHost::readRafts},
                                     {Boards, &FromHost::readBoards},
                                     {RaftBars, &FromHost::readRaftBars},
                                     {BoardBars, &FromHost::readBoardBars}};
    for (const Step &step : steps) {
        if (parts == step.part || parts == Everything)
            (this->*step.read)();
        if (parts == step.part)
            return;
    }
    readSupports();
    readAxisNets();
}

void Service::FromHost::readRafts() const { readAll(slabhost::types::rafts, &Local::addRaft); }

void Service::FromHost::readBoards() const
{
    readAll(slabhost::types::boards, &Local::addBoard);
    readAll(slabhost::types::boardHoles, &Local::addBoardHole);
}

void Service::FromHost::readRaftBars() const
{
    readAreaBars(slabhost::types::raftBars, &Local::addRaftMainForcedBar, &Local::addRaftMainStraddleForcedBar);
    readBars(slabhost::lineBarRows(objectsOf(slabhost::types::raftNegativeBars)), &Local::addRaftNegativeForcedBar);
}

void Service::FromHost::readBoardBars() const
{
    readAreaBars(slabhost::types::bars, &Local::addForcedBar, &Local::addStraddleForcedBar);
    readBars(slabhost::lineBarRows(objectsOf(slabhost::types::negativeBars)), &Local::addNegativeForcedBar);
}

void Service::FromHost::readSupports() const
{
    // Meant: supports never get an id, whatever is asked for.
    readAll(slabhost::types::columns, &Local::addColumn, Ids::Never);
    readAll(slabhost::types::beams, &Local::addBeam, Ids::Never);
    readAll(slabhost::types::walls, &Local::addWall, Ids::Never);
}

void Service::FromHost::readAxisNets() const
{
    constexpr int anySubType = -1;
    constexpr auto axisGrid = static_cast<int>(slabhost::type::axisGrid);
    Objects objects;
    model.drawObjects()->queryDrawObjsOfFloor(objects, floor.id(), axisGrid, anySubType, true);
    objects.removeAll(nullptr);
    for (Object *object : qAsConst(objects)) {
        Local::AxisNet *net = local.addAixsNet(); // meant: always with its id, and never with an identity
        net->elementId = object->id();
        net->name = elementNameOf(*object);
        slabhost::read(*object, *net);
    }
}

Service::FromHost::Objects Service::FromHost::objectsOf(const QSet<qint64> &types) const
{
    Objects objects;
    floor.drawObjsOfTypes(objects, types, true);
    objects.removeAll(nullptr);
    return objects;
}

template <typename Element> Element &Service::FromHost::made(Creator<Element> creator, Object &object, Ids ids) const
{
    Element *element = (local.*creator)(QUuid::createUuid());
    element->name = elementNameOf(object);
    if (ids == Ids::Told && tellsIds)
        element->elementId = object.id();
    return *element;
}

template <typename Element>
void Service::FromHost::readAll(const QSet<qint64> &types, Creator<Element> creator, Ids ids) const
{
    const Objects objects = objectsOf(types);
    for (Object *object : objects)
        slabhost::read(*object, made(creator, *object, ids));
}

template <typename Bar>
void Service::FromHost::readBars(const std::vector<slabhost::NumberedBar> &bars, Creator<Bar> creator) const
{
    for (const slabhost::NumberedBar &numbered : bars) {
        Bar &bar = made(creator, *numbered.bar, Ids::Told);
        bar.rowNumber = numbered.row;
        slabhost::read(model, *numbered.bar, bar);
    }
}

template <typename Bar, typename Straddling>
void Service::FromHost::readAreaBars(const QSet<qint64> &types, Creator<Bar> creator,
                                     Creator<Straddling> straddlingCreator) const
{
    const slabhost::AreaBarRows rows = slabhost::areaBarRows(objectsOf(types));
    readBars(rows.single, creator);
    readBars(rows.straddling, straddlingCreator);
}

// ---- The service's operations

bool Service::hbx2local(IHBXModel *model, const QString &region, const QString &floor, double &topElev, double &btmElev,
                        ORVCADBoardLocalModel_Sample *local, Parts parts)
{
    IHBXFloor *found = local ? findFloor(model, region, floor) : nullptr;
    if (!found)
        return false;
    topElev = found->topElev();
    btmElev = found->bottomElev();
    FromHost{*model, *found, *local, parts == Everything}.read(parts);
    return true;
}

bool Service::hbx2local(IHBXModel *model, const QString &region, const QString &floor, const QString &drawingPath,
                        ORVCADBoardLocalIOModel_Sample *io)
{
    double topElev = 0.0;
    double btmElev = 0.0;
    if (!hbx2local(model, region, floor, topElev, btmElev, io, Everything) || !io->setDrawing(drawingPath))
        return false;
    io->setCurrentRegionAndFloor(region, floor, topElev, btmElev);
    io->options().values() = optionsOf(model);
    return true;
}

bool Service::hbx2local(IHBXModel *model, const QString &region, const QString &floor, dwgx::DWGXModel *drawing,
                        ORVCADBoardLocalIOModel_Sample *io)
{
    if (!drawing)
        return false;
    const slab::DrawingFolder folder;
    const QString name = QFileInfo(drawing->getFilePath()).completeBaseName();
    const QString path = folder.filePath(name + QLatin1String(".cadi2"));
    return folder.isMade() && slab::writeDrawing(*drawing, path) && hbx2local(model, region, floor, path, io);
}

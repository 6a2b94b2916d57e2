#include "cli/SlabExport.h"

#include "ModelSerialization/ORVCADBoardLocalIOModelPersistenceService_Sample.h"
#include "ModelSerialization/ORVCADBoardLocalModelPersistenceService_Sample.h"
#include "ModelSerialization/ORVCADBoardLocalModelTransformHBXService_Sample.h"
#include "cli/Command.h"
#include "cli/Files.h"
#include "cli/Message.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXService.h"
#include "slab/ORVCADBoardLocalIOModel_Sample.h"

#include <algorithm>

using hbx::embedded::HBXProject;

namespace orvcad {

namespace {

using Transform = ORVCADBoardLocalModelTransformHBXService_Sample;
using Persistence = ORVCADBoardLocalModelPersistenceService_Sample;
using Parts = Persistence::Parts;

/** Parts that the services write alone, and the pair that they write together. */
constexpr int kSingle[] = {Parts::Supports | Parts::AxisNets, Parts::Boards, Parts::BoardBars, Parts::Rafts,
                           Parts::RaftBars};
constexpr int kAllElements = Parts::Supports | Parts::Boards | Parts::BoardBars | Parts::Rafts | Parts::RaftBars;
constexpr int kGreatest = 255;

/** Reads and writes one part, or everything, as the services understand the number. */
QJsonObject documentOf(const HBXProject &project, const IHBXFloor &floor, int parts)
{
    ORVCADBoardLocalModel_Sample model;
    double topElev = 0.0;
    double btmElev = 0.0;
    Transform::hbx2local(project.service()->model(), floor.region()->name(), floor.name(), topElev, btmElev, &model,
                         static_cast<Transform::Parts>(parts));
    return Persistence::model2json(&model, static_cast<Parts>(parts));
}

} // namespace

SlabParts::SlabParts(int number) : m_number(number)
{
    if (number > kGreatest || number < 0 || !has(kAllElements | Parts::AxisNets))
        throw CommandFailure(
            kWrongUsage,
            Message::tr("--parts %1 names no part; parts: 2 supports, 4 slabs and holes, 8 bars of slabs, 32 rafts, 64 "
                        "bars of rafts, 128 axis grids, or a sum of them")
                .arg(number));
}

bool SlabParts::isEverything() const { return (m_number & kAllElements) == kAllElements; }

QJsonObject slabDocument(const HBXProject &project, const IHBXFloor &floor, const SlabParts &parts)
{
    if (parts.isEverything())
        return documentOf(project, floor, Parts::Everything);
    QJsonObject document;
    for (const int single : kSingle) {
        const QJsonObject arrays = parts.has(single) ? documentOf(project, floor, single) : QJsonObject();
        for (auto array = arrays.begin(); array != arrays.end(); ++array)
            document.insert(array.key(), array.value());
    }
    return document;
}

QJsonObject slabIoDocument(const HBXProject &project, const IHBXFloor &floor, const QString &drawingPath)
{
    readFile(drawingPath); // tells of a missing file in its own words
    ORVCADBoardLocalIOModel_Sample model;
    if (!Transform::hbx2local(project.service()->model(), floor.region()->name(), floor.name(), drawingPath, &model))
        throw CommandFailure(kBadInput, drawingPath, {}, Message::tr("is no drawing that can be read"));
    QJsonObject document = ORVCADBoardLocalIOModelPersistenceService_Sample::model2json(&model, Parts::Everything);
    if (document.isEmpty())
        throw CommandFailure(kBadInput, drawingPath, {},
                             Message::tr("the drawing cannot be packed below the temporary folder"));
    return document;
}

} // namespace orvcad

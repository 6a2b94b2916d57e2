#include "ModelSerialization/SlabPlateWriting.h"

#include "ModelSerialization/NewSlabElements.h"
#include "ModelSerialization/SlabHostKeys.h"
#include "ModelSerialization/SlabHostWriting.h"
#include "ModelSerialization/SlabNumbers.h"
#include "platform/host/IHBXCurState.h"
#include "platform/host/IHBXDrawObjStatus.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXFaceSolidShape.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXProperties.h"
#include "platform/services/HbxTolerance.h"

#include <QVarLengthArray>

#include <cmath>

namespace slabhost {
namespace {

using Model = ORVCADBoardLocalModel_Sample;

constexpr double kSameElevation = 0.00001; // m
constexpr int kPassedState = 1;

/** What tells slabs and rafts apart in the host. */
struct PlateKind
{
    qint64 type;
    qint64 subType;
    const char *namePrefix; // the thickness follows
    const char *baseWord;   // UTF-8
    double (IHBXFloor::*baseElev)() const;
};
constexpr PlateKind kBoard{type::slab, subtype::slab, "B-h", "层顶标高", &IHBXFloor::topElev};
constexpr PlateKind kRaft{type::raft, subtype::raft, "FB-", "层底标高", &IHBXFloor::bottomElev};

struct PlateElevation
{
    const std::wstring *property;
    double metres; // above the building's zero
};

using PlateElevations = QVarLengthArray<PlateElevation, 2>; // without memory of its own

struct PlateRecord
{
    QUuid id;
    QString name;
    int thickness;                // mm
    const vks::CPolygon *surface; // of the local model
    PlateElevations elevations;   // in the order of writing
};

PlateElevations elevationsOf(const Model::Board &board) { return {{&property::topElev, board.elev}}; }

PlateElevations elevationsOf(const Model::Raft &raft)
{
    return {{&property::topElev, raft.topElev}, {&property::bottomElev, raft.bottomElev}};
}

template <typename Plate> PlateRecord recordOf(const Plate &plate, const PlateKind &kind)
{
    PlateRecord record{plate.recongnizedID, plate.name, clampedInt(plate.thickness), plate.surface.get(),
                       elevationsOf(plate)};
    if (record.name.isEmpty())
        record.name = QLatin1String(kind.namePrefix) + QString::number(record.thickness);
    return record;
}

template <typename Plate>
std::vector<PlateRecord> recordsOf(const std::vector<const Plate *> &plates, const PlateKind &kind)
{
    std::vector<PlateRecord> records;
    records.reserve(plates.size());
    for (const Plate *plate : plates)
        records.push_back(recordOf(*plate, kind));
    return records;
}

ElementRule ruleOf(const PlateKind &kind, const PlateRecord &record)
{
    const int thickness = record.thickness;
    return {
        kind.type, kind.subType, record.name,
        [thickness](const IHBXProperties &properties) { return properties.asInt(property::thickness) == thickness; },
        [thickness](IHBXElement & /*element*/, IHBXProperties &properties) {
            properties.setInt(property::thickness, thickness, false);
        }};
}

void setElevations(const SlabTarget &target, const PlateKind &kind, const PlateRecord &record,
                   IHBXProperties &properties)
{
    const double base = (target.floor.*kind.baseElev)();
    for (const PlateElevation &elevation : record.elevations)
        properties.setString(*elevation.property, elevationText(kind.baseWord, elevation.metres - base), false);
}

/** False when the host's check refuses it. */
bool enterPlate(const SlabTarget &target, const PlateKind &kind, const PlateRecord &record, IHBXElementDrawObj &plate)
{
    target.model.drawObjects()->addDrawObj(&plate);
    if (IHBXProperties *properties = plate.properties())
        setElevations(target, kind, record, *properties);
    if (auto *shape = dynamic_cast<IHBXFaceSolidShape *>(plate.shape()))
        shape->setPolygon(record.surface);
    if (target.state)
        plate.status()->setLayer(target.state->layer());
    if (!passesCheck(target, plate))
        return false;
    plate.status()->setState(kPassedState);
    return true;
}

void writePlates(const SlabTarget &target, const PlateKind &kind, std::vector<PlateRecord> records)
{
    const auto keyOf = [](const PlateRecord &record) { return std::pair(record.name, record.thickness); };
    writeGroups(
        target, grouped(std::move(records), keyOf),
        [&kind](const std::vector<PlateRecord> &group) { return ruleOf(kind, group.front()); },
        [&](IHBXElement &element, const PlateRecord &record) {
            return writeDrawObj(target, element,
                                [&](IHBXElementDrawObj &plate) { return enterPlate(target, kind, record, plate); });
        });
}

} // namespace

QString elevationText(const char *baseWord, double metresAboveBase)
{
    QString word = QString::fromUtf8(baseWord);
    if (hbx::isEqual(metresAboveBase, 0.0, kSameElevation))
        return word;
    const bool isAbove = hbx::isGreater(metresAboveBase, 0.0, kSameElevation);
    return word + QLatin1Char(isAbove ? '+' : '-') + QString::number(std::fabs(metresAboveBase), 'g', 6);
}

void writeBoards(const SlabTarget &target, const NewSlabElements &elements)
{
    writePlates(target, kBoard, recordsOf(elements.boards, kBoard));
}

void writeRafts(const SlabTarget &target, const NewSlabElements &elements)
{
    writePlates(target, kRaft, recordsOf(elements.rafts, kRaft));
}

} // namespace slabhost

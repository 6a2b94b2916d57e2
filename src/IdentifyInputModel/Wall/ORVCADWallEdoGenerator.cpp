#include "IdentifyInputModel/Wall/ORVCADWallEdoGenerator.h"

#include "IdentifyInputModel/Wall/ORVCADWallBrickDataOutputModel.h"
#include "IdentifyInputModel/Wall/ORVCADWallForceDataOutputModel.h"
#include "IdentifyInputModel/Wall/WallTextRows.h"
#include "platform/geometry/KernelTolerance.h"
#include "platform/host/HBXBatch.h"
#include "platform/host/HBXModelException.h"
#include "platform/host/IHBXCustomLineSolidShape.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXElements.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXFloors.h"
#include "platform/host/IHBXProperties.h"
#include "platform/host/IHBXProperty.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXRegions.h"
#include "platform/services/HbxRelation.h"

#include <algorithm>

using namespace wall;

namespace {

using Elements = ORVCADWallEdoGenerator::Elements;
using DrawObjs = ORVCADWallEdoGenerator::DrawObjs;
using Pieces = std::list<IdentifyResultData>;

/** Sites of brackets; the numbers are part of the keys. */
enum class BatchSite { RemoveOverlaps = 79, ForceRun = 125, PlacedPieces = 164, BrickElement = 200 };

constexpr int kNotWritten = -1;            // an integer that stands for no value
constexpr double kOverlapTolerance = -1.0; // mm; below 0: an overlap must be thicker, touching is none

std::string batchKey(BatchSite site)
{
    return "ORVCADModelData\\IdentifyInputModel\\Wall\\ORVCADWallEdoGenerator" + std::to_string(static_cast<int>(site));
}

// ---- Properties

/** Writes to a property, if there is one; a write that throws is taken back. */
template <typename Write> void writeProperty(IHBXProperties &properties, const std::wstring &name, Write write)
{
    std::shared_ptr<IHBXProperty> property;
    if (!properties.property(property, name))
        return;
    try {
        write(*property);
    } catch (...) {
        property->revert();
    }
}

void writeInt(IHBXProperties &properties, const std::wstring &name, int value)
{
    if (value != kNotWritten)
        writeProperty(properties, name, [value](IHBXProperty &property) { property.setInt(value, true); });
}

void writeText(IHBXProperties &properties, const std::wstring &name, const std::wstring &value)
{
    const auto write = [&value](IHBXProperty &property) { property.setString(QString::fromStdWString(value), false); };
    if (!value.empty())
        writeProperty(properties, name, write);
}

template <typename Record, std::size_t count>
void writeTexts(IHBXProperties &properties, const TextRow<Record> (&texts)[count], const Record &record)
{
    for (const TextRow<Record> &row : texts)
        writeText(properties, row.name, record.*row.member);
}

void writeBrickProperties(IHBXProperties &properties, const ORVCADCloudEntBrickWallStruct &record)
{
    if (!record.material.empty())
        writeInt(properties, property::material, QString::fromStdWString(record.material).toInt());
    writeTexts(properties, kBrickBarsOfReplies, record);
    writeInt(properties, property::thickness, record.width);
}

void writeForceProperties(IHBXProperties &properties, const ORVCADCloudEntForceWallStruct &record)
{
    writeTexts(properties, kForceBars, record);
    writeInt(properties, property::thickness, record.width);
}

// ---- Elements

/** Null for an unknown region or floor. */
template <typename Record> IHBXFloor *floorOf(IHBXModel &model, const Record &record)
{
    IHBXRegion *region = model.regions()->find(QString::fromStdWString(record.region));
    return region ? region->floors()->findByCode(QString::fromStdWString(record.floorCode)) : nullptr;
}

/** The name itself while no element on the floor has it, of whatever type, else one that the host makes of it. */
QString nameFor(IHBXElements &elements, IHBXFloor &floor, qint64 elementType, const std::wstring &wanted)
{
    constexpr qint64 anyType = -1;
    QString name = QString::fromStdWString(wanted);
    if (!elements.findElement(name, floor.id(), anyType, true, 0))
        return name;
    QString unique;
    return elements.uniqueName(unique, floor.id(), elementType, name);
}

template <typename Record>
IHBXElement *createElement(IHBXModel &model, const Record &record, qint64 elementType, Elements &made,
                           void (*writeProperties)(IHBXProperties &, const Record &))
{
    if (record.elementType != elementType)
        return nullptr;
    IHBXFloor *floor = floorOf(model, record);
    if (!floor)
        return nullptr;
    IHBXElements &elements = *model.elements();
    const QString name = nameFor(elements, *floor, elementType, record.entName);
    IHBXElement *element = elements.createElement(elementType, record.elementSubType, nullptr, floor, 0, QString(), 0);
    if (!element)
        return nullptr;
    element->setName(name);
    IHBXProperties *properties = element->properties();
    if (!properties)
        return nullptr; // meant: the element stays in the host
    writeProperties(*properties, record);
    made.push_back(element);
    return element;
}

/** Null when the host refuses one of the steps in its own way. */
template <typename Create> IHBXElement *elementOrNull(Create create)
{
    try {
        return create();
    } catch (const HBXModelException &) {
        return nullptr;
    }
}

/** The name that an element has in the host. False, and the name as it was, when the host refuses to tell it. */
bool readName(const IHBXElement &element, std::wstring &name)
{
    try {
        QString told;
        name = element.name(told).toStdWString();
        return true;
    } catch (const HBXModelException &) {
        return false;
    }
}

/** @param create  (record) -> element, null for a wall to pass over */
template <typename Walls, typename Create>
void generate(ORVCADWallEdoGenerator &generator, Walls &walls, DrawObjs &drawObjs, Create create)
{
    for (auto &[record, pieces] : walls) {
        IHBXElement *element = record ? create(*record) : nullptr;
        if (!element || !readName(*element, record->entName))
            continue;
        generator.createDrawObjs(*element, pieces, drawObjs);
    }
}

// ---- Draw objects

/** Null when the host makes no draw object, or none along a line. */
IHBXElementDrawObj *createDrawObj(IHBXModel &model, IHBXElement &element, const IdentifyResultData &piece)
{
    IHBXDrawObjs &drawObjs = *model.drawObjects();
    IHBXElementDrawObj *object = drawObjs.createDrawObj(element.floor(), &element, true);
    if (!object)
        return nullptr;
    drawObjs.addDrawObj(object);
    auto *shape = dynamic_cast<IHBXCustomLineSolidShape *>(object->shape());
    if (!shape) {
        object->remove();
        return nullptr;
    }
    shape->setLine(piece.sWorldLine.get());
    if (IHBXProperties *properties = object->properties())
        writeTexts(*properties, kElevations, piece);
    return object;
}

// ---- Overlaps

/** A placed wall in the world. */
struct PlacedWall
{
    vks::CRefPtr<vks::CPolygon> outline;
    vks::CRefPtr<vks::CCurve2d> line;
};

/** Without geometry for an object that is no solid along a line. */
PlacedWall placedWall(IHBXElementDrawObj &object)
{
    PlacedWall placed;
    const auto *shape = dynamic_cast<IHBXCustomLineSolidShape *>(object.shape());
    if (!shape)
        return placed;
    shape->worldPoly(placed.outline, IHBXModel::g_bDefaultAutoCalc);
    shape->worldLine(placed.line, IHBXModel::g_bDefaultAutoCalc);
    return placed;
}

bool overlaps(const PlacedWall &placed, const IdentifyResultData &piece)
{
    // Lines first: they cost less than outlines.
    if (!hbx::isParallel(placed.line.get(), piece.sWorldLine.get(), vks::g_ParallelEpsilon, vks::g_DistEpsilon))
        return false;
    const auto position = hbx::polyPolyPosition(placed.outline.get(), piece.sPolys.get(), kOverlapTolerance);
    return position != vks::kPolygonsInvalid && position != vks::kPolygonsApart && position != vks::kPolygonsTouch;
}

bool overlapsAny(const PlacedWall &placed, const ORVCADWallBrickDataOutputModel::Walls &walls)
{
    const auto overlapsPiece = [&placed](const IdentifyResultData &piece) { return overlaps(placed, piece); };
    return std::any_of(walls.begin(), walls.end(), [&](const auto &wall) {
        return std::any_of(wall.second.begin(), wall.second.end(), overlapsPiece);
    });
}

} // namespace

bool ORVCADWallEdoGenerator::generateBrick(ORVCADWallBrickDataOutputModel *output, DrawObjs &drawObjs,
                                           Elements &elements)
{
    if (!output)
        return false;
    ORVCADWallBrickDataOutputModel::Walls walls;
    output->getBrickWallIdentifyData(walls);
    generate(*this, walls, drawObjs, [&](const auto &record) { return createBrickElement(record, elements); });
    return true;
}

bool ORVCADWallEdoGenerator::generateForce(ORVCADWallForceDataOutputModel *output, DrawObjs &drawObjs,
                                           Elements &elements)
{
    const HBXBatch batch(*m_model, batchKey(BatchSite::ForceRun)); // meant: around the whole run, an empty one too
    if (!output)
        return false;
    ORVCADWallForceDataOutputModel::Walls walls;
    output->getForceWallIdentifyData(walls);
    generate(*this, walls, drawObjs, [&](const auto &record) { return createForceElement(record, elements); });
    return true;
}

IHBXElement *ORVCADWallEdoGenerator::createBrickElement(const ORVCADCloudEntBrickWallStruct &record, Elements &elements)
{
    const HBXBatch batch(*m_model, batchKey(BatchSite::BrickElement)); // meant: for a record of another type, too
    return elementOrNull(
        [&] { return createElement(*m_model, record, type::brickWall, elements, writeBrickProperties); });
}

IHBXElement *ORVCADWallEdoGenerator::createForceElement(const ORVCADCloudEntForceWallStruct &record, Elements &elements)
{
    return elementOrNull(
        [&] { return createElement(*m_model, record, type::forceWall, elements, writeForceProperties); });
}

void ORVCADWallEdoGenerator::createDrawObjs(IHBXElement &element, const Pieces &pieces, DrawObjs &drawObjs)
{
    const HBXBatch batch(*m_model, batchKey(BatchSite::PlacedPieces));
    for (const IdentifyResultData &piece : pieces) {
        try {
            if (IHBXElementDrawObj *object = createDrawObj(*m_model, element, piece))
                drawObjs.push_back(object);
        } catch (const HBXModelException &) {
            // The host refused this piece in its own way; the others go on.
        }
    }
}

bool ORVCADWallEdoGenerator::collectOverlaps(IHBXFloor &floor, const ORVCADWallBrickDataOutputModel &output)
{
    ORVCADWallBrickDataOutputModel::Walls walls;
    output.getBrickWallIdentifyData(walls);
    QList<IHBXElementDrawObj *> placed;
    m_model->drawObjects()->queryDrawObjsOfFloor(placed, floor.id(), static_cast<int>(type::brickWall),
                                                 IHBXDrawObjs::kAnySubType, true);
    for (IHBXElementDrawObj *object : qAsConst(placed))
        if (!m_overlaps.contains(object) && overlapsAny(placedWall(*object), walls))
            m_overlaps.append(object);
    return !m_overlaps.isEmpty();
}

void ORVCADWallEdoGenerator::removeOverlaps()
{
    if (m_overlaps.isEmpty())
        return;
    const HBXBatch batch(*m_model, batchKey(BatchSite::RemoveOverlaps));
    for (IHBXElementDrawObj *object : qAsConst(m_overlaps))
        object->remove();
    m_overlaps.clear(); // what it held is gone
}

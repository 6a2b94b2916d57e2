#include "IdentifyInputModel/Wall/ORVCADOutputModelSerialization.h"

#include "IdentifyInputModel/Wall/WallArchiveRecords.h"
#include "IdentifyInputModel/Wall/WallRecords.h"

#include <memory>

using namespace wall;

namespace {

template <typename Element> using Walls = std::map<Element *, std::list<IdentifyResultData>>;

template <typename Element, typename Table>
void writeWalls(ORVCADFileSerialization &archive, QLatin1String documentKey, const Walls<Element> &walls,
                const Table &table)
{
    QMap<QString, QStringList> records;
    for (const auto &[element, pieces] : walls)
        if (element)
            records[encoding::flatRecord(*element, table)] += flatRecords(pieces, record::piece);
    archive.writeRecordMap(documentKey, records);
}

template <typename Element, typename Table>
void readWalls(ORVCADFileSerialization &archive, QLatin1String documentKey, Walls<Element> &walls, const Table &table)
{
    QMap<QString, QStringList> records;
    archive.readRecordMap(documentKey, records);
    for (auto entry = records.constBegin(); entry != records.constEnd(); ++entry) {
        auto element = std::make_unique<Element>();
        encoding::readFlatRecord(entry.key(), table, *element);
        std::list<IdentifyResultData> pieces;
        appendRecords(entry.value(), record::piece, pieces);
        walls[element.release()] = std::move(pieces);
    }
}

} // namespace

ORVCADOutputModelSerialization::ORVCADOutputModelSerialization(ORVCADFileSerialization *archive) : m_archive(archive) {}

ORVCADOutputModelSerialization::~ORVCADOutputModelSerialization() = default;

void ORVCADOutputModelSerialization::saveBrickWallIdentifyData(const BrickWalls &walls)
{
    writeWalls(*m_archive, document::brickReply, walls, record::brickWallOfReply);
}
void ORVCADOutputModelSerialization::loadBrickWallIdentifyData(BrickWalls &walls)
{
    readWalls(*m_archive, document::brickReply, walls, record::brickWallOfReply);
}

void ORVCADOutputModelSerialization::saveForceWallIdentifyData(const ForceWalls &walls)
{
    writeWalls(*m_archive, document::forceReply, walls, record::forceWallOfReply);
}
void ORVCADOutputModelSerialization::loadForceWallIdentifyData(ForceWalls &walls)
{
    readWalls(*m_archive, document::forceReply, walls, record::forceWallOfReply);
}

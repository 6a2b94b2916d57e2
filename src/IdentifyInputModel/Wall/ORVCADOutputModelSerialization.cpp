#include "IdentifyInputModel/Wall/ORVCADOutputModelSerialization.h"

#include "IdentifyInputModel/Wall/WallArchiveRecords.h"
#include "IdentifyInputModel/Wall/WallRecords.h"

#include <algorithm>
#include <memory>
#include <vector>

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

/** New elements in the order of their addresses, so that a map has them in the order in which they are filled. */
template <typename Element> std::vector<std::unique_ptr<Element>> newElements(int count)
{
    std::vector<std::unique_ptr<Element>> elements;
    elements.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        elements.push_back(std::make_unique<Element>());
    std::sort(elements.begin(), elements.end());
    return elements;
}

template <typename Element, typename Table>
void readWalls(ORVCADFileSerialization &archive, QLatin1String documentKey, Walls<Element> &walls, const Table &table)
{
    QMap<QString, QStringList> records;
    archive.readRecordMap(documentKey, records);
    auto elements = newElements<Element>(records.size());
    auto element = elements.begin();
    // A record's text goes when it is read: of a large reply both would be much.
    for (auto entry = records.begin(); entry != records.end(); entry = records.erase(entry), ++element) {
        encoding::readFlatRecord(entry.key(), table, **element);
        std::list<IdentifyResultData> pieces;
        appendRecords(entry.value(), record::piece, pieces);
        walls.emplace(element->get(), std::move(pieces));
        static_cast<void>(element->release()); // now the map's
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

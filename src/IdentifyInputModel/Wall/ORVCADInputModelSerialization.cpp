#include "IdentifyInputModel/Wall/ORVCADInputModelSerialization.h"

#include "IdentifyInputModel/Wall/WallArchiveRecords.h"
#include "IdentifyInputModel/Wall/WallRecords.h"

using namespace wall;

namespace {

template <typename Record, typename Table>
void writeLayers(ORVCADFileSerialization &archive, QLatin1String documentKey,
                 const std::map<std::wstring, std::list<Record>> &layers, const Table &table)
{
    QMap<QString, QStringList> records;
    for (const auto &[layer, members] : layers)
        records.insert(QString::fromStdWString(layer), flatRecords(members, table));
    archive.writeRecordMap(documentKey, records);
}

/** The first key of a map key's record. Meant: what stands behind "/" or ":" in a layer's name is lost. */
std::wstring layerName(const QString &mapKey)
{
    const auto end = mapKey.indexOf(encoding::kItemEnd);
    return encoding::splitItem(QStringView(mapKey).left(end < 0 ? mapKey.size() : end)).key.toString().toStdWString();
}

template <typename Record, typename Table>
void readLayers(ORVCADFileSerialization &archive, QLatin1String documentKey,
                std::map<std::wstring, std::list<Record>> &layers, const Table &table)
{
    QMap<QString, QStringList> records;
    archive.readRecordMap(documentKey, records);
    for (auto entry = records.constBegin(); entry != records.constEnd(); ++entry) {
        std::list<Record> members;
        appendRecords(entry.value(), table, members);
        layers[layerName(entry.key())] = std::move(members);
    }
}

template <typename T>
void writeValue(ORVCADFileSerialization &archive, QLatin1String documentKey, QLatin1String itemKey, const T &value)
{
    QString record;
    encoding::appendField(record, itemKey, value);
    encoding::cutLastSeparator(record);
    archive.writeRecord(documentKey, record);
}

template <typename T> void readValue(ORVCADFileSerialization &archive, QLatin1String documentKey, T &value)
{
    QString record;
    archive.readRecord(documentKey, record);
    if (!record.isNull())
        value = encoding::ItemText<T>::read(encoding::splitItem(record).value);
}

/** Layer kind of an item's key: the number behind the first "_". */
int layerKind(QStringView itemKey)
{
    const auto mark = itemKey.indexOf(u'_');
    return mark < 0 ? 0 : encoding::ItemText<int>::read(itemKey.mid(mark + 1));
}

} // namespace

ORVCADInputModelSerialization::ORVCADInputModelSerialization(ORVCADFileSerialization *archive) : m_archive(archive) {}

ORVCADInputModelSerialization::~ORVCADInputModelSerialization() = default;

void ORVCADInputModelSerialization::saveCadEntBrickWallDataInfo(const std::list<ORVCADCloudEntBrickWallStruct> &walls)
{
    writeList(*m_archive, document::brickWalls, walls, record::brickWall);
}
void ORVCADInputModelSerialization::loadCadEntBrickWallDataInfo(std::list<ORVCADCloudEntBrickWallStruct> &walls)
{
    readList(*m_archive, document::brickWalls, walls, record::brickWall);
}

void ORVCADInputModelSerialization::saveCadEntForceWallDataInfo(const std::list<ORVCADCloudEntForceWallStruct> &walls)
{
    writeList(*m_archive, document::forceWalls, walls, record::forceWall);
}
void ORVCADInputModelSerialization::loadCadEntForceWallDataInfo(std::list<ORVCADCloudEntForceWallStruct> &walls)
{
    readList(*m_archive, document::forceWalls, walls, record::forceWall);
}

void ORVCADInputModelSerialization::saveCadFilterTextEdoDataInfo(const std::list<ORVCADCloudTextEdoInfo> &texts)
{
    writeList(*m_archive, document::filterTexts, texts, record::filterText);
}
void ORVCADInputModelSerialization::loadCadFilterTextEdoDataInfo(std::list<ORVCADCloudTextEdoInfo> &texts)
{
    readList(*m_archive, document::filterTexts, texts, record::filterText);
}

void ORVCADInputModelSerialization::saveCadLayerInfo(const std::map<int, std::wstring> &layers)
{
    encoding::FlatRecordText record;
    for (const auto &[kind, name] : layers) {
        QString itemKey = key::layerPrefix;
        encoding::ItemText<int>::append(itemKey, kind);
        record.add(itemKey, QString::fromStdWString(name));
    }
    m_archive->writeRecord(document::layers, record.text());
}
void ORVCADInputModelSerialization::loadCadLayerInfo(std::map<int, std::wstring> &layers)
{
    QString record;
    m_archive->readRecord(document::layers, record);
    if (record.isNull())
        return;
    // Meant: a record without items has one empty item, which is the layer 0 without a name.
    encoding::forEachItem(record, [&layers](QStringView itemKey, QStringView value) {
        layers[layerKind(itemKey)] = encoding::ItemText<std::wstring>::read(value);
    });
}

void ORVCADInputModelSerialization::saveCadLineEdoDataInfo(const LayerLines &lines)
{
    writeLayers(*m_archive, document::lines, lines, record::drawingLine);
}
void ORVCADInputModelSerialization::loadCadLineEdoDataInfo(LayerLines &lines)
{
    readLayers(*m_archive, document::lines, lines, record::drawingLine);
}

void ORVCADInputModelSerialization::saveCadTextEdoDataInfo(const LayerTexts &texts)
{
    writeLayers(*m_archive, document::texts, texts, record::drawingText);
}
void ORVCADInputModelSerialization::loadCadTextEdoDataInfo(LayerTexts &texts)
{
    readLayers(*m_archive, document::texts, texts, record::drawingText);
}

void ORVCADInputModelSerialization::saveCurFloorModelAxisLineEntDataInfo(const ModelLines &lines)
{
    writeList(*m_archive, document::axisLines, lines, record::modelLine);
}
void ORVCADInputModelSerialization::loadCurFloorModelAxisLineEntDataInfo(ModelLines &lines)
{
    readList(*m_archive, document::axisLines, lines, record::modelLine);
}

void ORVCADInputModelSerialization::saveCurFloorModelBrickLineEntDataInfo(const ModelLines &lines)
{
    writeList(*m_archive, document::brickLines, lines, record::modelLine);
}
void ORVCADInputModelSerialization::loadCurFloorModelBrickLineEntDataInfo(ModelLines &lines)
{
    readList(*m_archive, document::brickLines, lines, record::modelLine);
}

void ORVCADInputModelSerialization::saveCurFloorModelForceLineEntDataInfo(const ModelLines &lines)
{
    writeList(*m_archive, document::forceLines, lines, record::modelLine);
}
void ORVCADInputModelSerialization::loadCurFloorModelForceLineEntDataInfo(ModelLines &lines)
{
    readList(*m_archive, document::forceLines, lines, record::modelLine);
}

void ORVCADInputModelSerialization::saveCurFloorModelPointEntDataInfo(
    const std::list<ORVCADCloudHBXModelPointEdoStruct> &points)
{
    writeList(*m_archive, document::points, points, record::modelPoint);
}
void ORVCADInputModelSerialization::loadCurFloorModelPointEntDataInfo(
    std::list<ORVCADCloudHBXModelPointEdoStruct> &points)
{
    readList(*m_archive, document::points, points, record::modelPoint);
}

void ORVCADInputModelSerialization::saveDWGXBaseOptions(const ORVCADCloudWalloptionDataStruct &options)
{
    m_archive->writeRecord(document::options, encoding::flatRecord(options, record::options));
}
void ORVCADInputModelSerialization::loadDWGXBaseOptions(ORVCADCloudWalloptionDataStruct &options)
{
    QString record;
    m_archive->readRecord(document::options, record);
    if (!record.isNull())
        encoding::readFlatRecord(record, record::options, options);
}

void ORVCADInputModelSerialization::saveIdentifyType(EORVCADIdentifyType type)
{
    writeValue(*m_archive, document::identifyType, key::identifyType, type);
}
void ORVCADInputModelSerialization::loadIdentifyType(EORVCADIdentifyType &type)
{
    readValue(*m_archive, document::identifyType, type);
}

void ORVCADInputModelSerialization::saveProjectName(const std::wstring &name)
{
    writeValue(*m_archive, document::projectName, key::projectName, name);
}
void ORVCADInputModelSerialization::loadProjectName(std::wstring &name)
{
    readValue(*m_archive, document::projectName, name);
}

void ORVCADInputModelSerialization::saveFloorCode(const std::wstring &code)
{
    writeValue(*m_archive, document::floorCode, key::floorCode, code);
}
void ORVCADInputModelSerialization::loadFloorCode(std::wstring &code)
{
    readValue(*m_archive, document::floorCode, code);
}

void ORVCADInputModelSerialization::saveFloorName(const std::wstring &name)
{
    writeValue(*m_archive, document::floorName, key::floorName, name);
}
void ORVCADInputModelSerialization::loadFloorName(std::wstring &name)
{
    readValue(*m_archive, document::floorName, name);
}

void ORVCADInputModelSerialization::saveDrawingName(const std::wstring &name)
{
    writeValue(*m_archive, document::drawingName, key::drawingName, name);
}
void ORVCADInputModelSerialization::loadDrawingName(std::wstring &name)
{
    readValue(*m_archive, document::drawingName, name);
}

#include "IdentifyInputModel/Wall/ORVCADWallDataInputModel.h"

namespace {

template <typename Members>
void appendLayer(const std::map<std::wstring, Members> &layers, const std::wstring &layer, Members &members)
{
    const auto entry = layers.find(layer);
    if (entry != layers.end())
        members.insert(members.end(), entry->second.begin(), entry->second.end());
}

} // namespace

ORVCADWallDataInputModel::ORVCADWallDataInputModel(EORVCADIdentifyType type) : m_identifyType(type) {}

ORVCADWallDataInputModel::~ORVCADWallDataInputModel() = default;

void ORVCADWallDataInputModel::setCadLayerInfo(const std::map<int, std::wstring> &layers)
{
    for (const auto &[kind, name] : layers)
        m_layers[kind] = name;
}

void ORVCADWallDataInputModel::getCadLineEdoDataInfo(const std::wstring &layer, DrawingLines &lines) const
{
    appendLayer(m_lines, layer, lines);
}

void ORVCADWallDataInputModel::setCadLineEdoDataInfo(const std::wstring &layer, DrawingLines lines)
{
    m_lines[layer] = std::move(lines);
}

void ORVCADWallDataInputModel::getCadTextEdoDataInfo(const std::wstring &layer, DrawingTexts &texts) const
{
    appendLayer(m_texts, layer, texts);
}

void ORVCADWallDataInputModel::setCadTextEdoDataInfo(const std::wstring &layer, DrawingTexts texts)
{
    m_texts[layer] = std::move(texts);
}

void ORVCADWallDataInputModel::saveToJson(ORVCADInputModelSerialization &archive) const
{
    archive.saveCurFloorModelForceLineEntDataInfo(m_forceLines);
    archive.saveCurFloorModelBrickLineEntDataInfo(m_brickLines);
    archive.saveCurFloorModelAxisLineEntDataInfo(m_axisLines);
    archive.saveCurFloorModelPointEntDataInfo(m_points);
    archive.saveCadLineEdoDataInfo(m_lines);
    archive.saveCadTextEdoDataInfo(m_texts);
    archive.saveCadFilterTextEdoDataInfo(m_filterTexts);
    archive.saveCadLayerInfo(m_layers);
    archive.saveDWGXBaseOptions(m_options);
    archive.saveIdentifyType(m_identifyType); // meant: written and never read
    archive.saveProjectName(m_projectName);
}

void ORVCADWallDataInputModel::saveToXml(ORVCADInputModelSerialization &archive) const { saveToJson(archive); }

void ORVCADWallDataInputModel::loadFromJson(ORVCADInputModelSerialization &archive)
{
    loadFromXml(archive);
    archive.loadFloorName(m_floorName);
    archive.loadFloorCode(m_floorCode);
    archive.loadDrawingName(m_drawingName);
}

void ORVCADWallDataInputModel::loadFromXml(ORVCADInputModelSerialization &archive)
{
    archive.loadCurFloorModelForceLineEntDataInfo(m_forceLines);
    archive.loadCurFloorModelBrickLineEntDataInfo(m_brickLines);
    archive.loadCurFloorModelAxisLineEntDataInfo(m_axisLines);
    archive.loadCurFloorModelPointEntDataInfo(m_points);
    archive.loadCadLineEdoDataInfo(m_lines);
    archive.loadCadTextEdoDataInfo(m_texts);
    archive.loadCadFilterTextEdoDataInfo(m_filterTexts);
    archive.loadDWGXBaseOptions(m_options);
    archive.loadCadLayerInfo(m_layers);
    archive.loadProjectName(m_projectName); // meant: floor and drawing are not read here
}

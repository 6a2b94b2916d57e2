#include "IdentifyInputModel/Wall/ORVCADWallBrickDataInputModel.h"

#include "IdentifyInputModel/Wall/WallDocument.h"
#include "encoding/ORVCADJsonFileSerialization.h"
#include "encoding/ORVCADXmlFileSerialization.h"

using Json = ORVCADJsonFileSerialization;
using Xml = ORVCADXmlFileSerialization;
using Records = ORVCADInputModelSerialization;

ORVCADWallBrickDataInputModel::ORVCADWallBrickDataInputModel(EORVCADIdentifyType type) : ORVCADWallDataInputModel(type)
{}

ORVCADWallBrickDataInputModel::~ORVCADWallBrickDataInputModel() = default;

void ORVCADWallBrickDataInputModel::saveAll(Records &archive) const
{
    archive.saveCadEntBrickWallDataInfo(m_walls);
    saveToJson(archive); // meant: for XML, too
}

void ORVCADWallBrickDataInputModel::loadAll(Records &archive)
{
    loadFromJson(archive); // meant: for XML, too, so that floor and drawing are read from it
    archive.loadCadEntBrickWallDataInfo(m_walls);
}

void ORVCADWallBrickDataInputModel::saveToJson(std::wstring &text) const
{
    text = wall::documentText<Json, Records>([this](Records &records) { saveAll(records); });
}

void ORVCADWallBrickDataInputModel::saveToXml(std::wstring &text) const
{
    text = wall::documentText<Xml, Records>([this](Records &records) { saveAll(records); });
}

void ORVCADWallBrickDataInputModel::saveToJson(QJsonObject *json) const
{
    Json archive{QString()};
    Records records(&archive);
    saveAll(records);
    archive.insertRootInto(QString(), json); // meant: the member's name is empty
}

void ORVCADWallBrickDataInputModel::saveToJson_ToCloud(QJsonObject &json) const
{
    Json archive{QString()};
    Records records(&archive);
    records.saveCadEntBrickWallDataInfo(m_walls);
    records.saveFloorCode(getFloorCode());
    records.saveFloorName(getFloorName());
    records.saveDrawingName(getDrawingName());
    saveToJson(records);
    json = archive.rootObject();
}

void ORVCADWallBrickDataInputModel::loadFromJson(const std::wstring &text)
{
    wall::loadDocument<Json, Records>(text, [this](Records &records) { loadAll(records); });
}

void ORVCADWallBrickDataInputModel::loadFromXml(const std::wstring &text)
{
    wall::loadDocument<Xml, Records>(text, [this](Records &records) { loadAll(records); });
}

#include "IdentifyInputModel/Wall/ORVCADWallForceDataInputModel.h"

#include "IdentifyInputModel/Wall/WallDocument.h"
#include "encoding/ORVCADJsonFileSerialization.h"
#include "encoding/ORVCADXmlFileSerialization.h"

using Json = ORVCADJsonFileSerialization;
using Xml = ORVCADXmlFileSerialization;
using Records = ORVCADInputModelSerialization;

ORVCADWallForceDataInputModel::ORVCADWallForceDataInputModel(EORVCADIdentifyType type) : ORVCADWallDataInputModel(type)
{}

ORVCADWallForceDataInputModel::~ORVCADWallForceDataInputModel() = default;

void ORVCADWallForceDataInputModel::saveAll(Records &archive) const
{
    archive.saveCadEntForceWallDataInfo(m_walls);
    saveToJson(archive); // meant: for XML, too
}

void ORVCADWallForceDataInputModel::loadAll(Records &archive)
{
    loadFromJson(archive); // meant: for XML, too, so that floor and drawing are read from it
    archive.loadCadEntForceWallDataInfo(m_walls);
}

void ORVCADWallForceDataInputModel::saveToJson(std::wstring &text) const
{
    text = wall::documentText<Json, Records>([this](Records &records) { saveAll(records); });
}

void ORVCADWallForceDataInputModel::saveToXml(std::wstring &text) const
{
    text = wall::documentText<Xml, Records>([this](Records &records) { saveAll(records); });
}

void ORVCADWallForceDataInputModel::saveToJson(QJsonObject *json) const
{
    Json archive{QString()};
    Records records(&archive);
    saveAll(records);
    archive.insertRootInto(QString(), json); // meant: the member's name is empty
}

void ORVCADWallForceDataInputModel::loadFromJson(const std::wstring &text)
{
    wall::loadDocument<Json, Records>(text, [this](Records &records) { loadAll(records); });
}

void ORVCADWallForceDataInputModel::loadFromXml(const std::wstring &text)
{
    wall::loadDocument<Xml, Records>(text, [this](Records &records) { loadAll(records); });
}

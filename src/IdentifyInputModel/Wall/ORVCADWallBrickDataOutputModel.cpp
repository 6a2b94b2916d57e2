#include "IdentifyInputModel/Wall/ORVCADWallBrickDataOutputModel.h"

#include "IdentifyInputModel/Wall/ORVCADOutputModelSerialization.h"
#include "IdentifyInputModel/Wall/WallDocument.h"
#include "encoding/ORVCADJsonFileSerialization.h"
#include "encoding/ORVCADXmlFileSerialization.h"

using Json = ORVCADJsonFileSerialization;
using Xml = ORVCADXmlFileSerialization;
using Records = ORVCADOutputModelSerialization;

ORVCADWallBrickDataOutputModel::ORVCADWallBrickDataOutputModel() = default;

ORVCADWallBrickDataOutputModel::~ORVCADWallBrickDataOutputModel() = default;

void ORVCADWallBrickDataOutputModel::saveToJson(std::wstring &text) const
{
    text = wall::documentText<Json, Records>(
        [this](Records &records) { records.saveBrickWallIdentifyData(m_walls.map()); });
}

void ORVCADWallBrickDataOutputModel::saveToJson(const QString &key, QJsonObject *json) const
{
    Json archive{QString()};
    Records(&archive).saveBrickWallIdentifyData(m_walls.map());
    archive.insertRootInto(key, json);
}

void ORVCADWallBrickDataOutputModel::saveToXml(std::wstring &text) const
{
    text = wall::documentText<Xml, Records>(
        [this](Records &records) { records.saveBrickWallIdentifyData(m_walls.map()); });
}

void ORVCADWallBrickDataOutputModel::loadFromJson(const std::wstring &text)
{
    wall::loadDocument<Json, Records>(text,
                                      [this](Records &records) { records.loadBrickWallIdentifyData(m_walls.map()); });
}

void ORVCADWallBrickDataOutputModel::loadFromXml(const std::wstring &text)
{
    wall::loadDocument<Xml, Records>(text,
                                     [this](Records &records) { records.loadBrickWallIdentifyData(m_walls.map()); });
}

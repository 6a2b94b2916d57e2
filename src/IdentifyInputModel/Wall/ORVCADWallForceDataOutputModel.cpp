#include "IdentifyInputModel/Wall/ORVCADWallForceDataOutputModel.h"

#include "IdentifyInputModel/Wall/ORVCADOutputModelSerialization.h"
#include "IdentifyInputModel/Wall/WallDocument.h"
#include "encoding/ORVCADJsonFileSerialization.h"
#include "encoding/ORVCADXmlFileSerialization.h"

using Json = ORVCADJsonFileSerialization;
using Xml = ORVCADXmlFileSerialization;
using Records = ORVCADOutputModelSerialization;

ORVCADWallForceDataOutputModel::ORVCADWallForceDataOutputModel() = default;

ORVCADWallForceDataOutputModel::~ORVCADWallForceDataOutputModel() = default;

void ORVCADWallForceDataOutputModel::saveToJson(std::wstring &text) const
{
    text = wall::documentText<Json, Records>(
        [this](Records &records) { records.saveForceWallIdentifyData(m_walls.map()); });
}

void ORVCADWallForceDataOutputModel::saveToJson(const QString &key, QJsonObject *json) const
{
    Json archive{QString()};
    Records(&archive).saveForceWallIdentifyData(m_walls.map());
    archive.insertRootInto(key, json);
}

void ORVCADWallForceDataOutputModel::saveToXml(std::wstring &text) const
{
    text = wall::documentText<Xml, Records>(
        [this](Records &records) { records.saveForceWallIdentifyData(m_walls.map()); });
}

void ORVCADWallForceDataOutputModel::loadFromJson(const std::wstring &text)
{
    wall::loadDocument<Json, Records>(text,
                                      [this](Records &records) { records.loadForceWallIdentifyData(m_walls.map()); });
}

void ORVCADWallForceDataOutputModel::loadFromXml(const std::wstring &text)
{
    wall::loadDocument<Xml, Records>(text,
                                     [this](Records &records) { records.loadForceWallIdentifyData(m_walls.map()); });
}

#include "IdentifyInputModel/Wall/WallKindOutputModel.h"

#include "IdentifyInputModel/Wall/WallDocument.h"
#include "IdentifyInputModel/Wall/WallKind.h"
#include "encoding/ORVCADJsonFileSerialization.h"
#include "encoding/ORVCADXmlFileSerialization.h"

namespace wall {

namespace {

using Json = ORVCADJsonFileSerialization;
using Xml = ORVCADXmlFileSerialization;
using Records = ORVCADOutputModelSerialization;

} // namespace

template <typename Wall> WallKindOutputModel<Wall>::WallKindOutputModel() = default;

template <typename Wall> WallKindOutputModel<Wall>::~WallKindOutputModel()
{
    for (const auto &wall : m_walls)
        delete wall.first;
}

template <typename Wall> void WallKindOutputModel<Wall>::copyInto(Walls &walls) const
{
    for (const auto &[element, pieces] : m_walls)
        walls[element] = pieces;
}

template <typename Wall> void WallKindOutputModel<Wall>::saveToJson(std::wstring &text) const
{
    text = documentText<Json, Records>([this](Records &records) { (records.*WallKind<Wall>::saveReply)(m_walls); });
}

template <typename Wall> void WallKindOutputModel<Wall>::saveToJson(const QString &key, QJsonObject *json) const
{
    Json archive{QString()};
    Records records(&archive);
    (records.*WallKind<Wall>::saveReply)(m_walls);
    archive.insertRootInto(key, json);
}

template <typename Wall> void WallKindOutputModel<Wall>::saveToXml(std::wstring &text) const
{
    text = documentText<Xml, Records>([this](Records &records) { (records.*WallKind<Wall>::saveReply)(m_walls); });
}

template <typename Wall> void WallKindOutputModel<Wall>::loadFromJson(const std::wstring &text)
{
    loadDocument<Json, Records>(text, [this](Records &records) { (records.*WallKind<Wall>::loadReply)(m_walls); });
}

template <typename Wall> void WallKindOutputModel<Wall>::loadFromXml(const std::wstring &text)
{
    loadDocument<Xml, Records>(text, [this](Records &records) { (records.*WallKind<Wall>::loadReply)(m_walls); });
}

template class WallKindOutputModel<ORVCADCloudEntBrickWallStruct>;
template class WallKindOutputModel<ORVCADCloudEntForceWallStruct>;

} // namespace wall

#include "IdentifyInputModel/Wall/WallKindInputModel.h"

#include "IdentifyInputModel/Wall/WallDocument.h"
#include "IdentifyInputModel/Wall/WallKind.h"
#include "encoding/ORVCADJsonFileSerialization.h"
#include "encoding/ORVCADXmlFileSerialization.h"

namespace wall {

namespace {

using Json = ORVCADJsonFileSerialization;
using Xml = ORVCADXmlFileSerialization;
using Records = ORVCADInputModelSerialization;

} // namespace

template <typename Wall>
WallKindInputModel<Wall>::WallKindInputModel(EORVCADIdentifyType type) : ORVCADWallDataInputModel(type)
{}

template <typename Wall> WallKindInputModel<Wall>::~WallKindInputModel() = default;

template <typename Wall> void WallKindInputModel<Wall>::saveWalls(Records &archive) const
{
    (archive.*WallKind<Wall>::saveInput)(m_walls);
}

template <typename Wall> void WallKindInputModel<Wall>::saveAll(Records &archive) const
{
    saveWalls(archive);
    saveToJson(archive); // meant: for XML, too
}

template <typename Wall> void WallKindInputModel<Wall>::loadAll(Records &archive)
{
    loadFromJson(archive); // meant: for XML, too, so that floor and drawing are read from it
    (archive.*WallKind<Wall>::loadInput)(m_walls);
}

template <typename Wall> void WallKindInputModel<Wall>::saveToJson(std::wstring &text) const
{
    text = documentText<Json, Records>([this](Records &records) { saveAll(records); });
}

template <typename Wall> void WallKindInputModel<Wall>::saveToXml(std::wstring &text) const
{
    text = documentText<Xml, Records>([this](Records &records) { saveAll(records); });
}

template <typename Wall> void WallKindInputModel<Wall>::saveToJson(QJsonObject *json) const
{
    Json archive{QString()};
    Records records(&archive);
    saveAll(records);
    archive.insertRootInto(QString(), json); // meant: the member's name is empty
}

template <typename Wall> void WallKindInputModel<Wall>::loadFromJson(const std::wstring &text)
{
    loadDocument<Json, Records>(text, [this](Records &records) { loadAll(records); });
}

template <typename Wall> void WallKindInputModel<Wall>::loadFromXml(const std::wstring &text)
{
    loadDocument<Xml, Records>(text, [this](Records &records) { loadAll(records); });
}

template class WallKindInputModel<ORVCADCloudEntBrickWallStruct>;
template class WallKindInputModel<ORVCADCloudEntForceWallStruct>;

} // namespace wall

#pragma once

#include "IdentifyInputModel/Wall/ORVCADWallDataInputModel.h"

#include <QJsonObject>

/** What the identification of brick walls is given: the base model and the brick walls that the host has already.
 *
 *  Saving changes nothing. Loading appends to lists, so that loading twice doubles them; a text that is no document
 *  leaves the model as it is, and nothing tells so. Copies share curves and polygons. */
class ORVCADMODELDATA_EXPORT ORVCADWallBrickDataInputModel : public ORVCADWallDataInputModel
{
public:
    explicit ORVCADWallBrickDataInputModel(EORVCADIdentifyType type);
    ~ORVCADWallBrickDataInputModel() override;
    ORVCADWallBrickDataInputModel(const ORVCADWallBrickDataInputModel &) = default;
    ORVCADWallBrickDataInputModel &operator=(const ORVCADWallBrickDataInputModel &) = default;

    std::list<ORVCADCloudEntBrickWallStruct> getCadEntBrickWallDataInfo() const { return m_walls; }
    void setCadEntBrickWallDataInfo(std::list<ORVCADCloudEntBrickWallStruct> walls) { m_walls = std::move(walls); }

    using ORVCADWallDataInputModel::loadFromJson;
    using ORVCADWallDataInputModel::loadFromXml;
    using ORVCADWallDataInputModel::saveToJson;
    using ORVCADWallDataInputModel::saveToXml;

    /** The whole document; the text is replaced. */
    void saveToJson(std::wstring &text) const;
    void saveToXml(std::wstring &text) const;
    /** Inserts the document into the object as the member whose name is empty. Null does nothing. */
    void saveToJson(QJsonObject *json) const;
    /** Makes the object the document, with floor code, floor name and drawing name, which no other form has. */
    void saveToJson_ToCloud(QJsonObject &json) const;

    void loadFromJson(const std::wstring &text);
    /** Reads floor and drawing, too, unlike the base's. Lists are not in what an XML document gives back. */
    void loadFromXml(const std::wstring &text);

private:
    void saveAll(ORVCADInputModelSerialization &archive) const;
    void loadAll(ORVCADInputModelSerialization &archive);

    std::list<ORVCADCloudEntBrickWallStruct> m_walls;
};

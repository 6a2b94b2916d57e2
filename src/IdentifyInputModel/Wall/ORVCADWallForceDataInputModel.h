#pragma once

#include "IdentifyInputModel/Wall/ORVCADWallDataInputModel.h"

#include <QJsonObject>

/** What the identification of load-bearing concrete walls is given: the base model and the load-bearing concrete walls that the host has already.
 *
 *  Saving changes nothing. Loading appends to lists, so that loading twice doubles them; a text that is no document
 *  leaves the model as it is, and nothing tells so. Copies share curves and polygons. */
class ORVCADMODELDATA_EXPORT ORVCADWallForceDataInputModel : public ORVCADWallDataInputModel
{
public:
    explicit ORVCADWallForceDataInputModel(EORVCADIdentifyType type);
    ~ORVCADWallForceDataInputModel() override;
    ORVCADWallForceDataInputModel(const ORVCADWallForceDataInputModel &) = default;
    ORVCADWallForceDataInputModel &operator=(const ORVCADWallForceDataInputModel &) = default;

    std::list<ORVCADCloudEntForceWallStruct> getCadEntForceWallDataInfo() const { return m_walls; }
    void setCadEntForceWallDataInfo(std::list<ORVCADCloudEntForceWallStruct> walls) { m_walls = std::move(walls); }

    using ORVCADWallDataInputModel::loadFromJson;
    using ORVCADWallDataInputModel::loadFromXml;
    using ORVCADWallDataInputModel::saveToJson;
    using ORVCADWallDataInputModel::saveToXml;

    /** The whole document; the text is replaced. */
    void saveToJson(std::wstring &text) const;
    void saveToXml(std::wstring &text) const;
    /** Inserts the document into the object as the member whose name is empty. Null does nothing. */
    void saveToJson(QJsonObject *json) const;

    void loadFromJson(const std::wstring &text);
    /** Reads floor and drawing, too, unlike the base's. Lists are not in what an XML document gives back. */
    void loadFromXml(const std::wstring &text);

private:
    void saveAll(ORVCADInputModelSerialization &archive) const;
    void loadAll(ORVCADInputModelSerialization &archive);

    std::list<ORVCADCloudEntForceWallStruct> m_walls;
};

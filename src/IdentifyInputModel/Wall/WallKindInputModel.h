#pragma once

#include "IdentifyInputModel/Wall/ORVCADWallDataInputModel.h"

#include <QJsonObject>

/** What brick and load-bearing walls have in common. */
namespace wall {

/** What the input models of both kinds of walls are: the base model, the walls of one kind that the host has already,
 *  and whole documents of both. The kinds differ in the record of a wall and in the key above their list.
 *
 *  Saving changes nothing. Loading appends to lists, so that loading twice doubles them; a text that is no document
 *  leaves the model as it is, and nothing tells so. Copies share curves and polygons. */
template <typename Wall> class ORVCADMODELDATA_EXPORT WallKindInputModel : public ORVCADWallDataInputModel
{
public:
    ~WallKindInputModel() override;
    WallKindInputModel(const WallKindInputModel &) = default;
    WallKindInputModel &operator=(const WallKindInputModel &) = default;

    using ORVCADWallDataInputModel::loadFromJson;
    using ORVCADWallDataInputModel::loadFromXml;
    using ORVCADWallDataInputModel::saveToJson;
    using ORVCADWallDataInputModel::saveToXml;

    /** The whole document; the text is replaced. */
    void saveToJson(std::wstring &text) const;
    /** The same in XML. */
    void saveToXml(std::wstring &text) const;
    /** Inserts the document into the object as the member whose name is empty. Null does nothing. */
    void saveToJson(QJsonObject *json) const;

    /** Reads floor and drawing, too, where the document has them. */
    void loadFromJson(const std::wstring &text);
    /** Reads floor and drawing, too, unlike the base's. Lists are not in what an XML document gives back. */
    void loadFromXml(const std::wstring &text);

protected:
    /** Empty but for the type. */
    explicit WallKindInputModel(EORVCADIdentifyType type);
    /** Only the key of this list. */
    void saveWalls(ORVCADInputModelSerialization &archive) const;

    std::list<Wall> m_walls; ///< that the host has already, in the order of the document

private:
    void saveAll(ORVCADInputModelSerialization &archive) const;
    void loadAll(ORVCADInputModelSerialization &archive);
};

// Exported by name: the records are not, and would hide it.
extern template class ORVCADMODELDATA_EXPORT WallKindInputModel<ORVCADCloudEntBrickWallStruct>;
extern template class ORVCADMODELDATA_EXPORT WallKindInputModel<ORVCADCloudEntForceWallStruct>;

} // namespace wall

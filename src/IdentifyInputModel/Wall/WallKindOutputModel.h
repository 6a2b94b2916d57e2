#pragma once

#include "IdentifyInputModel/Wall/IdentifyResultData.h"
#include "IdentifyInputModel/Wall/ORVCADCloudEntBrickWallStruct.h"
#include "IdentifyInputModel/Wall/ORVCADCloudEntForceWallStruct.h"
#include "IdentifyInputModel/Wall/ORVCADWallDataOutputModel.h"

#include <QJsonObject>

#include <list>
#include <map>
#include <string>

namespace wall {

/** What the output models of both kinds of walls are: identified walls, each an element with its pieces. A reply of the
 *  identification holds such a document (docs/formats/wall-documents.md), and walls of a host are put into a model to
 *  become one. The kinds differ in the record of an element and in the key above the map.
 *
 *  The elements belong to the model, which deletes them. They stand in the order of their addresses; those of one document
 *  have the order of their records. Saving changes nothing. */
template <typename Wall> class ORVCADMODELDATA_EXPORT WallKindOutputModel : public ORVCADWallDataOutputModel
{
public:
    using Walls = std::map<Wall *, std::list<IdentifyResultData>>; ///< pieces by element

    ~WallKindOutputModel() override;

    /** The whole document; the text is replaced. */
    void saveToJson(std::wstring &text) const;
    /** Inserts the document into the object under that key. Null does nothing. */
    void saveToJson(const QString &key, QJsonObject *json) const;
    /** The whole document in XML; the text is replaced. */
    void saveToXml(std::wstring &text) const;

    /** Adds the walls of a document. A text that is none leaves the model as it is, and nothing tells so; what is missing
     *  in it reads as 0, empty or null. Of two elements that are equal in all that is written the later one counts. */
    void loadFromJson(const std::wstring &text);
    /** Maps are whole in what an XML document gives back, unlike lists. */
    void loadFromXml(const std::wstring &text);

protected:
    /** Without walls. */
    WallKindOutputModel();
    /** Copies each entry into the map, in place of what it has for that element; its others stay. */
    void copyInto(Walls &walls) const;

    Walls m_walls; ///< owns its keys
};

extern template class ORVCADMODELDATA_EXPORT WallKindOutputModel<ORVCADCloudEntBrickWallStruct>;
extern template class ORVCADMODELDATA_EXPORT WallKindOutputModel<ORVCADCloudEntForceWallStruct>;

} // namespace wall

#pragma once

#include "IdentifyInputModel/Wall/ORVCADCloudEntForceWallStruct.h"
#include "IdentifyInputModel/Wall/ORVCADWallDataOutputModel.h"
#include "IdentifyInputModel/Wall/OwnedWalls.h"

#include <QJsonObject>

#include <string>

/** Load-bearing concrete walls that were identified: elements, each with its pieces. What a reply of the identification holds, and what
 *  walls of the host are put into to become such a document (docs/formats/wall-documents.md).
 *
 *  The elements belong to the model, which deletes them; it cannot be copied. They stand in the order of their addresses,
 *  which for those of one document is the order of their records. Saving changes nothing. */
class ORVCADMODELDATA_EXPORT ORVCADWallForceDataOutputModel : public ORVCADWallDataOutputModel
{
public:
    using Walls = wall::OwnedWalls<ORVCADCloudEntForceWallStruct>::Map;

    ORVCADWallForceDataOutputModel();
    ~ORVCADWallForceDataOutputModel() override;

    /** Copies each entry into the map, in place of what it has for that element; its others stay. The elements remain the
     *  model's: the map must not outlive it and must not delete them. */
    void getForceWallIdentifyData(Walls &walls) const { m_walls.copyInto(walls); }
    /** Appends a copy of the piece to an element, which belongs to the model from now on and must come from new. Null is
     *  kept and never written. */
    void setForceWallIdentifyData(ORVCADCloudEntForceWallStruct *element, const IdentifyResultData &piece)
    {
        m_walls.append(element, piece);
    }

    /** The whole document; the text is replaced. */
    void saveToJson(std::wstring &text) const;
    /** Inserts the document into the object under that key. Null does nothing. */
    void saveToJson(const QString &key, QJsonObject *json) const;
    void saveToXml(std::wstring &text) const;

    /** Adds the walls of a document. A text that is none leaves the model as it is, and nothing tells so; what is missing
     *  in it reads as 0, empty or null. Of two elements that are equal in all that is written the later one counts. */
    void loadFromJson(const std::wstring &text);
    void loadFromXml(const std::wstring &text);

private:
    wall::OwnedWalls<ORVCADCloudEntForceWallStruct> m_walls;
};

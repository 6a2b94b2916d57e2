#pragma once

#include "IdentifyInputModel/Wall/IdentifyResultData.h"
#include "IdentifyInputModel/Wall/ORVCADCloudEntBrickWallStruct.h"
#include "IdentifyInputModel/Wall/ORVCADCloudEntForceWallStruct.h"
#include "ORVCADModelDataExport.h"

#include <list>
#include <map>

class ORVCADFileSerialization;

/** Translates identified walls, each an element with its pieces, into the records of an archive, and back. Both kinds
 *  are record maps: the element is the map key, the pieces are its records. docs/formats/wall-documents.md lists the
 *  items.
 *
 *  The archive is not owned and lives longer. Bad input is treated as ORVCADInputModelSerialization does. */
class ORVCADMODELDATA_EXPORT ORVCADOutputModelSerialization
{
public:
    /** Pieces by element. The map owns nothing: who has it deletes the elements. */
    using BrickWalls = std::map<ORVCADCloudEntBrickWallStruct *, std::list<IdentifyResultData>>;
    /** The same for load-bearing walls. */
    using ForceWalls = std::map<ORVCADCloudEntForceWallStruct *, std::list<IdentifyResultData>>;

    /** The archive must not be null. */
    explicit ORVCADOutputModelSerialization(ORVCADFileSerialization *archive);
    virtual ~ORVCADOutputModelSerialization();
    ORVCADOutputModelSerialization(const ORVCADOutputModelSerialization &) = default;
    ORVCADOutputModelSerialization &operator=(const ORVCADOutputModelSerialization &) = default;

    /** "BrickWallIdentifyData". Elements that are equal in all that is written become one, with the pieces of all; a
     *  null element is left out. */
    void saveBrickWallIdentifyData(const BrickWalls &walls);
    /** Adds a new element, which belongs to the caller, for each in the document; the map has these in the order of
     *  their records. */
    void loadBrickWallIdentifyData(BrickWalls &walls);
    /** The same under "ForceWallIdentifyData". */
    void saveForceWallIdentifyData(const ForceWalls &walls);
    /** The same for those. */
    void loadForceWallIdentifyData(ForceWalls &walls);

private:
    ORVCADFileSerialization *m_archive;
};

#pragma once

#include "IdentifyInputModel/Wall/IdentifyResultData.h"
#include "ORVCADModelDataExport.h"

#include <QList>

#include <list>
#include <vector>

class IHBXElement;
class IHBXElementDrawObj;
class IHBXFloor;
class IHBXModel;
class ORVCADWallBrickDataOutputModel;
class ORVCADWallForceDataOutputModel;
struct ORVCADCloudEntBrickWallStruct;
struct ORVCADCloudEntForceWallStruct;

/** Makes identified walls in a host: an element for each wall, a draw object for each of its pieces. It lives no longer
 *  than one call of jsonBrickWall2HBX or jsonForceWall2HBX; callers use those.
 *
 *  Changes stand between the brackets of a batch: one for each brick element, one around a whole run of force walls, one
 *  for the pieces of each element, one for the removal of overlaps, each with a key of its own. A wall that cannot be made
 *  is passed over with its pieces, and so is a piece; nothing is rolled back and nothing is reported. */
class ORVCADMODELDATA_EXPORT ORVCADWallEdoGenerator
{
public:
    using DrawObjs = std::vector<IHBXElementDrawObj *>; ///< the host owns them
    using Elements = std::vector<IHBXElement *>;        ///< the host owns them

    /** The model is not owned. */
    explicit ORVCADWallEdoGenerator(IHBXModel &model) : m_model(&model) {}

    /** Makes all walls, in the order of the output model. Each record that became an element gets the name that the element
     *  has in the host as its entName. What is made is appended to the vectors.
     *  @return false only without an output model */
    bool generateBrick(ORVCADWallBrickDataOutputModel *output, DrawObjs &drawObjs, Elements &elements);
    /** The same for force walls, between the brackets of one batch. */
    bool generateForce(ORVCADWallForceDataOutputModel *output, DrawObjs &drawObjs, Elements &elements);

    /** Makes an element of the record's name, or of a unique one when any element on the floor has that name, with material,
     *  bars and thickness. An empty text and a thickness of -1 are not written.
     *  @return null when the record's type is another one than 1003 (of force walls, 0), region or floor is unknown, or the
     *          host makes no element or refuses the name. An element whose name is refused stays in the host. */
    IHBXElement *createBrickElement(const ORVCADCloudEntBrickWallStruct &record, Elements &elements);
    /** The same for force walls, whose bars are three. */
    IHBXElement *createForceElement(const ORVCADCloudEntForceWallStruct &record, Elements &elements);
    /** Places the pieces in list order: axis and the four elevations, of which an empty one is not written. */
    void createDrawObjs(IHBXElement &element, const std::list<IdentifyResultData> &pieces, DrawObjs &drawObjs);

    /** Puts the placed brick walls of a floor aside which overlap a piece, by more than 1 mm, and are parallel to it.
     *  @return whether any is put aside */
    bool collectOverlaps(IHBXFloor &floor, const ORVCADWallBrickDataOutputModel &output);
    /** Removes what was put aside from the host. */
    void removeOverlaps();

private:
    IHBXModel *m_model;
    QList<IHBXElementDrawObj *> m_overlaps;
};

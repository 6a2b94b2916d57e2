#pragma once

#include "ORVCADModelDataExport.h"

#include <QJsonObject>
#include <QString>

class ORVCADClassifiedLayersData;
class ORVCADDrawingElementMappings;
class ORVCADDrawingFloorMappings;
class ORVCADDrawingLocationData;
class ORVCADDrawingParseData;
class ORVCADFloors;
class ORVCADScaleReviseData;
class ORVCADSubDrawingDataSet;

/** The state of a drawing set on its way to recognition: one object per stage, and the file that they are written to.
 *  There is one in a process, which belongs to one thread at a time. Format: docs/formats/drawing-set.md.
 *
 *  The stages set the members themselves; nothing in the library does. A member is read by toJson, saveToJson and
 *  ORVCADAIIdentifyDTO, and deleted, where the list below says owned, when the object ends. So whoever deletes such an
 *  object himself sets the member to null or to another object first; a member is never looked at between these calls,
 *  nor when the process ends. */
class ORVCADMODELDATA_EXPORT ORVCADDisposeInfoData
{
public:
    /** The one object, made with all members null where there is none. */
    static ORVCADDisposeInfoData *getData();
    /** Ends the one object and what it owns; pointers to them are dead then. The next getData() makes a fresh one.
     *  Nothing where there is none. */
    static void freeData();

    // "Owned" is deleted with this object. "Borrowed" stays with whoever made it, and must live until the member is null
    // or this object has ended.
    ORVCADFloors *floors = nullptr;                          ///< owned
    ORVCADSubDrawingDataSet *subDrawings = nullptr;          ///< borrowed
    ORVCADDrawingParseData *parseData = nullptr;             ///< borrowed
    ORVCADDrawingElementMappings *elementMappings = nullptr; ///< owned
    ORVCADDrawingFloorMappings *floorMappings = nullptr;     ///< owned
    ORVCADClassifiedLayersData *classifiedLayers = nullptr;  ///< owned
    ORVCADScaleReviseData *scaleRevision = nullptr;          ///< owned
    ORVCADDrawingLocationData *location = nullptr;           ///< owned

    /** Always all eight keys. A stage without an object, a floor set without floors and a sub-drawing set without
     *  sub-drawings give an empty object ("splitDrawing", "parseDrawing", "floorInfos") or null (the others). */
    QJsonObject toJson() const;
    /** Writes the same to a file. When it cannot be opened, the log gets the warning "Couldn't open save file.". There is
     *  no reader for the file. */
    void saveToJson(const QString &path) const;

private:
    ORVCADDisposeInfoData() = default;
    ~ORVCADDisposeInfoData();
    Q_DISABLE_COPY(ORVCADDisposeInfoData)
};

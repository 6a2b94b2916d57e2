#pragma once

#include "IdentifyInputModel/Wall/EORVCADIdentifyType.h"
#include "IdentifyInputModel/Wall/ORVCADCloudEntBrickWallStruct.h"
#include "IdentifyInputModel/Wall/ORVCADCloudEntForceWallStruct.h"
#include "IdentifyInputModel/Wall/ORVCADCloudHBXModelLineEdoStruct.h"
#include "IdentifyInputModel/Wall/ORVCADCloudHBXModelPointEdoStruct.h"
#include "IdentifyInputModel/Wall/ORVCADCloudLineEdoInfo.h"
#include "IdentifyInputModel/Wall/ORVCADCloudTextEdoInfo.h"
#include "IdentifyInputModel/Wall/ORVCADCloudWalloptionDataStruct.h"
#include "ORVCADModelDataExport.h"

#include <list>
#include <map>
#include <string>

class ORVCADFileSerialization;

/** Translates what a wall input model holds into the records of an archive, and back: one save and one load for each
 *  key of the document. docs/formats/wall-documents.md lists the keys and their items.
 *
 *  The archive is not owned and lives longer. Texts with "/" or ":" in them come back cut. Nothing is reported: a key
 *  that the document lacks leaves the argument as it is, a bad number reads as 0, bad geometry as null. Lists are
 *  appended to; entries of maps are inserted or replaced. */
class ORVCADMODELDATA_EXPORT ORVCADInputModelSerialization
{
public:
    /** Placed walls or axis lines, in the order of the document. */
    using ModelLines = std::list<ORVCADCloudHBXModelLineEdoStruct>;
    /** By layer. On loading the layer is the first key in the map key's record: a name with "/" or ":" is cut. */
    using LayerLines = std::map<std::wstring, std::list<ORVCADCloudLineEdoInfo>>;
    /** The same for texts. */
    using LayerTexts = std::map<std::wstring, std::list<ORVCADCloudTextEdoInfo>>;

    /** The archive must not be null. */
    explicit ORVCADInputModelSerialization(ORVCADFileSerialization *archive);
    virtual ~ORVCADInputModelSerialization();
    ORVCADInputModelSerialization(const ORVCADInputModelSerialization &) = default;
    ORVCADInputModelSerialization &operator=(const ORVCADInputModelSerialization &) = default;

    /** "CadEntBrickWallDataInfo", a list: brick wall elements. */
    void saveCadEntBrickWallDataInfo(const std::list<ORVCADCloudEntBrickWallStruct> &walls);
    /** Appends; lists in XML do not read back. */
    void loadCadEntBrickWallDataInfo(std::list<ORVCADCloudEntBrickWallStruct> &walls);
    /** "CadEntForceWallDataInfo", a list: elements of load-bearing walls. */
    void saveCadEntForceWallDataInfo(const std::list<ORVCADCloudEntForceWallStruct> &walls);
    /** Appends; lists in XML do not read back. */
    void loadCadEntForceWallDataInfo(std::list<ORVCADCloudEntForceWallStruct> &walls);

    /** "CadFilterTextEdoDataInfo", the only list that holds what texts a text stands for. An empty set of them reads
     *  back as one 0. */
    void saveCadFilterTextEdoDataInfo(const std::list<ORVCADCloudTextEdoInfo> &texts);
    /** Appends; lists in XML do not read back. */
    void loadCadFilterTextEdoDataInfo(std::list<ORVCADCloudTextEdoInfo> &texts);

    /** "CadLayerInfo", a record: names by layer kind. A document without layers reads back as the kind 0 with an empty
     *  name. */
    void saveCadLayerInfo(const std::map<int, std::wstring> &layers);
    /** Sets the kinds that the document has. */
    void loadCadLayerInfo(std::map<int, std::wstring> &layers);
    /** "CadLineEdoDataInfo", a map: lines of the drawing by layer. */
    void saveCadLineEdoDataInfo(const LayerLines &lines);
    /** A layer that the map has already gets the lines of the document in place of its own. */
    void loadCadLineEdoDataInfo(LayerLines &lines);
    /** "CadTextEdoDataInfo", a map: texts of the drawing by layer, without what they stand for. */
    void saveCadTextEdoDataInfo(const LayerTexts &texts);
    /** A layer that the map has already gets the texts of the document in place of its own. */
    void loadCadTextEdoDataInfo(LayerTexts &texts);

    /** "CurFloorModelAxisLineEntDataInfo", a list: axis lines of the floor. */
    void saveCurFloorModelAxisLineEntDataInfo(const ModelLines &lines);
    /** Appends; lists in XML do not read back. */
    void loadCurFloorModelAxisLineEntDataInfo(ModelLines &lines);
    /** "CurFloorModelBrickLineEntDataInfo", a list: placed brick walls. */
    void saveCurFloorModelBrickLineEntDataInfo(const ModelLines &lines);
    /** Appends; lists in XML do not read back. */
    void loadCurFloorModelBrickLineEntDataInfo(ModelLines &lines);
    /** "CurFloorModelForceLineEntDataInfo", a list: placed load-bearing walls. */
    void saveCurFloorModelForceLineEntDataInfo(const ModelLines &lines);
    /** Appends; lists in XML do not read back. */
    void loadCurFloorModelForceLineEntDataInfo(ModelLines &lines);
    /** "CurFloorModelPointEntDataInfo", a list: placed columns. */
    void saveCurFloorModelPointEntDataInfo(const std::list<ORVCADCloudHBXModelPointEdoStruct> &points);
    /** Appends; lists in XML do not read back. */
    void loadCurFloorModelPointEntDataInfo(std::list<ORVCADCloudHBXModelPointEdoStruct> &points);

    /** "DWGXBaseOptions", a record of six numbers. */
    void saveDWGXBaseOptions(const ORVCADCloudWalloptionDataStruct &options);
    /** Sets all six: one that the record lacks becomes 0. */
    void loadDWGXBaseOptions(ORVCADCloudWalloptionDataStruct &options);

    // Records of one item. Loading takes the value whatever the item's key says.
    void saveIdentifyType(EORVCADIdentifyType type);  ///< "IdentifyType"
    void loadIdentifyType(EORVCADIdentifyType &type); ///< any number is a type
    void saveProjectName(const std::wstring &name);   ///< "ProjectName"
    void loadProjectName(std::wstring &name);         ///< left alone where there is no such key, as all below
    void saveFloorCode(const std::wstring &code);     ///< "floorCode", in the cloud form alone
    void loadFloorCode(std::wstring &code);           ///< from any document
    void saveFloorName(const std::wstring &name);     ///< "floorName", in the cloud form alone
    void loadFloorName(std::wstring &name);           ///< from any document
    void saveDrawingName(const std::wstring &name);   ///< "drawingName", in the cloud form alone
    void loadDrawingName(std::wstring &name);         ///< from any document

private:
    ORVCADFileSerialization *m_archive;
};

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
    using ModelLines = std::list<ORVCADCloudHBXModelLineEdoStruct>;
    /** By layer. On loading the layer is the first key in the map key's record: a name with "/" or ":" is cut. */
    using LayerLines = std::map<std::wstring, std::list<ORVCADCloudLineEdoInfo>>;
    using LayerTexts = std::map<std::wstring, std::list<ORVCADCloudTextEdoInfo>>;

    /** The archive must not be null. */
    explicit ORVCADInputModelSerialization(ORVCADFileSerialization *archive);
    virtual ~ORVCADInputModelSerialization();
    ORVCADInputModelSerialization(const ORVCADInputModelSerialization &) = default;
    ORVCADInputModelSerialization &operator=(const ORVCADInputModelSerialization &) = default;

    void saveCadEntBrickWallDataInfo(const std::list<ORVCADCloudEntBrickWallStruct> &walls);
    void loadCadEntBrickWallDataInfo(std::list<ORVCADCloudEntBrickWallStruct> &walls);
    void saveCadEntForceWallDataInfo(const std::list<ORVCADCloudEntForceWallStruct> &walls);
    void loadCadEntForceWallDataInfo(std::list<ORVCADCloudEntForceWallStruct> &walls);

    /** The only list that holds what texts a text stands for. An empty set of them reads back as one 0. */
    void saveCadFilterTextEdoDataInfo(const std::list<ORVCADCloudTextEdoInfo> &texts);
    void loadCadFilterTextEdoDataInfo(std::list<ORVCADCloudTextEdoInfo> &texts);

    /** Names by layer kind. A document without layers reads back as the kind 0 with an empty name. */
    void saveCadLayerInfo(const std::map<int, std::wstring> &layers);
    void loadCadLayerInfo(std::map<int, std::wstring> &layers);
    void saveCadLineEdoDataInfo(const LayerLines &lines);
    void loadCadLineEdoDataInfo(LayerLines &lines);
    void saveCadTextEdoDataInfo(const LayerTexts &texts);
    void loadCadTextEdoDataInfo(LayerTexts &texts);

    void saveCurFloorModelAxisLineEntDataInfo(const ModelLines &lines);
    void loadCurFloorModelAxisLineEntDataInfo(ModelLines &lines);
    void saveCurFloorModelBrickLineEntDataInfo(const ModelLines &lines);
    void loadCurFloorModelBrickLineEntDataInfo(ModelLines &lines);
    void saveCurFloorModelForceLineEntDataInfo(const ModelLines &lines);
    void loadCurFloorModelForceLineEntDataInfo(ModelLines &lines);
    void saveCurFloorModelPointEntDataInfo(const std::list<ORVCADCloudHBXModelPointEdoStruct> &points);
    void loadCurFloorModelPointEntDataInfo(std::list<ORVCADCloudHBXModelPointEdoStruct> &points);

    void saveDWGXBaseOptions(const ORVCADCloudWalloptionDataStruct &options);
    void loadDWGXBaseOptions(ORVCADCloudWalloptionDataStruct &options);

    // Records of one item. Loading takes the value whatever the item's key says.
    void saveIdentifyType(EORVCADIdentifyType type);
    void loadIdentifyType(EORVCADIdentifyType &type);
    void saveProjectName(const std::wstring &name);
    void loadProjectName(std::wstring &name);
    void saveFloorCode(const std::wstring &code);
    void loadFloorCode(std::wstring &code);
    void saveFloorName(const std::wstring &name);
    void loadFloorName(std::wstring &name);
    void saveDrawingName(const std::wstring &name);
    void loadDrawingName(std::wstring &name);

private:
    ORVCADFileSerialization *m_archive;
};

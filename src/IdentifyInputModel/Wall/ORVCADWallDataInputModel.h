#pragma once

#include "IdentifyInputModel/Wall/ORVCADInputModelSerialization.h"

#include <list>
#include <map>
#include <string>
#include <utility>

/** Everything that one run of the wall identification is given: what stands on the floor in the host, the drawing's
 *  lines and texts by layer, the options, and the names of project, floor and drawing. The brick and the force model
 *  add the wall elements of their kind and make whole documents.
 *
 *  Getters give copies, which share curves and polygons. */
class ORVCADMODELDATA_EXPORT ORVCADWallDataInputModel
{
public:
    using ModelLines = std::list<ORVCADCloudHBXModelLineEdoStruct>;   ///< placed walls or axis lines
    using ModelPoints = std::list<ORVCADCloudHBXModelPointEdoStruct>; ///< placed columns
    using DrawingLines = std::list<ORVCADCloudLineEdoInfo>;           ///< of one layer
    using DrawingTexts = std::list<ORVCADCloudTextEdoInfo>;           ///< of one layer, or filter texts

    /** Empty but for the type. */
    explicit ORVCADWallDataInputModel(EORVCADIdentifyType type);
    virtual ~ORVCADWallDataInputModel();
    ORVCADWallDataInputModel(const ORVCADWallDataInputModel &) = default;
    ORVCADWallDataInputModel &operator=(const ORVCADWallDataInputModel &) = default;

    /** As constructed: loading does not change it. */
    EORVCADIdentifyType identifyType() const { return m_identifyType; }

    /** All 0 until they are set or loaded. */
    ORVCADCloudWalloptionDataStruct getDWGXBaseOptions() const { return m_options; }
    /** Nothing checks the numbers. */
    void setDWGXBaseOptions(ORVCADCloudWalloptionDataStruct options) { m_options = options; }

    /** Brick walls that stand on the floor. */
    ModelLines getCurFloorModelBrickLineEntDataInfo() const { return m_brickLines; }
    /** In place of all that were there. */
    void setCurFloorModelBrickLineEntDataInfo(ModelLines lines) { m_brickLines = std::move(lines); }
    /** Load-bearing walls that stand on the floor. */
    ModelLines getCurFloorModelForceLineEntDataInfo() const { return m_forceLines; }
    /** In place of all that were there. */
    void setCurFloorModelForceLineEntDataInfo(ModelLines lines) { m_forceLines = std::move(lines); }
    /** Axis lines of the floor: width 1, id -1. */
    ModelLines getCurFloorModelAxisLineEntDataInfo() const { return m_axisLines; }
    /** In place of all that were there. */
    void setCurFloorModelAxisLineEntDataInfo(ModelLines lines) { m_axisLines = std::move(lines); }
    /** Columns that stand on the floor. */
    ModelPoints getCurFloorModelPointEntDataInfo() const { return m_points; }
    /** In place of all that were there. */
    void setCurFloorModelPointEntDataInfo(ModelPoints points) { m_points = std::move(points); }
    /** Texts of the drawing that stand for others. */
    DrawingTexts getCadFilterTextEdoDataInfo() const { return m_filterTexts; }
    /** In place of all that were there. */
    void setCadFilterTextEdoDataInfo(DrawingTexts texts) { m_filterTexts = std::move(texts); }

    /** Layer names by layer kind. */
    std::map<int, std::wstring> getCadLayerInfo() const { return m_layers; }
    /** Sets the kinds that the argument has; the others keep their names. */
    void setCadLayerInfo(const std::map<int, std::wstring> &layers);

    /** Appends the lines of a layer; an unknown layer appends nothing. */
    void getCadLineEdoDataInfo(const std::wstring &layer, DrawingLines &lines) const;
    /** Replaces the lines of a layer. */
    void setCadLineEdoDataInfo(const std::wstring &layer, DrawingLines lines);
    /** The same for texts. */
    void getCadTextEdoDataInfo(const std::wstring &layer, DrawingTexts &texts) const;
    /** Replaces the texts of a layer. */
    void setCadTextEdoDataInfo(const std::wstring &layer, DrawingTexts texts);

    /** Empty until it is set or loaded; so are those below. */
    std::wstring getProjectName() const { return m_projectName; }
    /** A name with "/" or ":" in it comes back cut from a document; so do those below. */
    void setProjectName(std::wstring name) { m_projectName = std::move(name); }
    /** As shown to the user. */
    std::wstring getFloorName() const { return m_floorName; }
    /** Goes into the cloud form alone. */
    void setFloorName(std::wstring name) { m_floorName = std::move(name); }
    /** Short text of the floor in its region. */
    std::wstring getFloorCode() const { return m_floorCode; }
    /** Goes into the cloud form alone. */
    void setFloorCode(std::wstring code) { m_floorCode = std::move(code); }
    /** Of the drawing that the lines and texts are from. */
    std::wstring getDrawingName() const { return m_drawingName; }
    /** Goes into the cloud form alone. */
    void setDrawingName(std::wstring name) { m_drawingName = std::move(name); }

    /** Eleven keys, in one order for both forms; floor and drawing are not among them. */
    void saveToJson(ORVCADInputModelSerialization &archive) const;
    /** The same. */
    void saveToXml(ORVCADInputModelSerialization &archive) const;

    /** Lists are appended to, entries of maps inserted or replaced, the rest overwritten where the document has it. The
     *  identify type is not read. */
    void loadFromJson(ORVCADInputModelSerialization &archive);
    /** The same without floor name, floor code and drawing name. */
    void loadFromXml(ORVCADInputModelSerialization &archive);

private:
    EORVCADIdentifyType m_identifyType;
    ORVCADCloudWalloptionDataStruct m_options;
    ModelLines m_brickLines;
    ModelLines m_forceLines;
    ModelLines m_axisLines;
    ModelPoints m_points;
    std::map<int, std::wstring> m_layers;
    std::map<std::wstring, DrawingLines> m_lines; // by layer
    std::map<std::wstring, DrawingTexts> m_texts; // by layer
    DrawingTexts m_filterTexts;
    std::wstring m_projectName;
    std::wstring m_floorName;
    std::wstring m_floorCode;
    std::wstring m_drawingName;
};

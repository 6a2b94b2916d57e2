#pragma once

#include "platform/dwgx/DWGXEntity.h"
#include "platform/dwgx/DWGXObject.h"
#include "platform/dwgx/DWGXViewerInfoData.h"

#include <unordered_set>
#include <vector>

/** The drawing model: what stands on a drawing, layer by layer. */
namespace dwgx {

/** A layer of a drawing with all that stands on it, in the order in which it was added. */
struct DWGXLayer
{
    QString name;                ///< unique in the drawing, not empty
    int color = kColorInk;       ///< 1 to 255
    std::vector<DWGXLine> lines; ///< in the order in which they were added
    std::vector<DWGXText> texts; ///< likewise
};

/** A CAD drawing in the plan: layers with lines and texts, lengths in millimetres.
 *
 *  Drawing files are read and written by the operator that HBXCADFileHelper creates. */
class ORVCADPLATFORM_EXPORT DWGXModel : public DWGXObject
{
public:
    /** A new, empty drawing without extension data, which the caller deletes. */
    static DWGXModel *createObject();

    /** File that the drawing was read from; empty for one that was made in memory. Writing does not change it. */
    QString getFilePath() const { return m_filePath; }
    /** Any text is taken; no file is looked at. */
    void setFilePath(const QString &path) { m_filePath = path; }
    /** The two texts in the head of a drawing file. */
    QString getTitle() const { return m_title; }
    /** Any text is taken. */
    void setTitle(const QString &title) { m_title = title; }
    /** The second of the two texts. */
    QString getRemark() const { return m_remark; }
    /** Any text is taken. */
    void setRemark(const QString &remark) { m_remark = remark; }
    /** How a viewer last showed the drawing. */
    DWGXViewerInfoData getViewerInfoData() const { return m_viewer; }
    /** Kept as given. */
    void setViewerInfoData(const DWGXViewerInfoData &viewer) { m_viewer = viewer; }

    /** In the order in which they were added; valid until one is added. */
    const std::vector<DWGXLayer> &layers() const { return m_layers; }
    /** The layer of that exact name, null when there is none; valid until a layer is added. */
    const DWGXLayer *layer(const QString &name) const;
    /** Lines of all layers. */
    int lineCount() const;
    /** Texts of all layers. */
    int textCount() const;
    /** Box of all lines and of the estimated boxes of all texts; empty for an empty drawing. */
    vks::CBox2<double> box() const;

    /** False, and nothing changed, for an empty name, a name that is there already, or a colour that is not 1 to 255. */
    bool addLayer(const QString &name, int color);
    /** Adds a line or a text to a layer; with id 0 it gets the next free id. False, and nothing changed, when the layer
     *  is unknown, the id taken, or the entity not sound (see isSound). */
    bool addLine(const QString &layerName, DWGXLine line);
    /** The same for a text. */
    bool addText(const QString &layerName, DWGXText text);

    /** Changes places with another drawing's content: layers, head texts and viewer data. File paths and extension data
     *  stay. */
    void swapContent(DWGXModel &other);

protected:
    DWGXModel() = default;

private:
    DWGXLayer *findLayer(const QString &name);
    /** @param entities  where a layer keeps entities of the kind */
    template <typename Entity>
    bool add(const QString &layerName, Entity entity, std::vector<Entity> DWGXLayer::*entities);
    bool takeId(DWGXEntity &entity);

    QString m_filePath;
    QString m_title;
    QString m_remark;
    DWGXViewerInfoData m_viewer;
    std::vector<DWGXLayer> m_layers;
    std::unordered_set<int> m_ids;
    int m_lastId = 0; // highest id that was ever taken
};

} // namespace dwgx

#pragma once

#include "ORVCADModelDataExport.h"
#include "drawing/NamedRecords.h"
#include "drawing/ORVCADClassifiedLayer.h"

#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

/** The layers of one drawing that carry one element type.
 *
 *  The group owns its layers and deletes them. A copy holds the very same layers, so only one of the two may be
 *  destroyed while its list still has them. Format: docs/formats/drawing-set.md. */
class ORVCADMODELDATA_EXPORT ORVCADClassifiedLayers
{
public:
    /** @param elementType  number of the host's element type */
    ORVCADClassifiedLayers(const QString &drawingName, int elementType);
    ~ORVCADClassifiedLayers();
    ORVCADClassifiedLayers(const ORVCADClassifiedLayers &) = default;
    /** As with a copy; what was held before is not deleted. */
    ORVCADClassifiedLayers &operator=(const ORVCADClassifiedLayers &) = default;

    /** Of the drawing that the layers are in. */
    const QString &getDrawingName() const { return m_drawingName; }
    /** Nothing looks whether there is such a drawing. */
    void setDrawingName(const QString &name) { m_drawingName = name; }
    /** Number of the host's element type. */
    int getElementType() const { return m_elementType; }
    /** Any number; one without a name is written as the empty text. */
    void setElementType(int type) { m_elementType = type; }

    /** Appends a layer and takes it over. */
    void add(ORVCADClassifiedLayer *layer);
    /** The list itself. */
    QList<ORVCADClassifiedLayer *> &getClassifiedLayers() { return m_layers.list(); }
    /** First layer of exactly that name, else null. */
    ORVCADClassifiedLayer *getClassifiedLayer(const QString &name) const;
    /** The names of all layers, in order. */
    QStringList getLayersName() const;

    /** Drawing name, name of the element type, layers. A null layer is left out. */
    QJsonObject toJson() const;
    /** A new group, which belongs to the caller; null when "DrawingName", "ElementType" or "ClassifiedLayers" is
     *  missing. The last is never written, so what toJson writes is refused unless someone adds that key, with any
     *  value; the layers themselves come from "Layers", and one that is refused is left out. "ElementType" is read as the
     *  code of a character, and the type is that of the one-character name. */
    static ORVCADClassifiedLayers *fromJson(const QJsonObject &json);
    /** A new group from what drawing analysis says of a drawing, which belongs to the caller; null when the element
     *  type's key is missing and when no layer is left. Layers that are refused are left out; of element type 74, layers
     *  of one name become one with the ids of all, of any other they stand side by side.
     *  @param drawingName  taken unless the object has a "FileName" */
    static ORVCADClassifiedLayers *fromHBXJson(const QString &drawingName, int elementType, const QJsonObject &json);

private:
    struct Fields; // the one list, in the source

    void takeFromAnalysis(ORVCADClassifiedLayer *layer);

    QString m_drawingName;
    int m_elementType;
    QString m_reserved; ///< always empty, neither read nor written
    drawing::NamedRecords<ORVCADClassifiedLayer, &ORVCADClassifiedLayer::getLayerName> m_layers;
};

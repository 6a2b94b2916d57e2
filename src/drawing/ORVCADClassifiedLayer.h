#pragma once

#include "ORVCADModelDataExport.h"

#include <QJsonObject>
#include <QList>
#include <QString>

/** A layer of a CAD drawing with the drawing objects on it, after the layers were sorted by element type. A layer keeps
 *  its name for life. */
class ORVCADMODELDATA_EXPORT ORVCADClassifiedLayer
{
public:
    /** A layer without ids; the name may be empty, though no reader takes such a one. */
    explicit ORVCADClassifiedLayer(const QString &layerName) : m_layerName(layerName) {}
    ORVCADClassifiedLayer(const ORVCADClassifiedLayer &) = default;
    ORVCADClassifiedLayer &operator=(const ORVCADClassifiedLayer &) = delete;
    ~ORVCADClassifiedLayer() = default;

    /** As it stands in the drawing. */
    const QString &getLayerName() const { return m_layerName; }
    /** 0xRRGGBB; 0 until set. Not persisted. */
    int getColor() const { return m_color; }
    /** 0xRRGGBB; nothing checks it. */
    void setColor(int color) { m_color = color; }
    /** The list itself, in the order in which the ids were added. */
    QList<qint64> &getCADEdoIds() { return m_edoIds; }
    /** The same, to be read. */
    const QList<qint64> &getCADEdoIds() const { return m_edoIds; }
    /** Appends an id; the same one may stand twice. */
    void addEdoId(qint64 id) { m_edoIds.append(id); }

    /** Name and ids. */
    QJsonObject toJson() const;
    /** A new layer, which belongs to the caller; null when "LayerName" or "CADEdoIds" is missing, or the name is empty.
     *  Ids are read as 32-bit numbers: what does not fit there, or is no whole number, reads as 0. */
    static ORVCADClassifiedLayer *fromJson(const QJsonObject &json);
    /** A new layer from what drawing analysis says of one, which belongs to the caller. Null when "LayerName" or
     *  "EdoIDList" is missing, when the layer is not of the element type (getCADLayerInfo, which gives name and colour)
     *  and when it has no ids. An "EdoID" that is missing or no 32-bit number reads as -1. */
    static ORVCADClassifiedLayer *fromHBXJson(int elementType, const QJsonObject &json);

private:
    struct Fields; // the one list, in the source

    QString m_layerName;
    int m_color = 0;
    QList<qint64> m_edoIds;
};

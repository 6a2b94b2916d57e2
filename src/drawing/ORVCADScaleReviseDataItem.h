#pragma once

#include "ORVCADModelDataExport.h"

#include <QJsonObject>
#include <QString>

/** The scale of one drawing. An item keeps its drawing name for life. */
class ORVCADMODELDATA_EXPORT ORVCADScaleReviseDataItem
{
public:
    /** A drawing of the scale 0, until one is set. */
    explicit ORVCADScaleReviseDataItem(const QString &drawingName) : m_drawingName(drawingName) {}
    ORVCADScaleReviseDataItem(const ORVCADScaleReviseDataItem &) = default;
    ORVCADScaleReviseDataItem &operator=(const ORVCADScaleReviseDataItem &) = delete;
    ~ORVCADScaleReviseDataItem() = default;

    /** By which the item is found. */
    const QString &getDrawingName() const { return m_drawingName; }
    /** The scale that the drawing came with. */
    double getOriginScale() const { return m_originScale; }
    /** Any number; nothing checks it. */
    void setOriginScale(double scale) { m_originScale = scale; }

    /** Drawing name, origin scale, new scale. */
    QJsonObject toJson() const;
    /** Always null: scales are written and not read. */
    static ORVCADScaleReviseDataItem *fromJson(const QJsonObject &json);

private:
    QString m_drawingName;
    double m_originScale = 0.0;
    double m_newScale = 1.0; ///< meant: written, and nothing sets it
};

#pragma once

#include "ORVCADModelDataExport.h"

#include <QJsonObject>
#include <QList>
#include <QString>

/** Where two axes of a drawing cross. */
struct AxisInfo
{
    QString bayNum;   ///< label of the axis across the bays
    QString depthNum; ///< label of the axis across the depth
    double x = 0.0;   ///< mm, in the drawing
    double y = 0.0;   ///< mm, in the drawing
};

/** Where one drawing lies against the axes of the building. */
class ORVCADMODELDATA_EXPORT ORVCADDrawingLocationDataItem
{
public:
    /** A drawing without crossings. */
    explicit ORVCADDrawingLocationDataItem(const QString &drawingName) : m_drawingName(drawingName) {}

    /** Appends a crossing; the same one may stand twice. */
    void addAxisInfo(const AxisInfo &axis) { m_axes.append(axis); }

    /** Drawing name and the crossings in the order in which they were added. */
    QJsonObject toJson() const;
    /** Always null: locations are written and not read. */
    static ORVCADDrawingLocationDataItem *fromJson(const QJsonObject &json);

private:
    QString m_drawingName;
    QList<AxisInfo> m_axes;
};

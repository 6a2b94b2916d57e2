#pragma once

#include "drawing/ORVCADDrawingFloorMapping.h"

#include <QHash>
#include <QMap>
#include <QPair>
#include <QString>
#include <QVector>

#include <memory>

namespace drawing {

/** Records of a floor mapping set in list order, by a number that grows from record to record: so a record keeps its
 *  number when another one goes. */
using FloorMappingList = QMap<qint64, std::shared_ptr<ORVCADDrawingFloorMapping>>;

/** The records of a floor mapping set by place, region and drawing, each as the numbers of its records in list order. */
class FloorMappingIndex
{
public:
    using Numbers = QVector<qint64>;

    Numbers ofFloor(qint64 region, const QString &floor) const { return m_byFloor.value({region, floor}); }
    Numbers ofRegion(qint64 region) const { return m_byRegion.value(region); }
    Numbers ofDrawing(const QString &drawing) const { return m_byDrawing.value(drawing); }
    /** Whether the record of that number holds the drawing. */
    bool holds(qint64 number, const QString &drawing) const;

    void build(const FloorMappingList &list);
    void add(qint64 number, const ORVCADDrawingFloorMapping &mapping);
    void remove(qint64 number, const ORVCADDrawingFloorMapping &mapping);
    void addDrawing(qint64 number, const QString &drawing);
    void removeDrawing(qint64 number, const QString &drawing);

private:
    QHash<QPair<qint64, QString>, Numbers> m_byFloor;
    QHash<qint64, Numbers> m_byRegion;
    QHash<QString, Numbers> m_byDrawing;
};

} // namespace drawing

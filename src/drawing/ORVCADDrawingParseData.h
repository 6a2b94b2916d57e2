#pragma once

#include "ORVCADModelDataExport.h"
#include "drawing/ORVCADTableData.h"

#include <QJsonObject>
#include <QList>

/** The tables found on the drawings of a set. Copying copies. Format: docs/formats/drawing-set.md. */
class ORVCADMODELDATA_EXPORT ORVCADDrawingParseData
{
public:
    ORVCADDrawingParseData() = default;
    /** Copies the tables. */
    explicit ORVCADDrawingParseData(const QList<ORVCADTableData> &tables) : m_tables(tables) {}

    /** The list itself. */
    QList<ORVCADTableData> &getTables() { return m_tables; }
    /** The same, to be read. */
    const QList<ORVCADTableData> &getTables() const { return m_tables; }

    /** One member per table, "table0" and so on. Of two rows with the same number the later is written. */
    QJsonObject toJson() const;
    /** The tables of all members that are objects, whatever their names, in the order of the keys; empty where there are
     *  none. A table whose "data" is no object is left out. Rows are read from 0 on, as many as "data" has members: where
     *  numbers are missing, rows are lost. Cells that are no texts are left out. "range" is never read. A table that has
     *  "concrete" takes the grades from the root's member of that name, not from its own. */
    static QList<ORVCADTableData> fromJson(const QJsonObject &root);

private:
    QList<ORVCADTableData> m_tables;
};

#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

#include <array>

// Types of tables found on drawings.
constexpr int kFloorTable = 0;       ///< "楼层表"
constexpr int kColumnTable = 1;      ///< "柱表"
constexpr int kUnknownTable = 10000; ///< any other text

/** One row of a table. */
struct ORVCADTableRowData
{
    int row = 0;       ///< number in the table
    QStringList cells; ///< texts, from left to right
};

/** The concrete grades that a table states for one row. */
struct ORVCADConcreteLevel
{
    int row = 0;                           ///< number in the table
    QList<QPair<QString, QString>> values; ///< what the grade is for, and the grade
};

/** A table found on a drawing: a grid of texts. Copying copies. */
struct ORVCADTableData
{
    QString drawingName;                 ///< of the drawing on which it was found
    int type = kFloorTable;              ///< one of the numbers above
    std::array<int, 4> range = {};       ///< where the table lies
    QList<ORVCADTableRowData> rows;      ///< in the order in which they were read
    QList<ORVCADConcreteLevel> concrete; ///< grades, row by row
};

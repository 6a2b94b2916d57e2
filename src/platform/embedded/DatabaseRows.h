#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/embedded/SqliteStatement.h"

#include <limits>

namespace hbx::embedded {

/** Rows of one table of a project file in the order of its key. Columns count from 0, those of the key first. What is
 *  not as a project writes it is refused by throwing DatabaseRefusal with the place of the row. */
class ORVCADPLATFORM_EXPORT DatabaseRows
{
public:
    /** @param table    name; like the other two a text that lasts as long as the rows
     *  @param key      columns of the key, all of them integers, separated by ", "; the first is an id
     *  @param columns  the other ones that are wanted, likewise */
    DatabaseRows(SqliteConnection &connection, const char *table, const char *key, const char *columns);

    bool next() { return m_rows.next(); }
    qint64 id() const { return m_rows.integer(0); }
    const SqliteStatement &row() const { return m_rows; }

    /** An integer of 32 bits. */
    int integer32(int column) const;
    /** A number that is finite. */
    double number(int column) const;
    /** 0 for none. */
    qint64 link(int column) const { return m_rows.integer(column); }

    /** Refuses a column of the row. */
    [[noreturn]] void refuse(int column, const QString &reason) const;
    [[noreturn]] void refuseRow(const QString &reason) const;

private:
    /** Such as shape_axis[draw_object_id=17, axis_group=0]. */
    QString place() const;

    SqliteStatement m_rows;
    const char *m_table;
    const char *m_key;
    const char *m_columns;
};

/** Rows that belong to the objects of another table, several or none to each. Both stand in id order. */
class ORVCADPLATFORM_EXPORT OwnedRows
{
public:
    OwnedRows(SqliteConnection &connection, const char *table, const char *key, const char *columns)
        : m_rows(connection, table, key, columns), m_hasRow(m_rows.next())
    {}

    /** Calls visit(rows) for each row of an owner; owners must come in id order. Rows whose owner did not come are
     *  refused. */
    template <typename Visit> void forOwner(qint64 id, Visit visit)
    {
        for (; m_hasRow && m_rows.id() == id; m_hasRow = m_rows.next())
            visit(m_rows);
        if (m_hasRow && m_rows.id() < id)
            refuseOrphan();
    }
    /** To be called when all owners have had their rows; refuses what is left. */
    void finish()
    {
        if (m_hasRow)
            refuseOrphan();
    }

private:
    [[noreturn]] void refuseOrphan() const;

    DatabaseRows m_rows;
    bool m_hasRow;
};

} // namespace hbx::embedded

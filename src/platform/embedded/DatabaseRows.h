#pragma once

#include "platform/embedded/HBXDatabaseSchema.h"
#include "platform/embedded/SqliteStatement.h"

#include <limits>

namespace hbx::embedded {

/** Rows of one table of a project file in the order of its key, whose first column is an id. What is not as a project
 *  writes it is refused by throwing DatabaseRefusal. */
class DatabaseRows
{
public:
    /** @param columns  of the table, comma-separated, the key first */
    DatabaseRows(SqliteConnection &connection, const char *table, const char *key, const char *columns);

    bool next() { return m_rows.next(); }
    qint64 id() const { return m_rows.integer(0); }
    const SqliteStatement &row() const { return m_rows; }

    int integer32(int column, const char *name) const;
    /** A number that is finite. */
    double number(int column, const char *name) const;
    /** 0 for none. */
    qint64 link(int column) const { return m_rows.integer(column); }

    /** Refuses a column of the row. */
    [[noreturn]] void refuse(const char *column, const QString &reason) const;

private:
    SqliteStatement m_rows;
    const char *m_table;
    const char *m_key;
};

/** Rows that belong to the objects of another table, several or none to each. Both stand in id order. */
class OwnedRows
{
public:
    OwnedRows(SqliteConnection &connection, const char *table, const char *key, const char *columns)
        : m_rows(connection, table, key, columns), m_hasRow(m_rows.next())
    {}

    /** Calls visit(rows) for each row of an owner; owners must come in id order. */
    template <typename Visit> void forOwner(qint64 id, Visit visit)
    {
        for (; m_hasRow && m_rows.id() == id; m_hasRow = m_rows.next())
            visit(m_rows);
        if (m_hasRow && m_rows.id() < id)
            refuseOrphan();
    }
    /** To be called when all owners have had their rows. */
    void finish()
    {
        forOwner(std::numeric_limits<qint64>::max(), [this](const DatabaseRows &) { refuseOrphan(); });
    }

private:
    [[noreturn]] void refuseOrphan() const;

    DatabaseRows m_rows;
    bool m_hasRow;
};

} // namespace hbx::embedded

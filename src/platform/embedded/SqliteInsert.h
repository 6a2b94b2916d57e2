#pragma once

#include "platform/embedded/SqliteStatement.h"

#include <array>
#include <cstddef>

namespace hbx::embedded {

/** Puts rows into a table, many by one run of a kept statement: to start a statement costs as much as several rows do.
 *  Everything throws SqliteError. */
class ORVCADPLATFORM_EXPORT SqliteInsert
{
public:
    /** A row to be filled: called with the values of all columns, in their order. Texts are
     *  copied; the bytes of a view must last until run() is done. */
    class Row
    {
    public:
        template <typename... Values> void operator()(const Values &...values) const
        {
            m_statement.bindFrom(m_place, values...);
        }

    private:
        friend class SqliteInsert;
        Row(SqliteStatement &statement, std::size_t place) : m_statement(statement), m_place(static_cast<int>(place)) {}

        SqliteStatement &m_statement;
        int m_place;
    };

    /** @param table  must outlive this, with so many columns */
    SqliteInsert(SqliteConnection &connection, const char *table, std::size_t columns)
        : m_connection(connection), m_table(table), m_columns(columns)
    {}

    /** Inserts count rows: calls fill(Row, index) for each of them, in order, which must give all its values. */
    template <typename Fill> void run(std::size_t count, Fill fill)
    {
        std::size_t next = 0;
        for (std::size_t i = 0; i < kRowsAtOnce.size(); ++i)
            for (; count - next >= kRowsAtOnce[i]; statement(i).run())
                for (std::size_t row = 0; row < kRowsAtOnce[i]; ++row)
                    fill(Row(statement(i), row * m_columns), next++);
    }

private:
    static constexpr std::array<std::size_t, 4> kRowsAtOnce{16, 4, 2, 1};

    /** Prepared when it is first needed. */
    SqliteStatement &statement(std::size_t index);

    SqliteConnection &m_connection;
    const char *m_table;
    std::size_t m_columns;
    std::array<std::optional<SqliteStatement>, kRowsAtOnce.size()> m_statements;
};

} // namespace hbx::embedded

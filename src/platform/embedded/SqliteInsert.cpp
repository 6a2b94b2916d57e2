#include "platform/embedded/SqliteInsert.h"

namespace hbx::embedded {
namespace {

/** "(?,?)", that often, with "," between. */
std::string places(std::size_t rows, std::size_t columns)
{
    std::string row("(?");
    for (std::size_t i = 1; i < columns; ++i)
        row += ",?";
    row += ')';
    std::string all = row;
    for (std::size_t i = 1; i < rows; ++i)
        all += ',' + row;
    return all;
}

} // namespace

SqliteStatement &SqliteInsert::statement(std::size_t index)
{
    std::optional<SqliteStatement> &kept = m_statements[index];
    if (!kept) {
        const std::string sql =
            "INSERT INTO " + std::string(m_table) + " VALUES" + places(kRowsAtOnce[index], m_columns);
        kept.emplace(m_connection, sql.c_str());
    }
    return *kept;
}

} // namespace hbx::embedded

#include "platform/embedded/SqliteStatement.h"

#include <sqlite3.h>

#include <cstddef>

namespace hbx::embedded {
namespace {

constexpr ushort kFirstBeyondAscii = 0x80;

void encode(const QString &text, std::string &utf8)
{
    const QChar *characters = text.constData();
    const auto size = static_cast<std::size_t>(text.size());
    utf8.resize(size);
    ushort seen = 0;
    for (std::size_t i = 0; i < size; ++i) {
        const ushort unit = characters[i].unicode();
        seen |= unit;
        utf8[i] = static_cast<char>(unit);
    }
    if (seen >= kFirstBeyondAscii)
        utf8 = text.toStdString();
}

} // namespace

void SqliteStatement::Finalize::operator()(sqlite3_stmt *handle) const { sqlite3_finalize(handle); }

SqliteStatement::SqliteStatement(SqliteConnection &connection, const char *sql) : m_connection(connection)
{
    sqlite3_stmt *handle = nullptr;
    const int code = sqlite3_prepare_v3(connection.handle(), sql, -1, SQLITE_PREPARE_PERSISTENT, &handle, nullptr);
    m_handle.reset(handle);
    check(code);
    m_texts.resize(static_cast<std::size_t>(sqlite3_bind_parameter_count(handle)) + 1);
}

bool SqliteStatement::next()
{
    const int code = sqlite3_step(m_handle.get());
    if (code == SQLITE_ROW)
        return true;
    check(sqlite3_reset(m_handle.get()));
    return false;
}

void SqliteStatement::finish()
{
    while (next())
        ;
}

int SqliteStatement::type(int column) const { return sqlite3_column_type(m_handle.get(), column); }

bool SqliteStatement::isNull(int column) const { return type(column) == SQLITE_NULL; }

qint64 SqliteStatement::integer(int column) const { return sqlite3_column_int64(m_handle.get(), column); }

double SqliteStatement::number(int column) const { return sqlite3_column_double(m_handle.get(), column); }

std::string_view SqliteStatement::bytes(int column) const
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(m_handle.get(), column));
    return {text ? text : "", static_cast<std::size_t>(sqlite3_column_bytes(m_handle.get(), column))};
}

QString SqliteStatement::text(int column) const
{
    const std::string_view utf8 = bytes(column);
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

void SqliteStatement::bind(int place, std::nullptr_t) { check(sqlite3_bind_null(m_handle.get(), place)); }

void SqliteStatement::bind(int place, qint64 value) { check(sqlite3_bind_int64(m_handle.get(), place, value)); }

void SqliteStatement::bind(int place, double value) { check(sqlite3_bind_double(m_handle.get(), place, value)); }

void SqliteStatement::bind(int place, std::string_view utf8)
{
    check(sqlite3_bind_text64(m_handle.get(), place, utf8.data(), utf8.size(), SQLITE_STATIC, SQLITE_UTF8));
}

void SqliteStatement::bind(int place, const std::string &utf8)
{
    std::string &kept = m_texts[static_cast<std::size_t>(place)];
    kept = utf8;
    bind(place, std::string_view(kept));
}

void SqliteStatement::bind(int place, const QString &text)
{
    std::string &kept = m_texts[static_cast<std::size_t>(place)];
    encode(text, kept);
    bind(place, std::string_view(kept));
}

void SqliteStatement::check(int code) const
{
    if (code != SQLITE_OK)
        m_connection.fail();
}

} // namespace hbx::embedded

#pragma once

#include "platform/embedded/SqliteConnection.h"

#include <QString>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3_stmt;

namespace hbx::embedded {

/** A prepared statement that is kept and run many times. Columns count from 0. Everything throws SqliteError. */
class ORVCADPLATFORM_EXPORT SqliteStatement
{
public:
    SqliteStatement(SqliteConnection &connection, const char *sql);

    /** Binds all values in order, runs the statement to its end and makes it ready for the next run. */
    template <typename... Values> void run(const Values &...values)
    {
        bindFrom(0, values...);
        finish();
    }
    /** Binds values to the places from one on, counted from 0. What is bound when the statement is run counts. */
    template <typename... Values> void bindFrom(int place, const Values &...values) { (bind(++place, values), ...); }
    /** Steps to the next row; false behind the last, after which the statement starts anew. */
    bool next();

    /** SQLITE_INTEGER, SQLITE_FLOAT, SQLITE_TEXT, SQLITE_BLOB or SQLITE_NULL. */
    int type(int column) const;
    bool isNull(int column) const;
    qint64 integer(int column) const;
    double number(int column) const;
    /** UTF-8, good until the next step. */
    std::string_view bytes(int column) const;
    QString text(int column) const;

private:
    struct Finalize
    {
        void operator()(sqlite3_stmt *handle) const;
    };

    void bind(int place, std::nullptr_t);
    void bind(int place, int value) { bind(place, static_cast<qint64>(value)); }
    void bind(int place, bool value) { bind(place, static_cast<qint64>(value)); }
    void bind(int place, qint64 value);
    void bind(int place, double value);
    /** The bytes must last until run() is done. */
    void bind(int place, std::string_view utf8);
    void bind(int place, const std::string &utf8);
    void bind(int place, const QString &text);
    template <typename T> void bind(int place, const std::optional<T> &value)
    {
        value ? bind(place, *value) : bind(place, nullptr);
    }
    void finish();
    void check(int code) const;

    SqliteConnection &m_connection;
    std::unique_ptr<sqlite3_stmt, Finalize> m_handle;
    std::vector<std::string> m_texts; ///< kept by place, so that binding a text allocates once for many runs
};

} // namespace hbx::embedded

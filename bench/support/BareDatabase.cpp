#include "support/BareDatabase.h"

#include "suite/Road.h"

#include <sqlite3.h>

#include <cstdlib>

namespace bench {

namespace {

void must(bool isGood)
{
    if (!isGood)
        std::abort();
}

class Connection
{
public:
    Connection(const QString &path, int flags)
    {
        must(sqlite3_open_v2(path.toUtf8().constData(), &m_handle, flags, nullptr) == SQLITE_OK);
    }
    ~Connection() { sqlite3_close(m_handle); }
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    void run(const char *sql) { must(sqlite3_exec(m_handle, sql, nullptr, nullptr, nullptr) == SQLITE_OK); }
    template <typename Visit> void each(const QByteArray &sql, Visit visit)
    {
        sqlite3_stmt *statement = prepared(sql);
        while (sqlite3_step(statement) == SQLITE_ROW)
            visit(statement);
        must(sqlite3_finalize(statement) == SQLITE_OK);
    }
    sqlite3_stmt *prepared(const QByteArray &sql)
    {
        sqlite3_stmt *statement = nullptr;
        must(sqlite3_prepare_v2(m_handle, sql.constData(), -1, &statement, nullptr) == SQLITE_OK);
        return statement;
    }

private:
    sqlite3 *m_handle = nullptr;
};

BareValue valueAt(sqlite3_stmt *row, int column)
{
    BareValue value;
    value.type = sqlite3_column_type(row, column);
    value.integer = sqlite3_column_int64(row, column);
    value.number = sqlite3_column_double(row, column);
    if (value.type == SQLITE_TEXT)
        value.text = QByteArray(reinterpret_cast<const char *>(sqlite3_column_text(row, column)),
                                sqlite3_column_bytes(row, column));
    return value;
}

void bind(sqlite3_stmt *insert, int place, const BareValue &value)
{
    if (value.type == SQLITE_INTEGER)
        sqlite3_bind_int64(insert, place, value.integer);
    else if (value.type == SQLITE_FLOAT)
        sqlite3_bind_double(insert, place, value.number);
    else if (value.type == SQLITE_TEXT)
        sqlite3_bind_text(insert, place, value.text.constData(), value.text.size(), SQLITE_STATIC);
    else
        sqlite3_bind_null(insert, place);
}

std::vector<BareTable> emptyTablesOf(Connection &file)
{
    std::vector<BareTable> tables;
    file.each("SELECT name, sql FROM sqlite_schema", [&](sqlite3_stmt *row) {
        tables.push_back({valueAt(row, 0).text, valueAt(row, 1).text, 0, {}});
    });
    return tables;
}

void writeRows(Connection &file, const BareTable &table)
{
    if (table.values.empty())
        return;
    QByteArray places("?");
    for (int i = 1; i < table.columns; ++i)
        places += ",?";
    sqlite3_stmt *insert = file.prepared("INSERT INTO " + table.name + " VALUES(" + places + ')');
    const auto columns = static_cast<std::size_t>(table.columns);
    for (std::size_t row = 0; row < table.values.size(); row += columns) {
        for (std::size_t i = 0; i < columns; ++i)
            bind(insert, static_cast<int>(i) + 1, table.values[row + i]);
        must(sqlite3_step(insert) == SQLITE_DONE);
        sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
}

} // namespace

std::vector<BareTable> bareTablesOf(const QString &path)
{
    Connection file(path, SQLITE_OPEN_READONLY);
    std::vector<BareTable> tables = emptyTablesOf(file);
    for (BareTable &table : tables)
        file.each("SELECT * FROM " + table.name, [&](sqlite3_stmt *row) {
            table.columns = sqlite3_column_count(row);
            for (int i = 0; i < table.columns; ++i)
                table.values.push_back(valueAt(row, i));
        });
    return tables;
}

void writeBare(const QString &path, const std::vector<BareTable> &tables)
{
    Connection file(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    file.run("BEGIN");
    for (const BareTable &table : tables)
        file.run(table.definition.constData());
    for (const BareTable &table : tables)
        writeRows(file, table);
    file.run("COMMIT");
}

void readBare(const QString &path)
{
    Connection file(path, SQLITE_OPEN_READONLY);
    for (const BareTable &table : emptyTablesOf(file))
        file.each("SELECT * FROM " + table.name, [](sqlite3_stmt *row) {
            for (int i = 0; i < sqlite3_column_count(row); ++i)
                if (sqlite3_column_type(row, i) == SQLITE_TEXT)
                    keep(QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(row, i)),
                                           sqlite3_column_bytes(row, i)));
                else
                    keep(sqlite3_column_double(row, i));
        });
}

void checkBare(const QString &path)
{
    Connection file(path, SQLITE_OPEN_READONLY);
    file.each("PRAGMA quick_check(1)", [](sqlite3_stmt *row) { keep(sqlite3_column_text(row, 0)); });
}

} // namespace bench

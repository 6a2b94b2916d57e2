#include "platform/embedded/HBXDatabaseFile.h"
#include "platform/embedded/HBXExchangeReader.h"
#include "platform/embedded/HBXProject.h"
#include "support/RatioBench.h"

#include <sqlite3.h>

#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <cstdlib>

// Import, open and save of the largest sample building, each against the floor under it: the JSON parser alone, and the
// same rows through the bare C API of SQLite with kept statements in one transaction.

namespace {

using hbx::embedded::HBXDatabaseFile;
using hbx::embedded::HBXExchangeReader;
using hbx::embedded::ProjectError;

// Ceilings of the ratios.
constexpr double kSave = 1.3;
constexpr double kOpen = 1.3;
constexpr double kCheck = 0.4;

QByteArray buildingJson()
{
    QFile file(QStringLiteral(ORVCAD_TEST_DATA "/buildings/masonry-block.json"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** A value of a row as the C API gives it. */
struct Value
{
    int type = SQLITE_NULL;
    sqlite3_int64 integer = 0;
    double number = 0.0;
    QByteArray text;
};

struct Table
{
    QByteArray name;
    QByteArray definition;
    int columns = 0;
    std::vector<Value> values; ///< row by row
};

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
        sqlite3_finalize(statement);
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

Value valueAt(sqlite3_stmt *row, int column)
{
    Value value;
    value.type = sqlite3_column_type(row, column);
    value.integer = sqlite3_column_int64(row, column);
    value.number = sqlite3_column_double(row, column);
    if (value.type == SQLITE_TEXT)
        value.text = QByteArray(reinterpret_cast<const char *>(sqlite3_column_text(row, column)),
                                sqlite3_column_bytes(row, column));
    return value;
}

/** All rows of a project file. */
std::vector<Table> tablesOf(const QString &path)
{
    Connection file(path, SQLITE_OPEN_READONLY);
    std::vector<Table> tables;
    file.each("SELECT name, sql FROM sqlite_schema", [&](sqlite3_stmt *row) {
        tables.push_back({valueAt(row, 0).text, valueAt(row, 1).text, 0, {}});
    });
    for (Table &table : tables)
        file.each("SELECT * FROM " + table.name, [&](sqlite3_stmt *row) {
            table.columns = sqlite3_column_count(row);
            for (int i = 0; i < table.columns; ++i)
                table.values.push_back(valueAt(row, i));
        });
    return tables;
}

void bind(sqlite3_stmt *insert, int place, const Value &value)
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

void writeRows(Connection &file, const Table &table)
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
        sqlite3_step(insert);
        sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
}

void writeBare(const QString &path, const std::vector<Table> &tables)
{
    Connection file(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    file.run("BEGIN");
    for (const Table &table : tables)
        file.run(table.definition.constData());
    for (const Table &table : tables)
        writeRows(file, table);
    file.run("COMMIT");
}

/** Reads each row and makes a value of each column, which any reader must. */
void readBare(const QString &path, const std::vector<Table> &tables)
{
    Connection file(path, SQLITE_OPEN_READONLY);
    for (const Table &table : tables)
        file.each("SELECT * FROM " + table.name, [](sqlite3_stmt *row) {
            for (int i = 0; i < sqlite3_column_count(row); ++i)
                if (sqlite3_column_type(row, i) == SQLITE_TEXT)
                    bench::keep(QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(row, i)),
                                                  sqlite3_column_bytes(row, i)));
                else
                    bench::keep(sqlite3_column_double(row, i));
        });
}

void checkBare(const QString &path)
{
    Connection file(path, SQLITE_OPEN_READONLY);
    file.each("PRAGMA quick_check(1)", [](sqlite3_stmt *row) { bench::keep(sqlite3_column_text(row, 0)); });
}

/** The check has a ceiling of its own, so it stands on both sides of the ratio of reading. */
void readChecked(const QString &path, const std::vector<Table> &tables)
{
    checkBare(path);
    readBare(path, tables);
}

} // namespace

int main()
{
    const QByteArray json = buildingJson();
    ProjectError error;
    const auto project = HBXExchangeReader::read(json, QStringLiteral("masonry-block.json"), error);
    must(project.has_value());
    const QTemporaryDir folder;
    const QString ours = folder.filePath(QStringLiteral("ours.hbxdb"));
    const QString bare = folder.filePath(QStringLiteral("bare.hbxdb"));
    must(HBXDatabaseFile(ours).create(*project, error));
    const std::vector<Table> tables = tablesOf(ours);
    const std::size_t objects = project->drawObjs.size();

    bench::RatioTable table("Project of the largest sample building, per draw object");
    table.row(
        "import / JSON parser", objects, [&] { bench::keep(HBXExchangeReader::read(json, QString(), error)); },
        [&] { bench::keep(QJsonDocument::fromJson(json)); });
    table.row(
        "save / the same rows by the C API", objects, [&] { HBXDatabaseFile(ours).create(*project, error); },
        bench::Work([&] { QFile::remove(bare); }, [&] { writeBare(bare, tables); }), kSave);
    table.row(
        "open / check and reading of the rows", objects, [&] { bench::keep(HBXDatabaseFile(ours).read(error)); },
        [&] { readChecked(ours, tables); }, kOpen);
    table.row(
        "open to the model / check and reading of the rows", objects,
        [&] { bench::keep(hbx::embedded::HBXProject::open(ours, error)); }, [&] { readChecked(ours, tables); });
    table.row(
        "check of the file / full read", objects, [&] { checkBare(ours); },
        [&] { bench::keep(HBXDatabaseFile(ours).read(error)); }, kCheck);
    return table.print();
}

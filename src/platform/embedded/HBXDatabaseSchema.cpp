#include "platform/embedded/HBXDatabaseSchema.h"

#include "platform/dwgx/Reason.h"
#include "platform/embedded/DatabaseRefusal.h"
#include "platform/embedded/SqliteStatement.h"

#include <QtEndian>

#include <algorithm>
#include <iterator>
#include <string_view>

namespace hbx::embedded::schema {
namespace {

constexpr char kMagic[] = "SQLite format 3"; // with its closing zero
constexpr int kWriteVersionAt = 18;
constexpr int kReadVersionAt = 19;
constexpr int kUserVersionAt = 60;
constexpr int kApplicationIdAt = 68;
constexpr char kRollbackJournal = 1;

struct Table
{
    std::string_view name;
    const char *definition;
};

// Strict tables keep numbers as they are given, and the check of a file tells of a value of another kind.
constexpr Table kTables[] = {
    {"project", "CREATE TABLE project(id INTEGER PRIMARY KEY CHECK(id = 1), name TEXT NOT NULL, source TEXT NOT NULL,"
                " plane_rule TEXT NOT NULL, next_id INTEGER NOT NULL, save_mark INTEGER NOT NULL) STRICT"},
    {"region", "CREATE TABLE region(id INTEGER PRIMARY KEY, name TEXT NOT NULL) STRICT"},
    {"floor", "CREATE TABLE floor(id INTEGER PRIMARY KEY, region_id INTEGER NOT NULL REFERENCES region(id),"
              " name TEXT NOT NULL, code TEXT NOT NULL, bottom_elev REAL NOT NULL, height REAL NOT NULL,"
              " standard_floor_count INTEGER NOT NULL, foundation INTEGER NOT NULL, remark TEXT NOT NULL) STRICT"},
    {"element", "CREATE TABLE element(id INTEGER PRIMARY KEY, floor_id INTEGER NOT NULL REFERENCES floor(id),"
                " parent_id INTEGER REFERENCES element(id), name TEXT NOT NULL, type INTEGER NOT NULL,"
                " sub_type INTEGER NOT NULL, order_number INTEGER NOT NULL) STRICT"},
    {"element_property", "CREATE TABLE element_property(element_id INTEGER NOT NULL REFERENCES element(id),"
                         " position INTEGER NOT NULL, name TEXT NOT NULL, value ANY,"
                         " PRIMARY KEY(element_id, position)) STRICT, WITHOUT ROWID"},
    {"draw_object", "CREATE TABLE draw_object(id INTEGER PRIMARY KEY,"
                    " element_id INTEGER NOT NULL REFERENCES element(id), type INTEGER NOT NULL,"
                    " sub_type INTEGER NOT NULL, next_id INTEGER REFERENCES draw_object(id),"
                    " owner_id INTEGER REFERENCES draw_object(id), attached_to INTEGER REFERENCES draw_object(id),"
                    " section_number INTEGER, section_kind INTEGER, layer INTEGER NOT NULL, state INTEGER NOT NULL,"
                    " exchange_key TEXT) STRICT"},
    {"draw_object_property", "CREATE TABLE draw_object_property("
                             "draw_object_id INTEGER NOT NULL REFERENCES draw_object(id), position INTEGER NOT NULL,"
                             " name TEXT NOT NULL, value ANY, PRIMARY KEY(draw_object_id, position))"
                             " STRICT, WITHOUT ROWID"},
    {"shape", "CREATE TABLE shape(draw_object_id INTEGER PRIMARY KEY REFERENCES draw_object(id), kind INTEGER NOT NULL,"
              " outline TEXT, curve TEXT, width REAL NOT NULL, distance_to_left REAL, height REAL NOT NULL,"
              " insert_x REAL NOT NULL, insert_y REAL NOT NULL, angle REAL NOT NULL, mirror INTEGER NOT NULL,"
              " origin_x REAL, origin_y REAL, origin_z REAL, u_x REAL, u_y REAL, u_z REAL, v_x REAL, v_y REAL, v_z REAL"
              ") STRICT"},
    {"shape_axis", "CREATE TABLE shape_axis(draw_object_id INTEGER NOT NULL REFERENCES shape(draw_object_id),"
                   " axis_group INTEGER NOT NULL, position INTEGER NOT NULL, curve_position INTEGER NOT NULL,"
                   " label TEXT NOT NULL, curve TEXT NOT NULL,"
                   " PRIMARY KEY(draw_object_id, axis_group, position, curve_position)) STRICT, WITHOUT ROWID"},
    {"span", "CREATE TABLE span(draw_object_id INTEGER NOT NULL REFERENCES draw_object(id),"
             " position INTEGER NOT NULL, record TEXT NOT NULL, PRIMARY KEY(draw_object_id, position))"
             " STRICT, WITHOUT ROWID"},
    {"identify_option", "CREATE TABLE identify_option(position INTEGER PRIMARY KEY, group_name TEXT NOT NULL,"
                        " name TEXT NOT NULL, value TEXT NOT NULL) STRICT"},
    {"material", "CREATE TABLE material(number INTEGER PRIMARY KEY, name TEXT NOT NULL) STRICT"},
};

[[noreturn]] void refuse(const QString &reason) { throw DatabaseRefusal{QString(), reason}; }

quint32 numberAt(const QByteArray &header, int place) { return qFromBigEndian<quint32>(header.constData() + place); }

QString quoted(std::string_view name)
{
    return QLatin1Char('"') + QString::fromUtf8(name.data(), static_cast<int>(name.size())) + QLatin1Char('"');
}

/** One row of the list of all that a database holds. */
void checkObject(std::string_view kind, std::string_view name, std::string_view definition)
{
    const auto *table =
        std::find_if(std::begin(kTables), std::end(kTables), [name](const Table &each) { return each.name == name; });
    if (kind != "table" || table == std::end(kTables))
        refuse(dwgx::Reason::tr("has the foreign %1 %2")
                   .arg(QString::fromUtf8(kind.data(), static_cast<int>(kind.size())), quoted(name)));
    if (definition != table->definition)
        refuse(dwgx::Reason::tr("has the table %1 in another form").arg(quoted(name)));
}

} // namespace

void checkHeader(const QByteArray &header)
{
    if (header.isEmpty())
        refuse(dwgx::Reason::tr("is empty"));
    if (!header.startsWith(QByteArray(kMagic, sizeof kMagic)))
        refuse(dwgx::Reason::tr("is no project file"));
    if (header.size() < kHeaderSize)
        refuse(dwgx::Reason::tr("is damaged: it ends in its header"));
    if (numberAt(header, kApplicationIdAt) != kApplicationId)
        refuse(dwgx::Reason::tr("is an SQLite file, but no project file"));
    const quint32 version = numberAt(header, kUserVersionAt);
    if (version != kVersion)
        refuse((version > kVersion ? dwgx::Reason::tr("is of form %1, newer than the form %2 that this program reads")
                                   : dwgx::Reason::tr("is of form %1, older than the form %2 that this program reads"))
                   .arg(version)
                   .arg(kVersion));
    if (header[kWriteVersionAt] != kRollbackJournal || header[kReadVersionAt] != kRollbackJournal)
        refuse(dwgx::Reason::tr("is in a journal mode that project files do not use"));
}

void create(SqliteConnection &connection)
{
    for (const Table &table : kTables)
        connection.run(table.definition);
    const QString marks =
        QStringLiteral("PRAGMA application_id=%1; PRAGMA user_version=%2").arg(kApplicationId).arg(kVersion);
    connection.run(marks.toLatin1().constData());
}

void check(SqliteConnection &connection)
{
    SqliteStatement objects(connection, "SELECT type, name, sql FROM sqlite_schema");
    std::size_t tables = 0;
    for (; objects.next(); ++tables)
        checkObject(objects.bytes(0), objects.bytes(1), objects.bytes(2));
    if (tables != std::size(kTables))
        refuse(dwgx::Reason::tr("lacks tables of a project file"));
}

} // namespace hbx::embedded::schema

#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <vector>

/** A project file as rows, through the C API of SQLite with kept statements and nothing else: the floor under everything
 *  that opens or saves one. What fails ends the process. */
namespace bench {

/** A value of a row as the C API gives it. */
struct BareValue
{
    int type = 0; ///< SQLITE_INTEGER, _FLOAT, _TEXT or _NULL
    std::int64_t integer = 0;
    double number = 0.0;
    QByteArray text;
};

struct BareTable
{
    QByteArray name;
    QByteArray definition; ///< the statement that makes it
    int columns = 0;
    std::vector<BareValue> values; ///< row by row
};

/** All rows of a file, kept. */
std::vector<BareTable> bareTablesOf(const QString &path);
/** Makes a file of rows that are ready, in one transaction; there is none of that name. */
void writeBare(const QString &path, const std::vector<BareTable> &tables);
/** Reads each row of a file and makes a value of each column, which any reader must. */
void readBare(const QString &path);
/** SQLite's quick check of a file. */
void checkBare(const QString &path);

} // namespace bench

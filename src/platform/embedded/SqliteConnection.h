#pragma once

#include "ORVCADPlatformExport.h"

#include <QString>

#include <memory>

class QIODevice;
struct sqlite3;

namespace hbx::embedded {

/** A call of SQLite that failed. */
struct ORVCADPLATFORM_EXPORT SqliteError
{
    int code = 0; ///< extended result code
    QString message;

    /** Another connection holds a lock that this one waited for. */
    bool isBusy() const;
    /** An interrupted write must be rolled back first, which a connection that only reads cannot do. */
    bool needsRollback() const;
};

/** Connection to a database file that is not trusted: no extensions, no functions, views or triggers out of the file's
 *  schema, no writing to the schema by hand. Everything throws SqliteError. */
class ORVCADPLATFORM_EXPORT SqliteConnection
{
public:
    enum Mode { kRead, kWrite, kCreate };

    SqliteConnection(const QString &path, Mode mode);

    sqlite3 *handle() const { return m_handle.get(); }
    void run(const char *sql);
    /** Whether another connection is inside a transaction that writes. */
    bool isWrittenByOthers() const;
    /** Writes the whole database to a file that is open, as SQLite would have it there; false when that takes less. */
    bool writeTo(QIODevice &file) const;
    /** Throws what the last call failed with, and the system's reason for a failure of the system. */
    [[noreturn]] void fail() const;

private:
    struct Close
    {
        void operator()(sqlite3 *handle) const;
    };
    std::unique_ptr<sqlite3, Close> m_handle;
};

/** A transaction that is rolled back unless it is committed. */
class ORVCADPLATFORM_EXPORT SqliteTransaction
{
public:
    /** @param begin  BEGIN statement of the kind that is wanted */
    SqliteTransaction(SqliteConnection &connection, const char *begin) : m_connection(connection)
    {
        connection.run(begin);
    }
    ~SqliteTransaction();
    SqliteTransaction(const SqliteTransaction &) = delete;
    SqliteTransaction &operator=(const SqliteTransaction &) = delete;
    void commit();

private:
    SqliteConnection &m_connection;
    bool m_isOpen = true;
};

} // namespace hbx::embedded

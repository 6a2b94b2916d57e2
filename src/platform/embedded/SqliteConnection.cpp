#include "platform/embedded/SqliteConnection.h"

#include <sqlite3.h>

#include <QIODevice>

#include <cstring>

namespace hbx::embedded {
namespace {

/** How long a short write of somebody else is waited for, ms. */
constexpr int kBusyWait = 500;

constexpr int kPrimaryCode = 0xFF; // mask

constexpr int kOpenFlags[] = {SQLITE_OPEN_READONLY, SQLITE_OPEN_READWRITE, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE};

struct Setting
{
    int option;
    int value;
};

constexpr Setting kSettings[] = {
    {SQLITE_DBCONFIG_DEFENSIVE, 1},   {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0}, {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
    {SQLITE_DBCONFIG_ENABLE_VIEW, 0}, {SQLITE_DBCONFIG_DQS_DDL, 0},        {SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0},
};

} // namespace

bool SqliteError::isBusy() const
{
    const int primary = code & kPrimaryCode;
    return primary == SQLITE_BUSY || primary == SQLITE_LOCKED;
}

bool SqliteError::needsRollback() const { return code == SQLITE_READONLY_ROLLBACK || code == SQLITE_READONLY_RECOVERY; }

void SqliteConnection::Close::operator()(sqlite3 *handle) const { sqlite3_close_v2(handle); }

SqliteConnection::SqliteConnection(const QString &path, Mode mode)
{
    sqlite3 *handle = nullptr;
    // A connection belongs to one thread, so it needs no locks of its own.
    const int flags = kOpenFlags[mode] | SQLITE_OPEN_EXRESCODE | SQLITE_OPEN_NOMUTEX;
    const int code = sqlite3_open_v2(path.toUtf8().constData(), &handle, flags, nullptr);
    m_handle.reset(handle);
    if (code != SQLITE_OK)
        throw SqliteError{code, QString::fromUtf8(sqlite3_errstr(code))};
    sqlite3_busy_timeout(handle, kBusyWait);
    for (const Setting &setting : kSettings)
        sqlite3_db_config(handle, setting.option, setting.value, nullptr);
}

void SqliteConnection::run(const char *sql)
{
    if (sqlite3_exec(handle(), sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        fail();
}

bool SqliteConnection::isWrittenByOthers() const
{
    sqlite3_file *file = nullptr;
    sqlite3_file_control(handle(), "main", SQLITE_FCNTL_FILE_POINTER, &file);
    int isReserved = 0;
    if (file && file->pMethods && file->pMethods->xCheckReservedLock)
        file->pMethods->xCheckReservedLock(file, &isReserved);
    return isReserved != 0;
}

void SqliteConnection::fail() const
{
    const int code = sqlite3_extended_errcode(handle());
    const int primary = code & kPrimaryCode;
    const int system = sqlite3_system_errno(handle());
    QString message = QString::fromUtf8(sqlite3_errmsg(handle()));
    if (system != 0 && (primary == SQLITE_CANTOPEN || primary == SQLITE_IOERR))
        message += QStringLiteral(" (%1)").arg(QString::fromLocal8Bit(std::strerror(system)));
    throw SqliteError{code, message};
}

bool SqliteConnection::writeTo(QIODevice &file) const
{
    sqlite3_int64 size = 0;
    const std::unique_ptr<unsigned char, decltype(&sqlite3_free)> bytes(sqlite3_serialize(handle(), "main", &size, 0),
                                                                        &sqlite3_free);
    if (!bytes)
        throw SqliteError{SQLITE_NOMEM, QString::fromUtf8(sqlite3_errstr(SQLITE_NOMEM))};
    return file.write(reinterpret_cast<const char *>(bytes.get()), size) == size;
}

SqliteTransaction::~SqliteTransaction()
{
    if (m_isOpen)
        sqlite3_exec(m_connection.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void SqliteTransaction::commit()
{
    m_connection.run("COMMIT");
    m_isOpen = false;
}

} // namespace hbx::embedded

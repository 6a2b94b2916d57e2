#include "platform/embedded/HBXDatabaseFile.h"

#include "platform/dwgx/Reason.h"
#include "platform/embedded/DatabaseRefusal.h"
#include "platform/embedded/HBXDatabaseReader.h"
#include "platform/embedded/HBXDatabaseSchema.h"
#include "platform/embedded/HBXDatabaseWriter.h"
#include "platform/embedded/HBXProject.h"
#include "platform/embedded/SqliteStatement.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSaveFile>

#include <limits>

namespace hbx::embedded {
namespace {

constexpr char kBusy[] = QT_TRANSLATE_NOOP("host", "is being written by another program");
constexpr char kNotWritten[] = QT_TRANSLATE_NOOP("host", "cannot be written: %1");
constexpr char kDamaged[] = QT_TRANSLATE_NOOP("host", "is damaged: %1");

constexpr const char *kSideFiles[] = {"-journal", "-wal", "-shm"};

[[noreturn]] void refuse(const QString &reason) { throw DatabaseRefusal{QString(), reason}; }

/** The failure with what the system said of it. */
QString failed(const char *failure, const QString &message) { return dwgx::Reason::tr(failure).arg(message); }

/** Runs work, and turns whatever it throws into an error of the file. */
template <typename Work> bool guarded(const QString &path, const char *failure, ProjectError &error, Work work)
{
    error = {};
    try {
        work();
        return true;
    } catch (const DatabaseRefusal &refusal) {
        error = {path, refusal.place, refusal.reason};
    } catch (const SqliteError &problem) {
        error = {path, QString(), problem.isBusy() ? dwgx::Reason::tr(kBusy) : failed(failure, problem.message)};
    }
    return false;
}

/** Tells a mark of a save from that of any other. */
qint64 freshMark() { return QRandomGenerator::global()->generate64() & std::numeric_limits<qint64>::max(); }

void checkFile(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        refuse(dwgx::Reason::tr("does not exist"));
    if (!info.isFile())
        refuse(dwgx::Reason::tr("is no file"));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        refuse(dwgx::Reason::tr("cannot be read: %1").arg(file.errorString()));
    schema::checkHeader(file.read(schema::kHeaderSize));
}

/** Undoes a save that a process left unfinished. */
void rollBack(const QString &path)
{
    try {
        SqliteConnection connection(path, SqliteConnection::kWrite);
        SqliteStatement(connection, "SELECT count(*) FROM sqlite_schema").run();
    } catch (const SqliteError &problem) {
        if (problem.isBusy())
            throw;
        refuse(dwgx::Reason::tr("holds a save that was interrupted and cannot be undone: %1").arg(problem.message));
    }
}

void beginReading(SqliteConnection &connection)
{
    connection.run("PRAGMA cell_size_check=ON");
    connection.run("PRAGMA mmap_size=0");
    connection.run("BEGIN");
}

void checkContent(SqliteConnection &connection)
{
    if (connection.isWrittenByOthers())
        refuse(dwgx::Reason::tr(kBusy));
    schema::check(connection);
    SqliteStatement check(connection, "PRAGMA quick_check(1)");
    if (check.next() && check.bytes(0) != "ok")
        refuse(failed(kDamaged, check.text(0)));
}

/** What the last save left; nothing in a file that has lost it. */
std::optional<qint64> saveMarkIn(SqliteConnection &connection)
{
    SqliteStatement project(connection, "SELECT save_mark FROM project");
    return project.next() ? std::optional(project.integer(0)) : std::nullopt;
}

void checkForeignKeys(SqliteConnection &connection)
{
    SqliteStatement check(connection, "PRAGMA foreign_key_check");
    if (check.next())
        throw DatabaseRefusal{QStringLiteral("%1[id=%2]").arg(check.text(0)).arg(check.integer(1)),
                              dwgx::Reason::tr("would name an object that is gone")};
}

/** Journals of a file that is about to be replaced would be taken for the new one's. */
void clearSideFiles(const QString &path)
{
    for (const char *suffix : kSideFiles)
        QFile::remove(path + QLatin1String(suffix));
}

void refuseIfNoFile(const QString &path)
{
    const QFileInfo info(path);
    if (info.isDir())
        refuse(dwgx::Reason::tr("is a directory"));
    if (info.exists() && !info.isFile())
        refuse(dwgx::Reason::tr("is no file")); // which a file would take the place of
}

/** Waits for nobody: a file that somebody writes to is not replaced. A save that was interrupted is undone here, so that
 *  the file is whole without its journal, which has to go before the file does. */
void refuseIfWritten(const QString &path)
{
    if (!QFileInfo(path).isFile())
        return;
    try {
        SqliteConnection connection(path, SqliteConnection::kWrite);
        connection.run("BEGIN; SELECT count(*) FROM sqlite_schema");
        if (connection.isWrittenByOthers())
            refuse(dwgx::Reason::tr(kBusy));
    } catch (const SqliteError &problem) {
        if (problem.isBusy())
            refuse(dwgx::Reason::tr(kBusy)); // anything else is to be replaced anyway
    }
}

/** Where a path leads through symbolic links, so that replacing the file keeps the link. */
QString resolved(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() ? info.canonicalFilePath() : path;
}

void fillNew(SqliteConnection &connection, const ProjectRecord &project, qint64 mark)
{
    SqliteTransaction transaction(connection, "BEGIN");
    schema::create(connection);
    HBXDatabaseWriter(connection).writeAll(project, mark);
    transaction.commit();
}

/** Puts a database in the place of a file. What is written on the way has no name that could be left behind. */
void replaceFile(const QString &target, const SqliteConnection &connection)
{
    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly) || !connection.writeTo(file) || !file.flush())
        refuse(failed(kNotWritten, file.errorString()));
    refuseIfWritten(target);
    clearSideFiles(target);
    if (!file.commit())
        refuse(failed(kNotWritten, file.errorString()));
}

} // namespace

std::optional<ProjectRecord> HBXDatabaseFile::read(ProjectError &error)
{
    std::optional<ProjectRecord> project;
    guarded(m_path, kDamaged, error, [&] {
        checkFile(m_path);
        try {
            project = readChecked();
        } catch (const SqliteError &problem) {
            if (!problem.needsRollback())
                throw;
            rollBack(m_path);
            project = readChecked();
        }
    });
    return project;
}

ProjectRecord HBXDatabaseFile::readChecked()
{
    SqliteConnection connection(m_path, SqliteConnection::kRead);
    beginReading(connection);
    checkContent(connection);
    HBXDatabaseReader reader(connection);
    ProjectRecord project = reader.read();
    m_saveMark = reader.saveMark();
    return project;
}

bool HBXDatabaseFile::create(const ProjectRecord &project, ProjectError &error)
{
    return guarded(m_path, kNotWritten, error, [&] {
        const QString target = resolved(m_path);
        refuseIfNoFile(target);
        refuseIfWritten(target);
        const qint64 mark = freshMark();
        SqliteConnection connection(QStringLiteral(":memory:"), SqliteConnection::kCreate);
        fillNew(connection, project, mark);
        replaceFile(target, connection);
        m_saveMark = mark;
    });
}

bool HBXDatabaseFile::save(const ProjectUpdate &changes, ProjectError &error)
{
    return guarded(m_path, kNotWritten, error, [&] {
        checkFile(m_path);
        update(changes);
    });
}

void HBXDatabaseFile::update(const ProjectUpdate &changes)
{
    SqliteConnection connection(m_path, SqliteConnection::kWrite);
    SqliteTransaction transaction(connection, "BEGIN IMMEDIATE");
    schema::check(connection);
    if (saveMarkIn(connection) != m_saveMark)
        refuse(dwgx::Reason::tr("was changed by another program since it was opened"));
    const qint64 mark = freshMark();
    HBXDatabaseWriter(connection).writeUpdate(changes, mark);
    if (!changes.removedDrawObjs.empty() || !changes.removedElements.empty())
        checkForeignKeys(connection);
    transaction.commit();
    m_saveMark = mark;
}

} // namespace hbx::embedded

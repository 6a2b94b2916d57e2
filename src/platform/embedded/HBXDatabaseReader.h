#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/embedded/HBXProjectRecords.h"

namespace hbx::embedded {

class SqliteConnection;

/** Reads all tables of a project file whose schema is known to be sound. Throws DatabaseRefusal for content that no
 *  project writes, SqliteError for what SQLite itself refuses. */
class ORVCADPLATFORM_EXPORT HBXDatabaseReader
{
public:
    explicit HBXDatabaseReader(SqliteConnection &connection) : m_connection(connection) {}

    ProjectRecord read();
    /** What the last save left to tell it from others; good after read(). */
    qint64 saveMark() const { return m_saveMark; }

private:
    void readProject();
    void readTables();
    void readRegions();
    void readFloors();
    void readElements();
    void readDrawObjs();
    void readShapes();
    void readAxes();
    void readSpans();

    SqliteConnection &m_connection;
    ProjectRecord m_project;
    qint64 m_saveMark = 0;
};

} // namespace hbx::embedded

#pragma once

#include "platform/embedded/HBXProjectRecords.h"
#include "platform/embedded/SqliteStatement.h"

namespace hbx::embedded {

/** Writes records into the tables of a project file, each table by one kept statement. The caller holds the transaction.
 *  Throws SqliteError. */
class ORVCADPLATFORM_EXPORT HBXDatabaseWriter
{
public:
    explicit HBXDatabaseWriter(SqliteConnection &connection);

    /** Everything, into empty tables. */
    void writeAll(const ProjectRecord &project, qint64 saveMark);
    void writeUpdate(const ProjectUpdate &update, qint64 saveMark);

private:
    void writeHeader(const ProjectRecord &project, qint64 saveMark);
    void writeOptions(const std::vector<OptionRecord> &options);
    void writeMaterials(const std::vector<MaterialRecord> &materials);
    void writeRegion(const RegionRecord &region);
    void writeFloor(const FloorRecord &floor);
    void writeElement(const ElementRecord &element);
    void writeDrawObj(const DrawObjRecord &drawObj);
    void writeProperties(SqliteStatement &insert, qint64 ownerId, const PropertyRecords &properties);
    void writeShape(qint64 drawObjId, const ShapeRecord &shape);
    void writeAxes(qint64 drawObjId, const ShapeRecord &shape);
    void removeElement(qint64 id);
    void removeDrawObj(qint64 id);

    SqliteConnection &m_connection;
    SqliteStatement m_element;
    SqliteStatement m_elementProperty;
    SqliteStatement m_drawObj;
    SqliteStatement m_drawObjProperty;
    SqliteStatement m_shape;
    SqliteStatement m_axis;
    SqliteStatement m_span;
    std::vector<SqliteStatement> m_removeElement;
    std::vector<SqliteStatement> m_removeDrawObj;
};

} // namespace hbx::embedded

#pragma once

#include "platform/embedded/HBXProjectRecords.h"
#include "platform/embedded/SqliteInsert.h"

namespace hbx::embedded {

/** Writes records into the tables of a project file, table by table. The caller holds the transaction.
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
    void writeElements(const std::vector<ElementRecord> &elements);
    void writeDrawObjs(const std::vector<DrawObjRecord> &drawObjs);
    void writeShapes(const std::vector<DrawObjRecord> &drawObjs);
    void writeAxes(qint64 drawObjId, const ShapeRecord &shape);
    void writeSpans(const DrawObjRecord &drawObj);
    void removeElement(qint64 id);
    void removeDrawObj(qint64 id);

    SqliteConnection &m_connection;
    SqliteInsert m_element;
    SqliteInsert m_elementProperty;
    SqliteInsert m_drawObj;
    SqliteInsert m_drawObjProperty;
    SqliteInsert m_shape;
    SqliteStatement m_axis;
    SqliteStatement m_span;
    std::vector<SqliteStatement> m_removeElement;
    std::vector<SqliteStatement> m_removeDrawObj;
};

} // namespace hbx::embedded

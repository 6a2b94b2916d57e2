#include "platform/embedded/HBXDatabaseWriter.h"

#include "platform/embedded/StoredGeometry.h"

#include <QJsonDocument>

#include <cmath>
#include <initializer_list>

namespace hbx::embedded {
namespace {

std::optional<qint64> link(qint64 id) { return id != 0 ? std::optional(id) : std::nullopt; }

/** A size that is not finite has no row that could be read again; it becomes its start value. */
double finite(double size) { return std::isfinite(size) ? size : 0.0; }

std::optional<double> finite(const std::optional<double> &size)
{
    return size ? std::optional(finite(*size)) : std::nullopt;
}

std::optional<std::string> textOf(const vks::CGeometry *geometry)
{
    return geometry ? std::optional(geometry->ToText()) : std::nullopt;
}

/** Fills one property row by the kind of its value. */
struct PropertyRow
{
    const SqliteInsert::Row &row;
    qint64 owner;
    qint64 position;
    const QString &name;

    void operator()(std::monostate) const { row(owner, position, name, nullptr); }
    void operator()(int value) const { row(owner, position, name, value); }
    void operator()(double value) const
    {
        std::isfinite(value) ? row(owner, position, name, value) : (*this)(std::monostate());
    }
    void operator()(const QString &value) const { row(owner, position, name, value); }
    void operator()(const vks::CVec2<double> &value) const { row(owner, position, name, pointText(value)); }
    template <typename T> void operator()(const vks::CRefPtr<T> &value) const
    {
        row(owner, position, name, textOf(value.get()));
    }
};

/** Properties of all records, each with its place in the list of its owner. */
template <typename Record> void writeProperties(SqliteInsert &insert, const std::vector<Record> &records)
{
    std::size_t count = 0;
    for (const Record &record : records)
        count += record.properties.size();
    auto owner = records.begin();
    std::size_t position = 0;
    insert.run(count, [&](const SqliteInsert::Row &row, std::size_t) {
        for (; position == owner->properties.size(); ++owner)
            position = 0;
        const auto &[name, value] = owner->properties[position];
        std::visit(PropertyRow{row, owner->id, static_cast<qint64>(position), name}, value);
        ++position;
    });
}

std::vector<SqliteStatement> statements(SqliteConnection &connection, std::initializer_list<const char *> texts)
{
    std::vector<SqliteStatement> all;
    all.reserve(texts.size());
    for (const char *text : texts)
        all.emplace_back(connection, text);
    return all;
}

} // namespace

HBXDatabaseWriter::HBXDatabaseWriter(SqliteConnection &connection)
    : m_connection(connection), m_element(connection, "element", 7),
      m_elementProperty(connection, "element_property", 4), m_drawObj(connection, "draw_object", 12),
      m_drawObjProperty(connection, "draw_object_property", 4), m_shape(connection, "shape", 20),
      m_axis(connection, "INSERT INTO shape_axis VALUES(?,?,?,?,?,?)"),
      m_span(connection, "INSERT INTO span VALUES(?,?,?)"),
      m_removeElement(statements(
          connection, {"DELETE FROM element_property WHERE element_id = ?", "DELETE FROM element WHERE id = ?"})),
      m_removeDrawObj(statements(connection, {"DELETE FROM span WHERE draw_object_id = ?",
                                              "DELETE FROM shape_axis WHERE draw_object_id = ?",
                                              "DELETE FROM shape WHERE draw_object_id = ?",
                                              "DELETE FROM draw_object_property WHERE draw_object_id = ?",
                                              "DELETE FROM draw_object WHERE id = ?"}))
{}

void HBXDatabaseWriter::writeAll(const ProjectRecord &project, qint64 saveMark)
{
    writeHeader(project, saveMark);
    writeOptions(project.options);
    writeMaterials(project.materials);
    for (const RegionRecord &region : project.regions)
        writeRegion(region);
    for (const FloorRecord &floor : project.floors)
        writeFloor(floor);
    writeElements(project.elements);
    writeDrawObjs(project.drawObjs);
}

void HBXDatabaseWriter::writeUpdate(const ProjectUpdate &update, qint64 saveMark)
{
    writeHeader(update.content, saveMark);
    if (update.hasOptions) {
        m_connection.run("DELETE FROM identify_option");
        writeOptions(update.content.options);
    }
    if (update.hasMaterials) {
        m_connection.run("DELETE FROM material");
        writeMaterials(update.content.materials);
    }
    for (const qint64 id : update.removedDrawObjs)
        removeDrawObj(id);
    for (const qint64 id : update.removedElements)
        removeElement(id);
    for (const ElementRecord &element : update.content.elements)
        removeElement(element.id);
    for (const DrawObjRecord &drawObj : update.content.drawObjs)
        removeDrawObj(drawObj.id);
    writeElements(update.content.elements);
    writeDrawObjs(update.content.drawObjs);
}

void HBXDatabaseWriter::writeHeader(const ProjectRecord &project, qint64 saveMark)
{
    SqliteStatement insert(m_connection, "INSERT OR REPLACE INTO project VALUES(1,?,?,?,?,?)");
    insert.run(project.name, project.source, project.planeRule, project.nextId, saveMark);
}

void HBXDatabaseWriter::writeOptions(const std::vector<OptionRecord> &options)
{
    SqliteStatement insert(m_connection, "INSERT INTO identify_option VALUES(?,?,?,?)");
    qint64 position = 0;
    for (const OptionRecord &option : options)
        insert.run(position++, option.group, option.name, option.value);
}

void HBXDatabaseWriter::writeMaterials(const std::vector<MaterialRecord> &materials)
{
    SqliteStatement insert(m_connection, "INSERT INTO material VALUES(?,?)");
    for (const MaterialRecord &material : materials)
        insert.run(material.number, material.name);
}

void HBXDatabaseWriter::writeRegion(const RegionRecord &region)
{
    SqliteStatement(m_connection, "INSERT INTO region VALUES(?,?)").run(region.id, region.name);
}

void HBXDatabaseWriter::writeFloor(const FloorRecord &floor)
{
    SqliteStatement(m_connection, "INSERT INTO floor VALUES(?,?,?,?,?,?,?,?,?)")
        .run(floor.id, floor.regionId, floor.name, floor.code, finite(floor.bottomElev), finite(floor.height),
             floor.standardFloorCount, floor.foundation, floor.remark);
}

void HBXDatabaseWriter::writeElements(const std::vector<ElementRecord> &elements)
{
    m_element.run(elements.size(), [&](const SqliteInsert::Row &row, std::size_t i) {
        const ElementRecord &element = elements[i];
        row(element.id, element.floorId, link(element.parentId), element.name, element.type, element.subType,
            element.orderNumber);
    });
    writeProperties(m_elementProperty, elements);
}

void HBXDatabaseWriter::writeDrawObjs(const std::vector<DrawObjRecord> &drawObjs)
{
    m_drawObj.run(drawObjs.size(), [&](const SqliteInsert::Row &row, std::size_t i) {
        const DrawObjRecord &drawObj = drawObjs[i];
        const auto &section = drawObj.section;
        row(drawObj.id, drawObj.elementId, drawObj.type, drawObj.subType, link(drawObj.next), link(drawObj.owner),
            link(drawObj.attachedTo), section ? std::optional(section->number) : std::nullopt,
            section ? std::optional(section->kind) : std::nullopt, drawObj.layer, drawObj.state,
            drawObj.key.isEmpty() ? std::nullopt : std::optional(drawObj.key));
    });
    writeProperties(m_drawObjProperty, drawObjs);
    writeShapes(drawObjs);
    for (const DrawObjRecord &drawObj : drawObjs) {
        writeAxes(drawObj.id, drawObj.shape);
        writeSpans(drawObj);
    }
}

void HBXDatabaseWriter::writeShapes(const std::vector<DrawObjRecord> &drawObjs)
{
    using Frame = vks::CCoord3<double>;
    using Vector = vks::CVec3<double>;
    m_shape.run(drawObjs.size(), [&](const SqliteInsert::Row &row, std::size_t i) {
        const ShapeRecord &shape = drawObjs[i].shape;
        const auto term = [&shape](double Vector::*axis, Vector Frame::*vector) {
            return shape.coordinates ? std::optional(finite((*shape.coordinates).*vector.*axis)) : std::nullopt;
        };
        row(drawObjs[i].id, static_cast<int>(shape.kind), textOf(shape.outline), textOf(shape.curve),
            finite(shape.width), finite(shape.distanceToLeft), finite(shape.height), finite(shape.insertPoint.x),
            finite(shape.insertPoint.y), finite(shape.angle), shape.mirror, term(&Vector::x, &Frame::origin),
            term(&Vector::y, &Frame::origin), term(&Vector::z, &Frame::origin), term(&Vector::x, &Frame::u),
            term(&Vector::y, &Frame::u), term(&Vector::z, &Frame::u), term(&Vector::x, &Frame::v),
            term(&Vector::y, &Frame::v), term(&Vector::z, &Frame::v));
    });
}

void HBXDatabaseWriter::writeAxes(qint64 drawObjId, const ShapeRecord &shape)
{
    for (int group = 0; group < IHBXAxisGrid::kGroupCount; ++group) {
        qint64 position = 0;
        for (const HBXAxis &axis : shape.axes[static_cast<std::size_t>(group)]) {
            qint64 curvePosition = 0;
            for (const auto &curve : axis.curves)
                m_axis.run(drawObjId, group, position, curvePosition++, axis.label, textOf(curve.get()));
            ++position;
        }
    }
}

void HBXDatabaseWriter::writeSpans(const DrawObjRecord &drawObj)
{
    qint64 position = 0;
    for (const QJsonObject &span : drawObj.spans)
        m_span.run(drawObj.id, position++, QJsonDocument(span).toJson(QJsonDocument::Compact).toStdString());
}

void HBXDatabaseWriter::removeElement(qint64 id)
{
    for (SqliteStatement &remove : m_removeElement)
        remove.run(id);
}

void HBXDatabaseWriter::removeDrawObj(qint64 id)
{
    for (SqliteStatement &remove : m_removeDrawObj)
        remove.run(id);
}

} // namespace hbx::embedded

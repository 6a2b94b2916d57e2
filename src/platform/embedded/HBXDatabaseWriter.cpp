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

/** Text of geometry, kept while a row is written. */
struct GeometryText
{
    explicit GeometryText(const vks::CGeometry *geometry) : isThere(geometry), text(isThere ? geometry->ToText() : "")
    {}
    std::optional<std::string_view> view() const
    {
        return isThere ? std::optional<std::string_view>(text) : std::nullopt;
    }

    bool isThere;
    std::string text;
};

/** Writes one property row by the kind of its value. */
struct PropertyRow
{
    SqliteStatement &insert;
    qint64 owner;
    qint64 position;
    const QString &name;

    void operator()(std::monostate) const { insert.run(owner, position, name, nullptr); }
    void operator()(int value) const { insert.run(owner, position, name, value); }
    void operator()(double value) const
    {
        std::isfinite(value) ? insert.run(owner, position, name, value) : (*this)(std::monostate());
    }
    void operator()(const QString &value) const { insert.run(owner, position, name, value); }
    void operator()(const vks::CVec2<double> &value) const
    {
        const std::string text = pointText(value);
        insert.run(owner, position, name, std::string_view(text));
    }
    template <typename T> void operator()(const vks::CRefPtr<T> &value) const
    {
        insert.run(owner, position, name, GeometryText(value.get()).view());
    }
};

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
    : m_connection(connection), m_element(connection, "INSERT INTO element VALUES(?,?,?,?,?,?,?)"),
      m_elementProperty(connection, "INSERT INTO element_property VALUES(?,?,?,?)"),
      m_drawObj(connection, "INSERT INTO draw_object VALUES(?,?,?,?,?,?,?,?,?,?,?,?)"),
      m_drawObjProperty(connection, "INSERT INTO draw_object_property VALUES(?,?,?,?)"),
      m_shape(connection, "INSERT INTO shape VALUES(?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)"),
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
    for (const ElementRecord &element : project.elements)
        writeElement(element);
    for (const DrawObjRecord &drawObj : project.drawObjs)
        writeDrawObj(drawObj);
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
    for (const ElementRecord &element : update.content.elements) {
        removeElement(element.id);
        writeElement(element);
    }
    for (const DrawObjRecord &drawObj : update.content.drawObjs) {
        removeDrawObj(drawObj.id);
        writeDrawObj(drawObj);
    }
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

void HBXDatabaseWriter::writeElement(const ElementRecord &element)
{
    m_element.run(element.id, element.floorId, link(element.parentId), element.name, element.type, element.subType,
                  element.orderNumber);
    writeProperties(m_elementProperty, element.id, element.properties);
}

void HBXDatabaseWriter::writeDrawObj(const DrawObjRecord &drawObj)
{
    const auto &section = drawObj.section;
    const auto key = drawObj.key.isEmpty() ? std::nullopt : std::optional(drawObj.key);
    m_drawObj.run(drawObj.id, drawObj.elementId, drawObj.type, drawObj.subType, link(drawObj.next), link(drawObj.owner),
                  link(drawObj.attachedTo), section ? std::optional(section->number) : std::nullopt,
                  section ? std::optional(section->kind) : std::nullopt, drawObj.layer, drawObj.state, key);
    writeProperties(m_drawObjProperty, drawObj.id, drawObj.properties);
    writeShape(drawObj.id, drawObj.shape);
    writeAxes(drawObj.id, drawObj.shape);
    qint64 position = 0;
    for (const QJsonObject &span : drawObj.spans) {
        const QByteArray text = QJsonDocument(span).toJson(QJsonDocument::Compact);
        m_span.run(drawObj.id, position++, std::string_view(text.constData(), static_cast<std::size_t>(text.size())));
    }
}

void HBXDatabaseWriter::writeProperties(SqliteStatement &insert, qint64 ownerId, const PropertyRecords &properties)
{
    qint64 position = 0;
    for (const auto &[name, value] : properties)
        std::visit(PropertyRow{insert, ownerId, position++, name}, value);
}

void HBXDatabaseWriter::writeShape(qint64 drawObjId, const ShapeRecord &shape)
{
    const GeometryText outline(shape.outline);
    const GeometryText curve(shape.curve);
    const auto &frame = shape.coordinates;
    const auto term = [&](double vks::CVec3<double>::*axis, vks::CVec3<double> vks::CCoord3<double>::*vector) {
        return frame ? std::optional(finite((*frame).*vector.*axis)) : std::nullopt;
    };
    using Frame = vks::CCoord3<double>;
    using Vector = vks::CVec3<double>;
    m_shape.run(drawObjId, static_cast<int>(shape.kind), outline.view(), curve.view(), finite(shape.width),
                finite(shape.distanceToLeft), finite(shape.height), finite(shape.insertPoint.x),
                finite(shape.insertPoint.y), finite(shape.angle), shape.mirror, term(&Vector::x, &Frame::origin),
                term(&Vector::y, &Frame::origin), term(&Vector::z, &Frame::origin), term(&Vector::x, &Frame::u),
                term(&Vector::y, &Frame::u), term(&Vector::z, &Frame::u), term(&Vector::x, &Frame::v),
                term(&Vector::y, &Frame::v), term(&Vector::z, &Frame::v));
}

void HBXDatabaseWriter::writeAxes(qint64 drawObjId, const ShapeRecord &shape)
{
    for (int group = 0; group < IHBXAxisGrid::kGroupCount; ++group) {
        qint64 position = 0;
        for (const HBXAxis &axis : shape.axes[static_cast<std::size_t>(group)]) {
            qint64 curvePosition = 0;
            for (const auto &curve : axis.curves)
                m_axis.run(drawObjId, group, position, curvePosition++, axis.label, GeometryText(curve.get()).view());
            ++position;
        }
    }
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

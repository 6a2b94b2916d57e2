#include "platform/embedded/HBXDatabaseReader.h"

#include "platform/embedded/DatabaseLinks.h"
#include "platform/embedded/DatabaseProperty.h"
#include "platform/embedded/DatabaseRows.h"
#include "platform/embedded/HBXPropertyCatalogue.h"

#include <QJsonDocument>

namespace hbx::embedded {
namespace {

const TypeProperties &catalogueOf(const DatabaseRows &rows, qint64 type)
{
    const TypeProperties *properties = HBXPropertyCatalogue::instance().properties(type);
    if (!properties)
        rows.refuse("type", QStringLiteral("is no type that the host knows: %1").arg(type));
    return *properties;
}

/** The geometry of a text column; null for NULL. */
template <typename Geometry> vks::CRefPtr<Geometry> readGeometry(const DatabaseRows &rows, int column, const char *name)
{
    if (rows.row().isNull(column))
        return nullptr;
    const std::string_view text = rows.row().bytes(column);
    const bool isWhole = text.find('\0') == std::string_view::npos;
    const auto geometry = vks::CGeometry::LoadFromStr(isWhole ? text.data() : nullptr);
    vks::CRefPtr<Geometry> wanted = dynamic_cast<Geometry *>(geometry.get());
    if (!wanted)
        rows.refuse(name, QStringLiteral("is not the text of its geometry"));
    return wanted;
}

namespace shapeColumn {
enum { kId, kKind, kOutline, kCurve, kWidth, kDistanceToLeft, kHeight, kInsertX, kInsertY, kAngle, kMirror, kFrame };
}

constexpr const char *kFrameNames[] = {"origin_x", "origin_y", "origin_z", "u_x", "u_y", "u_z", "v_x", "v_y", "v_z"};

vks::CVec3<double> readVector(const DatabaseRows &rows, int term)
{
    double terms[3];
    for (int i = 0; i < 3; ++i) {
        if (rows.row().isNull(shapeColumn::kFrame + term + i))
            rows.refuse(kFrameNames[term + i], QStringLiteral("is missing"));
        terms[i] = rows.number(shapeColumn::kFrame + term + i, kFrameNames[term + i]);
    }
    return {terms[0], terms[1], terms[2]};
}

void readShape(const DatabaseRows &rows, ShapeRecord &shape)
{
    using namespace shapeColumn;
    const int kind = rows.integer32(kKind, "kind");
    if (kind < IHBXShape::kPoint || kind > IHBXShape::kGrid)
        rows.refuse("kind", QStringLiteral("is no kind of shape"));
    shape.kind = static_cast<IHBXShape::Kind>(kind);
    shape.outline = readGeometry<vks::CPolygon>(rows, kOutline, "outline");
    shape.curve = readGeometry<vks::CCurve2d>(rows, kCurve, "curve");
    shape.width = rows.number(kWidth, "width");
    if (!rows.row().isNull(kDistanceToLeft))
        shape.distanceToLeft = rows.number(kDistanceToLeft, "distance_to_left");
    shape.height = rows.number(kHeight, "height");
    shape.insertPoint = {rows.number(kInsertX, "insert_x"), rows.number(kInsertY, "insert_y")};
    shape.angle = rows.number(kAngle, "angle");
    shape.mirror = rows.row().integer(kMirror) != 0;
    if (!rows.row().isNull(kFrame))
        shape.coordinates = {readVector(rows, 0), readVector(rows, 3), readVector(rows, 6)};
}

void readAxis(const DatabaseRows &rows, ShapeRecord &shape)
{
    const qint64 group = rows.row().integer(1);
    if (group < 0 || group >= IHBXAxisGrid::kGroupCount)
        rows.refuse("axis_group", QStringLiteral("is no group of axes"));
    std::vector<HBXAxis> &axes = shape.axes[static_cast<std::size_t>(group)];
    const bool isFurtherCurve = rows.row().integer(3) != 0;
    if (!isFurtherCurve)
        axes.push_back({rows.row().text(4), {}});
    if (axes.empty())
        rows.refuse("curve_position", QStringLiteral("has no axis in front of it"));
    axes.back().curves.push_back(readGeometry<vks::CCurve2d>(rows, 5, "curve"));
}

/** Rows that a table really has, so that nothing is allocated by a number that merely stands in the file. */
std::size_t rowCount(SqliteConnection &connection, const char *query)
{
    SqliteStatement count(connection, query);
    return count.next() ? static_cast<std::size_t>(count.integer(0)) : 0;
}

} // namespace

ProjectRecord HBXDatabaseReader::read()
{
    readProject();
    readTables();
    readRegions();
    readFloors();
    readElements();
    readDrawObjs();
    readShapes();
    readAxes();
    readSpans();
    checkLinks(m_project);
    return std::move(m_project);
}

void HBXDatabaseReader::readProject()
{
    DatabaseRows rows(m_connection, "project", "id", "id, name, source, plane_rule, next_id, save_mark");
    if (!rows.next())
        throw DatabaseRefusal{QStringLiteral("project"), QStringLiteral("has no row")};
    const SqliteStatement &row = rows.row();
    m_project.name = row.text(1);
    m_project.source = row.text(2);
    m_project.planeRule = row.text(3);
    m_project.nextId = row.integer(4);
    m_saveMark = row.integer(5);
}

void HBXDatabaseReader::readTables()
{
    DatabaseRows options(m_connection, "identify_option", "position", "position, group_name, name, value");
    while (options.next())
        m_project.options.push_back({options.row().text(1), options.row().text(2), options.row().text(3)});
    DatabaseRows materials(m_connection, "material", "number", "number, name");
    while (materials.next())
        m_project.materials.push_back({materials.integer32(0, "number"), materials.row().text(1)});
}

void HBXDatabaseReader::readRegions()
{
    DatabaseRows rows(m_connection, "region", "id", "id, name");
    while (rows.next())
        m_project.regions.push_back({rows.id(), rows.row().text(1)});
}

void HBXDatabaseReader::readFloors()
{
    DatabaseRows rows(m_connection, "floor", "id",
                      "id, region_id, name, code, bottom_elev, height, standard_floor_count, foundation, remark");
    while (rows.next()) {
        FloorRecord floor;
        floor.id = rows.integer32(0, "id");
        floor.regionId = rows.link(1);
        floor.name = rows.row().text(2);
        floor.code = rows.row().text(3);
        floor.bottomElev = rows.number(4, "bottom_elev");
        floor.height = rows.number(5, "height");
        floor.standardFloorCount = rows.integer32(6, "standard_floor_count");
        floor.foundation = rows.row().integer(7) != 0;
        floor.remark = rows.row().text(8);
        m_project.floors.push_back(floor);
    }
}

void HBXDatabaseReader::readElements()
{
    DatabaseRows rows(m_connection, "element", "id", "id, floor_id, parent_id, name, type, sub_type, order_number");
    DatabaseProperty propertyReader(false);
    OwnedRows properties(m_connection, "element_property", "element_id, position", "element_id, position, name, value");
    while (rows.next()) {
        ElementRecord element;
        element.id = rows.id();
        element.floorId = rows.integer32(1, "floor_id");
        element.parentId = rows.link(2);
        element.name = rows.row().text(3);
        element.type = rows.row().integer(4);
        element.subType = rows.row().integer(5);
        element.orderNumber = rows.integer32(6, "order_number");
        const TypeProperties &type = catalogueOf(rows, element.type);
        properties.forOwner(
            element.id, [&](const DatabaseRows &property) { propertyReader.read(property, type, element.properties); });
        m_project.elements.push_back(std::move(element));
    }
    properties.finish();
}

void HBXDatabaseReader::readDrawObjs()
{
    m_project.drawObjs.reserve(rowCount(m_connection, "SELECT count(*) FROM draw_object"));
    DatabaseRows rows(m_connection, "draw_object", "id",
                      "id, element_id, type, sub_type, next_id, owner_id, attached_to, section_number, section_kind,"
                      " layer, state, exchange_key");
    DatabaseProperty propertyReader(true);
    OwnedRows properties(m_connection, "draw_object_property", "draw_object_id, position",
                         "draw_object_id, position, name, value");
    while (rows.next()) {
        DrawObjRecord &drawObj = m_project.drawObjs.emplace_back();
        drawObj.id = rows.id();
        drawObj.elementId = rows.link(1);
        drawObj.type = rows.row().integer(2);
        drawObj.subType = rows.row().integer(3);
        drawObj.next = rows.link(4);
        drawObj.owner = rows.link(5);
        drawObj.attachedTo = rows.link(6);
        if (!rows.row().isNull(7))
            drawObj.section = SectionRecord{rows.row().integer(7), rows.integer32(8, "section_kind")};
        drawObj.layer = rows.integer32(9, "layer");
        drawObj.state = rows.integer32(10, "state");
        drawObj.key = rows.row().text(11);
        const TypeProperties &type = catalogueOf(rows, drawObj.type);
        properties.forOwner(
            drawObj.id, [&](const DatabaseRows &property) { propertyReader.read(property, type, drawObj.properties); });
    }
    properties.finish();
}

void HBXDatabaseReader::readShapes()
{
    OwnedRows rows(m_connection, "shape", "draw_object_id",
                   "draw_object_id, kind, outline, curve, width, distance_to_left, height, insert_x, insert_y, angle,"
                   " mirror, origin_x, origin_y, origin_z, u_x, u_y, u_z, v_x, v_y, v_z");
    for (DrawObjRecord &drawObj : m_project.drawObjs) {
        bool isThere = false;
        rows.forOwner(drawObj.id, [&](const DatabaseRows &shape) {
            readShape(shape, drawObj.shape);
            isThere = true;
        });
        if (!isThere)
            throw DatabaseRefusal{QStringLiteral("draw_object[id=%1]").arg(drawObj.id), QStringLiteral("has no shape")};
    }
    rows.finish();
}

void HBXDatabaseReader::readAxes()
{
    OwnedRows rows(m_connection, "shape_axis", "draw_object_id, axis_group, position, curve_position",
                   "draw_object_id, axis_group, position, curve_position, label, curve");
    for (DrawObjRecord &drawObj : m_project.drawObjs)
        rows.forOwner(drawObj.id, [&](const DatabaseRows &axis) { readAxis(axis, drawObj.shape); });
    rows.finish();
}

void HBXDatabaseReader::readSpans()
{
    OwnedRows rows(m_connection, "span", "draw_object_id, position", "draw_object_id, position, record");
    for (DrawObjRecord &drawObj : m_project.drawObjs)
        rows.forOwner(drawObj.id, [&](const DatabaseRows &span) {
            const std::string_view text = span.row().bytes(2);
            const auto document = QJsonDocument::fromJson({text.data(), static_cast<int>(text.size())});
            if (!document.isObject())
                span.refuse("record", QStringLiteral("is no JSON object"));
            drawObj.spans.push_back(document.object());
        });
    rows.finish();
}

} // namespace hbx::embedded

#include "platform/embedded/HBXDatabaseReader.h"

#include "platform/dwgx/Reason.h"
#include "platform/embedded/DatabaseLinks.h"
#include "platform/embedded/DatabasePropertyReader.h"
#include "platform/embedded/DatabaseRefusal.h"
#include "platform/embedded/DatabaseRows.h"
#include "platform/embedded/ExchangeSpan.h"
#include "platform/embedded/HBXPropertyCatalogue.h"
#include "platform/embedded/StoredGeometry.h"

#include <QJsonDocument>

namespace hbx::embedded {
namespace {

// The columns of each table that are read behind those of its key, and below them their numbers, key included.

const TypeProperties &catalogueOf(const DatabaseRows &rows, int typeColumn)
{
    const qint64 type = rows.row().integer(typeColumn);
    const TypeProperties *properties = HBXPropertyCatalogue::instance().properties(type);
    if (!properties)
        rows.refuse(typeColumn, dwgx::Reason::tr("is no type that the host knows: %1").arg(type));
    return *properties;
}

/** The geometry of a text column; null for NULL. */
template <typename Geometry> vks::CRefPtr<Geometry> readGeometry(const DatabaseRows &rows, int column)
{
    if (rows.row().isNull(column))
        return nullptr;
    vks::CRefPtr<Geometry> geometry = storedGeometry<Geometry>(rows.row().bytes(column));
    if (!geometry)
        rows.refuse(column, dwgx::Reason::tr("is not the text of its geometry"));
    return geometry;
}

namespace floorTable {
constexpr char kColumns[] = "region_id, name, code, bottom_elev, height, standard_floor_count, foundation, remark";
enum { kId, kRegion, kName, kCode, kBottomElev, kHeight, kStandardFloorCount, kFoundation, kRemark };
} // namespace floorTable

FloorRecord readFloor(const DatabaseRows &rows)
{
    using namespace floorTable;
    FloorRecord floor;
    floor.id = rows.integer32(kId);
    floor.regionId = rows.link(kRegion);
    floor.name = rows.row().text(kName);
    floor.code = rows.row().text(kCode);
    floor.bottomElev = rows.number(kBottomElev);
    floor.height = rows.number(kHeight);
    floor.standardFloorCount = rows.integer32(kStandardFloorCount);
    floor.foundation = rows.row().integer(kFoundation) != 0;
    floor.remark = rows.row().text(kRemark);
    return floor;
}

constexpr char kPropertyColumns[] = "name, value";

namespace elementTable {
constexpr char kColumns[] = "floor_id, parent_id, name, type, sub_type, order_number";
enum { kId, kFloor, kParent, kName, kType, kSubType, kOrderNumber };
} // namespace elementTable

/** All but the properties. */
void readElement(const DatabaseRows &rows, ElementRecord &element)
{
    using namespace elementTable;
    element.id = rows.id();
    element.floorId = rows.integer32(kFloor);
    element.parentId = rows.link(kParent);
    element.name = rows.row().text(kName);
    element.type = rows.row().integer(kType);
    element.subType = rows.row().integer(kSubType);
    element.orderNumber = rows.integer32(kOrderNumber);
}

namespace drawObjTable {
constexpr char kColumns[] = "element_id, type, sub_type, next_id, owner_id, attached_to, section_number, section_kind,"
                            " layer, state, exchange_key";
enum { kId, kElement, kType, kSubType, kNext, kOwner, kAttachedTo, kSectionNumber, kSectionKind, kLayer, kState, kKey };
} // namespace drawObjTable

/** What stands in the row of a draw object itself. */
void readDrawObj(const DatabaseRows &rows, DrawObjRecord &drawObj)
{
    using namespace drawObjTable;
    drawObj.id = rows.id();
    drawObj.elementId = rows.link(kElement);
    drawObj.type = rows.row().integer(kType);
    drawObj.subType = rows.row().integer(kSubType);
    drawObj.next = rows.link(kNext);
    drawObj.owner = rows.link(kOwner);
    drawObj.attachedTo = rows.link(kAttachedTo);
    if (!rows.row().isNull(kSectionNumber))
        drawObj.section = SectionRecord{rows.row().integer(kSectionNumber), rows.integer32(kSectionKind)};
    drawObj.layer = rows.integer32(kLayer);
    drawObj.state = rows.integer32(kState);
    drawObj.key = rows.row().text(kKey);
}

namespace shapeTable {
constexpr char kColumns[] = "kind, outline, curve, width, distance_to_left, height, insert_x, insert_y, angle, mirror,"
                            " origin_x, origin_y, origin_z, u_x, u_y, u_z, v_x, v_y, v_z";
enum {
    kId,
    kKind,
    kOutline,
    kCurve,
    kWidth,
    kDistanceToLeft,
    kHeight,
    kInsertX,
    kInsertY,
    kAngle,
    kMirror,
    kOrigin,
    kU = kOrigin + 3,
    kV = kU + 3
};
} // namespace shapeTable

vks::CVec3<double> readVector(const DatabaseRows &rows, int firstColumn)
{
    double terms[3];
    for (int i = 0; i < 3; ++i) {
        if (rows.row().isNull(firstColumn + i))
            rows.refuse(firstColumn + i, dwgx::Reason::tr("is missing"));
        terms[i] = rows.number(firstColumn + i);
    }
    return {terms[0], terms[1], terms[2]};
}

void readShape(const DatabaseRows &rows, ShapeRecord &shape)
{
    using namespace shapeTable;
    const int kind = rows.integer32(kKind);
    if (kind < IHBXShape::kPoint || kind > IHBXShape::kGrid)
        rows.refuse(kKind, dwgx::Reason::tr("is no kind of shape"));
    shape.kind = static_cast<IHBXShape::Kind>(kind);
    shape.outline = readGeometry<vks::CPolygon>(rows, kOutline);
    shape.curve = readGeometry<vks::CCurve2d>(rows, kCurve);
    shape.width = rows.number(kWidth);
    if (!rows.row().isNull(kDistanceToLeft))
        shape.distanceToLeft = rows.number(kDistanceToLeft);
    shape.height = rows.number(kHeight);
    shape.insertPoint = {rows.number(kInsertX), rows.number(kInsertY)};
    shape.angle = rows.number(kAngle);
    shape.mirror = rows.row().integer(kMirror) != 0;
    if (!rows.row().isNull(kOrigin))
        shape.coordinates = {readVector(rows, kOrigin), readVector(rows, kU), readVector(rows, kV)};
}

namespace axisTable {
constexpr char kKey[] = "draw_object_id, axis_group, position, curve_position";
constexpr char kColumns[] = "label, curve";
enum { kId, kGroup, kPosition, kCurvePosition, kLabel, kCurve };
} // namespace axisTable

void readAxis(const DatabaseRows &rows, ShapeRecord &shape)
{
    using namespace axisTable;
    const qint64 group = rows.row().integer(kGroup);
    if (group < 0 || group >= IHBXAxisGrid::kGroupCount)
        rows.refuse(kGroup, dwgx::Reason::tr("is no group of axes"));
    std::vector<HBXAxis> &axes = shape.axes[static_cast<std::size_t>(group)];
    const bool isFurtherCurve = rows.row().integer(kCurvePosition) != 0;
    if (!isFurtherCurve)
        axes.push_back({rows.row().text(kLabel), {}});
    if (axes.empty())
        rows.refuse(kCurvePosition, dwgx::Reason::tr("has no axis in front of it"));
    axes.back().curves.push_back(readGeometry<vks::CCurve2d>(rows, kCurve));
}

QJsonObject readSpan(const DatabaseRows &rows)
{
    enum { kId, kPosition, kRecord };
    const std::string_view text = rows.row().bytes(kRecord);
    const auto document = QJsonDocument::fromJson({text.data(), static_cast<int>(text.size())});
    if (!document.isObject())
        rows.refuse(kRecord, dwgx::Reason::tr("is no JSON object"));
    try {
        return spanFromJson(document.object(), dwgx::JsonPlace());
    } catch (const dwgx::JsonRefusal &refusal) {
        rows.refuse(kRecord, QStringLiteral("%1 %2").arg(refusal.place, refusal.reason).trimmed());
    }
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
    enum { kId, kName, kSource, kPlaneRule, kNextId, kSaveMark };
    DatabaseRows rows(m_connection, "project", "id", "name, source, plane_rule, next_id, save_mark");
    if (!rows.next())
        throw DatabaseRefusal{QStringLiteral("project"), dwgx::Reason::tr("has no row")};
    const SqliteStatement &row = rows.row();
    m_project.name = row.text(kName);
    m_project.source = row.text(kSource);
    m_project.planeRule = row.text(kPlaneRule);
    m_project.nextId = row.integer(kNextId);
    m_saveMark = row.integer(kSaveMark);
}

void HBXDatabaseReader::readTables()
{
    DatabaseRows options(m_connection, "identify_option", "position", "group_name, name, value");
    while (options.next())
        m_project.options.push_back({options.row().text(1), options.row().text(2), options.row().text(3)});
    DatabaseRows materials(m_connection, "material", "number", "name");
    while (materials.next())
        m_project.materials.push_back({materials.integer32(0), materials.row().text(1)});
}

void HBXDatabaseReader::readRegions()
{
    DatabaseRows rows(m_connection, "region", "id", "name");
    while (rows.next())
        m_project.regions.push_back({rows.id(), rows.row().text(1)});
}

void HBXDatabaseReader::readFloors()
{
    DatabaseRows rows(m_connection, "floor", "id", floorTable::kColumns);
    while (rows.next())
        m_project.floors.push_back(readFloor(rows));
}

void HBXDatabaseReader::readElements()
{
    DatabaseRows rows(m_connection, "element", "id", elementTable::kColumns);
    DatabasePropertyReader propertyReader(false);
    OwnedRows properties(m_connection, "element_property", "element_id, position", kPropertyColumns);
    while (rows.next()) {
        ElementRecord element;
        readElement(rows, element);
        const TypeProperties &type = catalogueOf(rows, elementTable::kType);
        properties.forOwner(
            element.id, [&](const DatabaseRows &property) { propertyReader.read(property, type, element.properties); });
        m_project.elements.push_back(std::move(element));
    }
    properties.finish();
}

void HBXDatabaseReader::readDrawObjs()
{
    m_project.drawObjs.reserve(rowCount(m_connection, "SELECT count(*) FROM draw_object"));
    DatabaseRows rows(m_connection, "draw_object", "id", drawObjTable::kColumns);
    DatabasePropertyReader propertyReader(true);
    OwnedRows properties(m_connection, "draw_object_property", "draw_object_id, position", kPropertyColumns);
    while (rows.next()) {
        DrawObjRecord &drawObj = m_project.drawObjs.emplace_back();
        readDrawObj(rows, drawObj);
        const TypeProperties &type = catalogueOf(rows, drawObjTable::kType);
        properties.forOwner(
            drawObj.id, [&](const DatabaseRows &property) { propertyReader.read(property, type, drawObj.properties); });
    }
    properties.finish();
}

void HBXDatabaseReader::readShapes()
{
    OwnedRows rows(m_connection, "shape", "draw_object_id", shapeTable::kColumns);
    for (DrawObjRecord &drawObj : m_project.drawObjs) {
        bool isThere = false;
        rows.forOwner(drawObj.id, [&](const DatabaseRows &shape) {
            readShape(shape, drawObj.shape);
            isThere = true;
        });
        if (!isThere)
            throw DatabaseRefusal{QStringLiteral("draw_object[id=%1]").arg(drawObj.id),
                                  dwgx::Reason::tr("has no shape")};
    }
    rows.finish();
}

void HBXDatabaseReader::readAxes()
{
    OwnedRows rows(m_connection, "shape_axis", axisTable::kKey, axisTable::kColumns);
    for (DrawObjRecord &drawObj : m_project.drawObjs)
        rows.forOwner(drawObj.id, [&](const DatabaseRows &axis) { readAxis(axis, drawObj.shape); });
    rows.finish();
}

void HBXDatabaseReader::readSpans()
{
    OwnedRows rows(m_connection, "span", "draw_object_id, position", "record");
    for (DrawObjRecord &drawObj : m_project.drawObjs)
        rows.forOwner(drawObj.id, [&](const DatabaseRows &span) { drawObj.spans.push_back(readSpan(span)); });
    rows.finish();
}

} // namespace hbx::embedded

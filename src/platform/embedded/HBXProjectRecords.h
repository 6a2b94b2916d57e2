#pragma once

#include "platform/geometry/CCoord3.h"
#include "platform/geometry/CPolygon.h"
#include "platform/host/IHBXAxisGrid.h"
#include "platform/host/IHBXShape.h"
#include "platform/services/HBXMaterial.h"

#include <QJsonObject>
#include <QString>

#include <array>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

/** A project as plain data: what the exchange file, the database and the model in memory pass to each other.
 *
 *  Lengths are millimetres, floor elevations and heights metres, angles radians. Records that refer to others do so by
 *  id; a record fresh from an exchange file carries ids that count up from 1 in the order of creation. Geometry is
 *  shared by reference and never changed in place. */
namespace hbx::embedded {

/** A property's value; monostate is a property without one. Elevations are kept as text. */
using PropertyValue = std::variant<std::monostate, int, double, QString, vks::CVec2<double>,
                                   vks::CRefPtr<vks::CCurve2d>, vks::CRefPtr<vks::CPolygon>>;

/** Own values of an object by catalogue name, in the order in which they were given; a name stands once. */
using PropertyRecords = std::vector<std::pair<QString, PropertyValue>>;

struct ShapeRecord
{
    IHBXShape::Kind kind = IHBXShape::kPoint;
    vks::CRefPtr<vks::CPolygon> outline;  ///< face, point, section, plan area, grid; null: never set
    vks::CRefPtr<vks::CCurve2d> curve;    ///< line solid's axis, plan line; null: never set
    double width = 0.0;                   ///< line
    std::optional<double> distanceToLeft; ///< line; absent: half the width
    double height = 0.0;                  ///< face, signed
    vks::CVec2<double> insertPoint;       ///< point, section
    double angle = 0.0;                   ///< point, section
    bool mirror = false;                  ///< point, section
    std::array<std::vector<HBXAxis>, IHBXAxisGrid::kGroupCount> axes; ///< grid
    std::optional<vks::CCoord3<double>> coordinates;                  ///< absent: the world
};

struct SectionRecord
{
    qint64 number = 0;
    int kind = 0;
};

struct DrawObjRecord
{
    qint64 id = 0;
    qint64 elementId = 0;
    qint64 type = 0;
    qint64 subType = 0;
    ShapeRecord shape;
    PropertyRecords properties;
    qint64 next = 0;                ///< next object of the chain, 0 none
    qint64 owner = 0;               ///< of a child: the object of the owning element, 0 none
    qint64 attachedTo = 0;          ///< wall of an opening, slab of a hole; 0 none
    std::vector<QJsonObject> spans; ///< on the head of a beam chain
    std::optional<SectionRecord> section;
    int layer = 0;
    int state = 0;
    QString key; ///< name in the exchange file by which others refer to it; empty: none
};

struct ElementRecord
{
    qint64 id = 0;
    int floorId = 0;
    qint64 parentId = 0; ///< owner of a unit, 0 none
    QString name;
    qint64 type = 0;
    qint64 subType = 0;
    int orderNumber = 0;
    PropertyRecords properties;
};

struct FloorRecord
{
    int id = 0;
    qint64 regionId = 0;
    QString name;
    QString code;
    double bottomElev = 0.0;
    double height = 0.0;
    int standardFloorCount = 1;
    bool foundation = false;
    QString remark;
};

struct RegionRecord
{
    qint64 id = 0;
    QString name;
};

struct OptionRecord
{
    QString group;
    QString name;
    QString value;
};

using MaterialRecord = HBXMaterial;

/** What a project says of itself as a whole. */
struct ProjectSettings
{
    QString name;
    QString source; ///< where the building comes from, and its licence
    QString planeRule;
    std::vector<OptionRecord> options; ///< in table order; a name may stand twice
    std::vector<MaterialRecord> materials;
};

struct ProjectRecord : ProjectSettings
{
    std::vector<RegionRecord> regions;
    std::vector<FloorRecord> floors;
    std::vector<ElementRecord> elements; ///< in id order
    std::vector<DrawObjRecord> drawObjs; ///< in id order
    qint64 nextId = 1;                   ///< first id that was never used
};

/** What a save writes: of content, the name, source, plane rule and next id, and the elements and draw objects that are
 *  new or changed; its other members only where they are said to stand in it. */
struct ProjectUpdate
{
    ProjectRecord content;
    bool hasOptions = false;
    bool hasMaterials = false;
    std::vector<qint64> removedElements;
    std::vector<qint64> removedDrawObjs;
};

} // namespace hbx::embedded

#include "drawing/ORVCADFloorSDCData.h"

#include "drawing/DrawingKeys.h"
#include "encoding/RecordFields.h"

#include <limits>
#include <tuple>

using namespace encoding;
namespace key = drawing::key;

namespace {

// What the reading of a number falls back to, and so what is refused where it stands in the document.
constexpr int kNoInteger = std::numeric_limits<int>::min();
constexpr double kNoNumber = std::numeric_limits<double>::lowest();

template <typename T> bool setWholeNumber(const QJsonValue &json, ORVCADFloorSDCData::Data<T> &data)
{
    const int value = json.isDouble() ? json.toInt(kNoInteger) : kNoInteger;
    if (value == kNoInteger)
        return false;
    data.set(value);
    return true;
}

} // namespace

/** A field without a value is not written. Reading goes by setJsonValueToData. */
template <typename T> struct encoding::ValueKind<ORVCADFloorSDCData::Data<T>>
{
    static QJsonValue toValue(const ORVCADFloorSDCData::Data<T> &data)
    {
        return data.null ? QJsonValue(QJsonValue::Undefined) : QJsonValue(data.value);
    }
};

struct ORVCADFloorSDCData::Fields
{
    using Joint = ConcreteAnchorJoint;

    static constexpr auto region = std::make_tuple(field(key::id, &Region::ID), //
                                                   field(key::description, &Region::Description));

    static constexpr auto joint = std::make_tuple(
        field(key::typeId, &Joint::TypeID), field(key::basicElementTypeId, &Joint::BasicElementTypeID),
        field(key::concGradeId, &Joint::ConcGradeID), field(key::concTypeId, &Joint::ConcTypeID),
        field(key::mortarGradeId, &Joint::MortarGradeID), field(key::mortarTypeId, &Joint::MortarTypeID),
        field(key::aseismicLevelId, &Joint::AseismicLevelID), field(key::anchor1, &Joint::Anchor1),
        field(key::anchor2, &Joint::Anchor2), field(key::anchor3, &Joint::Anchor3),
        field(key::anchor4, &Joint::Anchor4), field(key::anchor5, &Joint::Anchor5),
        field(key::anchor6, &Joint::Anchor6), field(key::joint1, &Joint::Joint1), field(key::joint2, &Joint::Joint2),
        field(key::joint3, &Joint::Joint3), field(key::joint4, &Joint::Joint4), field(key::joint5, &Joint::Joint5),
        field(key::joint6, &Joint::Joint6), field(key::protectiveLayerThickness, &Joint::ProtectiveLayerThickness),
        field(key::remark, &Joint::Remark));

    static constexpr auto floor = std::make_tuple(
        field(key::id, &Floor::ID), field(key::description, &Floor::Description), field(key::height, &Floor::Height),
        field(key::stdFloorCount, &Floor::StdFloorCount), field(key::structuralElevation, &Floor::StructuralElevation),
        field(key::startFloorNo, &Floor::StartFloorNo), field(key::remark, &Floor::Remark),
        field(key::code, &Floor::Code), field(key::slabThickness, &Floor::SlabThickness),
        field(key::floorArea, &Floor::FloorArea), field(key::relatedFloorId, &Floor::RelatedFloorID));
};

ORVCADFloorSDCData::ORVCADFloorSDCData()
    : m_floorsKey(key::floorSdcData), m_regionKey(key::region), m_jointsKey(key::concreteAnchorJoint)
{}

// Writing.

QJsonObject ORVCADFloorSDCData::serialize(const std::vector<Floor> &floors) const
{
    QJsonArray array;
    for (const Floor &floor : floors)
        array.append(serializeFloor(floor));
    return {{m_floorsKey, array}};
}

QJsonObject ORVCADFloorSDCData::serializeFloor(const Floor &floor) const
{
    QJsonObject json = writtenFields(floor, Fields::floor);
    json.insert(m_regionKey, serializeRegion(floor.Region));
    if (!floor.ConcreteAnchorJoints.empty())
        json.insert(m_jointsKey, serializeConcreteAnchorJoints(floor.ConcreteAnchorJoints));
    return json;
}

QJsonObject ORVCADFloorSDCData::serializeRegion(const Region &region) const
{
    return writtenFields(region, Fields::region);
}

QJsonObject ORVCADFloorSDCData::serializeConcreteAnchorJoint(const ConcreteAnchorJoint &joint) const
{
    return writtenFields(joint, Fields::joint);
}

QJsonArray ORVCADFloorSDCData::serializeConcreteAnchorJoints(const std::vector<ConcreteAnchorJoint> &joints) const
{
    QJsonArray array;
    for (const ConcreteAnchorJoint &joint : joints)
        array.append(serializeConcreteAnchorJoint(joint));
    return array;
}

// Reading.

bool ORVCADFloorSDCData::setJsonValueToData(const QJsonValue &json, Data<int> &data) const
{
    return setWholeNumber(json, data);
}

bool ORVCADFloorSDCData::setJsonValueToData(const QJsonValue &json, Data<qint64> &data) const
{
    return setWholeNumber(json, data); // meant: 32 bits here too
}

bool ORVCADFloorSDCData::setJsonValueToData(const QJsonValue &json, Data<double> &data) const
{
    const double value = json.toDouble(kNoNumber);
    if (!json.isDouble() || !(value > kNoNumber))
        return false;
    data.set(value);
    return true;
}

bool ORVCADFloorSDCData::setJsonValueToData(const QJsonValue &json, Data<QString> &data) const
{
    const QString value = json.toString(); // null for what is no text
    if (!value.isNull())
        data.set(value);
    return true; // meant: a text field is never a reason to refuse
}

/** The fields in the order of the table, as far as they are taken; a missing key is no fault. */
template <typename Table, typename Record>
bool ORVCADFloorSDCData::readFields(const QJsonObject &json, const Table &table, Record &record) const
{
    const auto readField = [&](const auto &row) {
        const QJsonValue value = json.value(row.key);
        return value.isUndefined() || setJsonValueToData(value, record.*row.member);
    };
    return std::apply([&](const auto &...rows) { return (readField(rows) && ...); }, table);
}

std::vector<ORVCADFloorSDCData::Floor> ORVCADFloorSDCData::unserialize(const QJsonObject &document, bool &ok) const
{
    ok = false;
    std::vector<Floor> floors;
    const QJsonValue value = document.value(m_floorsKey);
    if (document.size() != 1 || !value.isArray())
        return floors;
    const QJsonArray array = value.toArray();
    for (const QJsonValue element : array) {
        Floor floor;
        if (!unserializeFloor(element, floor))
            return floors; // meant: those in front of it are given all the same
        floors.push_back(std::move(floor));
    }
    ok = true;
    return floors;
}

bool ORVCADFloorSDCData::unserializeFloor(const QJsonValue &json, Floor &floor) const
{
    const QJsonObject object = json.toObject(); // empty for what is none, and an empty one has no "Region"
    return readFields(object, Fields::floor, floor) && unserializeRegion(object, floor.Region) &&
           unserializeConcreteAnchorJoints(object, floor.ConcreteAnchorJoints);
}

bool ORVCADFloorSDCData::unserializeRegion(const QJsonObject &floor, Region &region) const
{
    const QJsonValue value = floor.value(m_regionKey);
    return value.isObject() && readFields(value.toObject(), Fields::region, region);
}

bool ORVCADFloorSDCData::unserializeConcreteAnchorJoint(const QJsonValue &json, ConcreteAnchorJoint &joint) const
{
    return json.isObject() && readFields(json.toObject(), Fields::joint, joint);
}

bool ORVCADFloorSDCData::unserializeConcreteAnchorJoints(const QJsonObject &floor,
                                                         std::vector<ConcreteAnchorJoint> &joints) const
{
    const QJsonValue value = floor.value(m_jointsKey);
    if (!value.isArray())
        return value.isUndefined();
    const QJsonArray array = value.toArray();
    for (const QJsonValue element : array) {
        ConcreteAnchorJoint joint;
        if (!unserializeConcreteAnchorJoint(element, joint))
            return false;
        joints.push_back(std::move(joint));
    }
    return true;
}

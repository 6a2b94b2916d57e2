#include "platform/embedded/ExchangeShape.h"

#include "platform/dwgx/Reason.h"
#include "platform/embedded/ExchangeFormat.h"
#include "platform/embedded/ExchangeGeometry.h"

#include <initializer_list>
#include <iterator>

namespace hbx::embedded {
namespace {

namespace key = exchange::key;

vks::CRefPtr<vks::CPolygon> outlineOf(const ExchangeObject &json)
{
    return json.has(key::outline) ? polygonFromJson(json.value(key::outline), json.placeOf(key::outline)) : nullptr;
}

vks::CRefPtr<vks::CCurve2d> curveOf(const ExchangeObject &json, QLatin1String member)
{
    return json.has(member) ? placedCurveFromJson(json.value(member), json.placeOf(member)) : nullptr;
}

vks::CVec3<double> vectorOf(const ExchangeObject &json, QLatin1String member)
{
    const std::vector<double> terms = json.numbers(member, 3);
    return {terms[0], terms[1], terms[2]};
}

void readCoordinates(const ExchangeObject &shape, ShapeRecord &record)
{
    if (!shape.has(key::coordinates))
        return;
    const JsonPlace place = shape.placeOf(key::coordinates);
    const ExchangeObject json(shape.value(key::coordinates), place, {key::origin, key::u, key::v});
    record.coordinates = {vectorOf(json, key::origin), vectorOf(json, key::u), vectorOf(json, key::v)};
}

void readFace(const ExchangeObject &json, ShapeRecord &record)
{
    record.outline = outlineOf(json);
    record.height = json.numberOr(key::height, 0.0);
}

void readLine(const ExchangeObject &json, ShapeRecord &record)
{
    record.curve = curveOf(json, key::axis);
    record.width = json.numberOr(key::width, 0.0);
    if (record.width < 0.0)
        json.placeOf(key::width).refuse(dwgx::Reason::tr("is below 0"));
    if (json.has(key::distanceToLeft))
        record.distanceToLeft = json.number(key::distanceToLeft);
}

void readPoint(const ExchangeObject &json, ShapeRecord &record)
{
    record.outline = outlineOf(json);
    if (json.has(key::insertPoint))
        record.insertPoint = pointFromJson(json.value(key::insertPoint), json.placeOf(key::insertPoint));
    record.angle = json.numberOr(key::angle, 0.0);
    record.mirror = json.flagOr(key::mirror, false);
}

void readArea(const ExchangeObject &json, ShapeRecord &record) { record.outline = outlineOf(json); }

void readPlanCurve(const ExchangeObject &json, ShapeRecord &record) { record.curve = curveOf(json, key::curve); }

HBXAxis axisFromJson(const QJsonValue &value, const JsonPlace &place)
{
    const ExchangeObject json(value, place, {key::label, key::curve});
    const auto curve = placedCurveFromJson(json.value(key::curve), json.placeOf(key::curve));
    if (!curve)
        json.placeOf(key::curve).refuse(dwgx::Reason::tr("is not the text of a curve"));
    return {json.text(key::label), {curve}};
}

void readGrid(const ExchangeObject &json, ShapeRecord &record)
{
    record.outline = outlineOf(json);
    if (json.has(key::axes) && json.array(key::axes).size() != IHBXAxisGrid::kGroupCount)
        json.placeOf(key::axes).refuse(dwgx::Reason::tr("is not an array of 4 lists"));
    json.each(key::axes, [&](const QJsonValue &group, const JsonPlace &place, int index) {
        if (!group.isArray())
            place.refuse(dwgx::Reason::tr("is not an array"));
        const QJsonArray axes = group.toArray();
        for (int i = 0; i < axes.size(); ++i)
            record.axes[static_cast<std::size_t>(index)].push_back(axisFromJson(axes.at(i), {place, i}));
    });
}

void writeFace(const ShapeRecord &record, QJsonObject &json)
{
    json.insert(key::outline, geometryToJson(record.outline));
    json.insert(key::height, record.height);
}

void writeLine(const ShapeRecord &record, QJsonObject &json)
{
    json.insert(key::axis, geometryToJson(record.curve));
    json.insert(key::width, record.width);
    if (record.distanceToLeft)
        json.insert(key::distanceToLeft, *record.distanceToLeft);
}

void writePoint(const ShapeRecord &record, QJsonObject &json)
{
    json.insert(key::outline, geometryToJson(record.outline));
    json.insert(key::insertPoint, pointToJson(record.insertPoint));
    if (record.angle != 0.0)
        json.insert(key::angle, record.angle);
    if (record.mirror)
        json.insert(key::mirror, true);
}

void writeArea(const ShapeRecord &record, QJsonObject &json)
{
    json.insert(key::outline, geometryToJson(record.outline));
}

void writePlanCurve(const ShapeRecord &record, QJsonObject &json)
{
    json.insert(key::curve, geometryToJson(record.curve));
}

void writeAxis(const HBXAxis &axis, QJsonArray &axes)
{
    for (const auto &curve : axis.curves)
        axes.append(QJsonObject{{key::label, axis.label}, {key::curve, geometryToJson(curve)}});
}

void writeGrid(const ShapeRecord &record, QJsonObject &json)
{
    QJsonArray groups;
    for (const auto &group : record.axes) {
        QJsonArray axes;
        for (const HBXAxis &axis : group)
            writeAxis(axis, axes);
        groups.append(axes);
    }
    json.insert(key::outline, geometryToJson(record.outline));
    json.insert(key::axes, groups);
}

struct ShapeForm
{
    QLatin1String word;
    IHBXShape::Kind kind;
    std::initializer_list<QLatin1String> members;
    void (*read)(const ExchangeObject &json, ShapeRecord &record);
    void (*write)(const ShapeRecord &record, QJsonObject &json);
};

const std::initializer_list<QLatin1String> kFaceMembers{key::kind, key::coordinates, key::outline, key::height};
const std::initializer_list<QLatin1String> kLineMembers{key::kind, key::coordinates, key::axis, key::width,
                                                        key::distanceToLeft};
const std::initializer_list<QLatin1String> kPointMembers{key::kind,        key::coordinates, key::outline,
                                                         key::insertPoint, key::angle,       key::mirror};
const std::initializer_list<QLatin1String> kAreaMembers{key::kind, key::coordinates, key::outline};
const std::initializer_list<QLatin1String> kCurveMembers{key::kind, key::coordinates, key::curve};
const std::initializer_list<QLatin1String> kGridMembers{key::kind, key::coordinates, key::outline, key::axes};

const ShapeForm kForms[] = {
    {QLatin1String("face"), IHBXShape::kFace, kFaceMembers, readFace, writeFace},
    {QLatin1String("line"), IHBXShape::kLine, kLineMembers, readLine, writeLine},
    {QLatin1String("point"), IHBXShape::kPoint, kPointMembers, readPoint, writePoint},
    {QLatin1String("section"), IHBXShape::kSection, kPointMembers, readPoint, writePoint},
    {QLatin1String("face2d"), IHBXShape::kPlanArea, kAreaMembers, readArea, writeArea},
    {QLatin1String("line2d"), IHBXShape::kPlanLine, kCurveMembers, readPlanCurve, writePlanCurve},
    {QLatin1String("grid"), IHBXShape::kGrid, kGridMembers, readGrid, writeGrid},
};

const ShapeForm &formOf(const QJsonValue &value, const JsonPlace &place)
{
    if (!value.isObject())
        place.refuse(dwgx::Reason::tr("is not an object"));
    const QJsonObject object = value.toObject();
    const auto kind = object.constFind(key::kind);
    if (kind == object.constEnd())
        place.refuse(dwgx::Reason::tr("has no \"kind\""));
    const QString word = kind->toString();
    for (const ShapeForm &form : kForms)
        if (word == form.word)
            return form;
    JsonPlace(place, key::kind).refuse(dwgx::Reason::tr("is none of face, line, point, section, face2d, line2d, grid"));
}

QJsonArray vectorToJson(const vks::CVec3<double> &vector) { return {vector.x, vector.y, vector.z}; }

} // namespace

ShapeRecord shapeFromJson(const QJsonValue &value, const JsonPlace &place)
{
    const ShapeForm &form = formOf(value, place);
    const ExchangeObject json(value, place, form.members);
    ShapeRecord record;
    record.kind = form.kind;
    form.read(json, record);
    readCoordinates(json, record);
    return record;
}

QJsonObject shapeToJson(const ShapeRecord &shape)
{
    QJsonObject json;
    for (const ShapeForm &form : kForms) {
        if (form.kind != shape.kind)
            continue;
        json.insert(key::kind, form.word);
        form.write(shape, json);
    }
    if (shape.coordinates)
        json.insert(key::coordinates, QJsonObject{{key::origin, vectorToJson(shape.coordinates->origin)},
                                                  {key::u, vectorToJson(shape.coordinates->u)},
                                                  {key::v, vectorToJson(shape.coordinates->v)}});
    return json;
}

} // namespace hbx::embedded

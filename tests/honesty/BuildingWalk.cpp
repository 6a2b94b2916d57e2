#include "BuildingWalk.h"

#include "CommandRun.h"

#include <QJsonArray>

#include <numeric>

namespace honestytest {

namespace {

int typeOf(const QJsonValue &object, int otherwise)
{
    return object.toObject().contains("type") ? object["type"].toInt() : otherwise;
}

void countObject(const QJsonValue &object, const QJsonValue &element, BuildingWalk::Floor &floor)
{
    ++floor.drawObjs[typeOf(object, element["type"].toInt())];
    for (const QJsonValue child : object["children"].toArray())
        ++floor.children[typeOf(child, element["units"][child["unit"].toInt()]["type"].toInt())];
    const QJsonObject shape = object["shape"].toObject();
    const bool hasGeometry = !shape["outline"].isNull() && !shape["axis"].isNull() && !shape["curve"].isNull();
    floor.withoutGeometry += hasGeometry ? 0 : 1;
}

int sumOf(const QMap<int, int> &counts) { return std::accumulate(counts.begin(), counts.end(), 0); }

} // namespace

BuildingWalk::BuildingWalk(const QJsonObject &building) : regions(building["regions"].toArray().size())
{
    for (const QJsonValue region : building["regions"].toArray())
        for (const QJsonValue value : region["floors"].toArray()) {
            Floor floor;
            floor.region = region["name"].toString();
            floor.name = value["name"].toString();
            floor.code = value["code"].toString();
            for (const QJsonValue element : value["elements"].toArray()) {
                ++floor.elements[element["type"].toInt()];
                for (const QJsonValue unit : element["units"].toArray())
                    ++floor.units[unit["type"].toInt()];
                for (const QJsonValue object : element["drawObjects"].toArray())
                    countObject(object, element, floor);
            }
            floors.push_back(floor);
        }
}

int BuildingWalk::elements() const
{
    int sum = 0;
    for (const Floor &floor : floors)
        sum += sumOf(floor.elements) + sumOf(floor.units);
    return sum;
}

int BuildingWalk::drawObjs() const
{
    int sum = 0;
    for (const Floor &floor : floors)
        sum += sumOf(floor.drawObjs) + sumOf(floor.children);
    return sum;
}

int BuildingWalk::placed(const Floor &floor, const std::vector<int> &types)
{
    int sum = 0;
    for (const int type : types)
        sum += floor.drawObjs.value(type);
    return sum;
}

int BuildingWalk::placed(const std::vector<int> &types) const
{
    int sum = 0;
    for (const Floor &floor : floors)
        sum += placed(floor, types);
    return sum;
}

QJsonObject sampleBuilding(const char *name)
{
    return fileObject(QStringLiteral(ORVCAD_TEST_DATA "/buildings/%1.json").arg(QLatin1String(name)));
}

} // namespace honestytest

#pragma once

#include "platform/embedded/HBXExchangeReader.h"
#include "platform/embedded/HBXProject.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

/** Documents of the exchange form for tests, and changes to them by place. */
namespace exchangetest {

inline QByteArray fileContent(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline QByteArray building(const std::string &name)
{
    return fileContent(QStringLiteral(ORVCAD_TEST_DATA "/buildings/%1.json").arg(QString::fromStdString(name)));
}

inline QJsonObject parsed(const QByteArray &json) { return QJsonDocument::fromJson(json).object(); }

/** What a building file holds, which must be sound. */
inline hbx::embedded::ProjectRecord recordOf(const QByteArray &json)
{
    hbx::embedded::ProjectError error;
    auto project = hbx::embedded::HBXExchangeReader::read(json, "house.json", error);
    EXPECT_TRUE(project) << error.text().toStdString();
    return project ? *project : hbx::embedded::ProjectRecord();
}

/** A project of a building file, which must be sound. */
inline std::unique_ptr<hbx::embedded::HBXProject> projectOf(const QByteArray &json)
{
    hbx::embedded::ProjectError error;
    auto project = hbx::embedded::HBXProject::fromJson(json, QStringLiteral("house.json"), error);
    EXPECT_TRUE(project) << error.text().toStdString();
    return project;
}

/** A building file without its elements of some types. */
inline QByteArray withoutElements(const QByteArray &json, const std::vector<int> &types)
{
    QJsonObject building = parsed(json);
    QJsonArray regions = building["regions"].toArray();
    for (QJsonValueRef region : regions) {
        QJsonObject regionObject = region.toObject();
        QJsonArray floors = regionObject["floors"].toArray();
        for (QJsonValueRef floor : floors) {
            QJsonObject floorObject = floor.toObject();
            QJsonArray kept;
            for (const QJsonValue element : floorObject["elements"].toArray())
                if (std::find(types.begin(), types.end(), element.toObject()["type"].toInt()) == types.end())
                    kept.append(element);
            floorObject["elements"] = kept;
            floor = floorObject;
        }
        regionObject["floors"] = floors;
        region = regionObject;
    }
    building["regions"] = regions;
    return QJsonDocument(building).toJson();
}

/** A document whose geometry texts have nothing but a comma between the rings of a polygon, as the kernel writes them;
 *  files may have a space there, too. */
inline QJsonObject withPlainRings(const QJsonObject &document)
{
    return parsed(QJsonDocument(document).toJson().replace("), ", "),"));
}

/** One floor with a part of each kind that others refer to, and an empty one above it. Ids after an import: region 1,
 *  floor 2, elements 3 to 13 (the unit of the foundation is 10), draw objects from 14 on, upper floor 27. */
inline const char kSmallBuilding[] = R"json({
  "format": "hbx-project", "version": 1, "name": "Small house", "source": "made for a test",
  "regions": [ { "name": "House", "floors": [
    { "name": "Level 1", "code": "1", "bottomElev": 0.0, "height": 3.1, "elements": [
      { "name": "Q-200", "type": 0, "subType": 7, "properties": { "Thickness": 200 }, "drawObjects": [
        { "shape": { "kind": "line", "axis": "LINESTRING(0 0, 5000 0)", "width": 200 } } ] },
      { "name": "M-1", "type": 4, "drawObjects": [
        { "shape": { "kind": "point", "outline": null, "insertPoint": [1500, 0] }, "attachedTo": [0, "Q-200", 0] } ] },
      { "name": "KL-1", "type": 15, "drawObjects": [
        { "shape": { "kind": "line", "axis": "LINESTRING(0 0, 5000 0)", "width": 300 }, "next": 1,
          "spans": [ { "SpanIndex": 1, "SpanLength": 5000, "Section": "300*600" } ] },
        { "shape": { "kind": "line", "axis": "LINESTRING(5000 0, 9000 0)", "width": 300 } } ] },
      { "name": "B-1", "type": 19, "properties": { "Thickness": 120 }, "drawObjects": [
        { "key": "slab", "shape": { "kind": "face", "outline": "POLYGON((0 0, 5000 0, 5000 4000, 0 4000, 0 0))",
          "height": -120 }, "properties": { "TopElev": "层顶标高", "ReinforcementInfo": "bar,1;" } } ] },
      { "name": "SLJ", "type": 22, "drawObjects": [
        { "key": "bar", "shape": { "kind": "face2d", "outline": "POLYGON((0 0, 5000 0, 5000 4000, 0 4000, 0 0))" },
          "properties": { "ReinforcementInfo": "slab,1;", "Catalog": "B-1[slab]", "Position": 1 } } ] },
      { "name": "FJ", "type": 23, "drawObjects": [
        { "shape": { "kind": "line2d", "curve": "LINESTRING(0 0, 5000 0)" },
          "properties": { "DependSlabID": "slab" } } ] },
      { "name": "DJ-1", "type": 52, "units": [ { "name": "DJ-1-1", "type": 82 } ], "drawObjects": [
        { "shape": { "kind": "point", "outline": null, "insertPoint": [0, 0] }, "children": [
          { "unit": 0, "shape": { "kind": "point", "outline": null, "insertPoint": [0, 0] } } ] } ] },
      { "name": "ZW-1", "type": 74, "drawObjects": [
        { "shape": { "kind": "grid", "outline": null,
          "axes": [ [ { "label": "A", "curve": "LINESTRING(0 0, 0 9000)" } ], [], [], [] ] } } ] },
      { "name": "BD-1", "type": 24, "drawObjects": [
        { "shape": { "kind": "section", "outline": null, "insertPoint": [1000, 1000] },
          "attachedTo": [19, "B-1", 0] } ] },
      { "name": "KZ-1", "type": 25, "drawObjects": [
        { "shape": { "kind": "point", "outline": null, "insertPoint": [0, 0],
          "coordinates": { "origin": [0, 0, 0], "u": [1, 0, 0], "v": [0, 1, 0] } },
          "section": { "number": 124, "kind": 8 }, "layer": 3, "state": 1 } ] } ] },
    { "name": "Level 2", "code": "2", "bottomElev": 3.1, "height": 3.0 } ] } ],
  "options": [ { "group": "BeamSetting", "name": "KL", "value": "WKL" } ],
  "materials": [ { "number": 1, "name": "C30" } ]
})json";

namespace detail {

/** Steps of a place: member names, and indices as their decimal text in brackets. */
inline QStringList steps(const QString &place)
{
    QStringList all;
    auto matches = QRegularExpression(QStringLiteral("\\[\\d+\\]|[^.\\[\\]]+")).globalMatch(place);
    while (matches.hasNext())
        all.append(matches.next().captured());
    return all;
}

inline QJsonValue changed(const QJsonValue &value, QStringList steps, const QJsonValue &replacement)
{
    if (steps.isEmpty())
        return replacement;
    const QString step = steps.takeFirst();
    if (step.startsWith('[')) {
        QJsonArray array = value.toArray();
        const int index = step.mid(1, step.size() - 2).toInt();
        const QJsonValue inner = changed(index < array.size() ? array.at(index) : QJsonValue(), steps, replacement);
        if (index < array.size())
            array.replace(index, inner);
        else
            array.append(inner);
        return array;
    }
    QJsonObject object = value.toObject();
    object.insert(step, changed(object.value(step), steps, replacement)); // an undefined value takes the member out
    return object;
}

} // namespace detail

/** The small building with a member set to a JSON text, or taken out where the text is empty. */
inline QByteArray smallBuildingWith(const QString &place, const QByteArray &jsonText)
{
    const QJsonArray wrapped = QJsonDocument::fromJson('[' + jsonText + ']').array();
    const QJsonValue replacement = wrapped.isEmpty() ? QJsonValue(QJsonValue::Undefined) : wrapped.at(0);
    const QJsonValue document = detail::changed(parsed(kSmallBuilding), detail::steps(place), replacement);
    return QJsonDocument(document.toObject()).toJson();
}

} // namespace exchangetest

#include "cli/DifferenceReport.h"

#include "ForeignMessages.h"

#include <gtest/gtest.h>

using orvcad::DifferenceReport;
using orvcad::ProjectDifference;
using State = ProjectDifference::State;

namespace {

/** A wall that is 40 mm thicker, and one more door. */
ProjectDifference someDifference()
{
    ProjectDifference::Element wall;
    wall.state = State::Changed;
    wall.type = 1003;
    wall.name = "Q1";
    wall.changes = {{"properties.Thickness", {"properties", "Thickness"}, 200, 240}};
    ProjectDifference::Element door;
    door.type = 4;
    door.name = "M1";
    door.objects = {{State::Added, 0, 12, {}},
                    {State::Changed, 7, 8, {{"layer", {"layer"}, QJsonValue::Undefined, 1}}}};
    ProjectDifference difference;
    difference.isById = true;
    difference.compared = 3;
    difference.elementCounts = {0, 0, 1};
    difference.objectCounts = {1, 0, 1};
    difference.regions = {{State::Same, "House", {{State::Same, 2, 2, "F", {}, {door, wall}}}}};
    return difference;
}

TEST(DifferenceReportTest, equalProjectsSaySo)
{
    ProjectDifference same;
    same.compared = 1;
    EXPECT_EQ(DifferenceReport(same).headline(), "The same: 1 placed object compared");
    EXPECT_EQ(DifferenceReport(same).listing(), "");
    EXPECT_TRUE(DifferenceReport(same).json()["same"].toBool());
}

TEST(DifferenceReportTest, headlineTellsWhatDiffersAndHowItWasMatched)
{
    ProjectDifference difference = someDifference();
    EXPECT_EQ(DifferenceReport(difference).headline(),
              "Different (matched by id): elements: 1 changed; placed objects: 1 added, 1 changed");
    difference.isById = false;
    difference.changes = {{"name", {"name"}, "A", "B"}};
    EXPECT_EQ(DifferenceReport(difference).headline(),
              "Different (matched by name and shape): the project itself; elements: 1 changed; "
              "placed objects: 1 added, 1 changed");
}

TEST(DifferenceReportTest, listingStandsByRegionFloorAndElement)
{
    const ProjectDifference difference = someDifference();
    EXPECT_EQ(DifferenceReport(difference).listing(), "  region House\n"
                                                      "    floor F\n"
                                                      "      door M1\n"
                                                      "      + object 12\n"
                                                      "      ~ object 8\n"
                                                      "          layer: nothing -> 1\n"
                                                      "    ~ brick wall Q1\n"
                                                      "        properties.Thickness: 200 -> 240");
}

TEST(DifferenceReportTest, jsonHasItsKeys)
{
    const ProjectDifference difference = someDifference();
    const QJsonObject json = DifferenceReport(difference).json();
    EXPECT_EQ(json.keys().join(' '), "changes compared counts matchedBy regions same");
    EXPECT_EQ(json["matchedBy"], "id");
    EXPECT_EQ(json["counts"].toObject()["drawObjects"], (QJsonObject{{"added", 1}, {"gone", 0}, {"changed", 1}}));
    const QJsonObject floor = json["regions"].toArray()[0].toObject()["floors"].toArray()[0].toObject();
    EXPECT_EQ(floor.keys().join(' '), "changes elements name state");
    const QJsonObject door = floor["elements"].toArray()[0].toObject();
    EXPECT_EQ(door.keys().join(' '), "changes drawObjects name state title type");
    EXPECT_EQ(door["drawObjects"].toArray()[0],
              (QJsonObject{{"state", "added"}, {"idAfter", 12}, {"changes", QJsonArray()}}));
    EXPECT_EQ(door["drawObjects"].toArray()[1].toObject()["changes"],
              (QJsonArray{QJsonObject{{"place", "layer"}, {"after", 1}}}));
}

TEST(DifferenceReportTest, jsonIsTheSameInEveryLanguage)
{
    const ProjectDifference difference = someDifference();
    const QJsonObject english = DifferenceReport(difference).json();
    const ForeignMessages messages;
    EXPECT_EQ(DifferenceReport(difference).json(), english);
    EXPECT_EQ(DifferenceReport(difference).headline(),
              QStringLiteral(
                  "文Different (matched by id): 文elements: 文1 changed; 文placed objects: 文1 added, 文1 changed"));
}

} // namespace

#include "cli/ProjectDifference.h"

#include "HouseFixture.h"

#include <QJsonArray>

using orvcad::ProjectDifference;
using State = ProjectDifference::State;

namespace {

class ProjectDifferenceTest : public HouseFixture
{
protected:
    static ProjectDifference difference(const Project &before, const Project &after)
    {
        return orvcad::differenceBetween(*before, *after);
    }
    static ProjectDifference difference(const QByteArray &before, const QByteArray &after)
    {
        return difference(houseOf(before), houseOf(after));
    }
    static std::vector<ProjectDifference::Element> elements(const ProjectDifference &found)
    {
        return found.regions.empty() ? std::vector<ProjectDifference::Element>()
                                     : found.regions.front().floors.front().elements;
    }
    static QStringList places(const ProjectDifference::Changes &changes)
    {
        QStringList places;
        for (const auto &change : changes)
            places.append(change.place);
        return places;
    }
    static bool is(const ProjectDifference::Counts &counts, int added, int gone, int changed)
    {
        return counts.added == added && counts.gone == gone && counts.changed == changed;
    }
    /** A building of the samples with one text in place of another. */
    static Project changedSample(const char *building, const QByteArray &from, const QByteArray &to)
    {
        QByteArray json = exchangetest::building(building);
        EXPECT_TRUE(json.contains(from));
        return exchangetest::projectOf(json.replace(json.indexOf(from), from.size(), to));
    }
};

TEST_F(ProjectDifferenceTest, everySampleIsTheSameAsItself)
{
    for (const char *building : {"duplex-apartment", "masonry-block", "precast-hall", "made-building"}) {
        const ProjectDifference found = difference(sampleOf(building), sampleOf(building));
        EXPECT_TRUE(found.isSame()) << building;
        EXPECT_GT(found.compared, 20) << building;
        EXPECT_TRUE(found.isById);
    }
}

TEST_F(ProjectDifferenceTest, elementsAreAddedGoneAndChanged)
{
    const auto found = difference(wall("Q1", "LINESTRING(0 0, 5000 0)") + ',' + column("K1", 0, 0),
                                  wall("Q1", "LINESTRING(0 0, 5000 0)").replace("200}, \"draw", "240}, \"draw") + ',' +
                                      column("K2", 0, 0, 26));
    ASSERT_EQ(elements(found).size(), 3U);
    EXPECT_TRUE(is(found.elementCounts, 1, 1, 1));
    EXPECT_TRUE(is(found.objectCounts, 1, 1, 0));
    const auto gone = elements(found)[0];
    EXPECT_EQ(gone.name, "K1");
    EXPECT_EQ(gone.state, State::Gone);
    EXPECT_EQ(gone.objects.front().idAfter, 0);
    const auto changed = elements(found)[2];
    EXPECT_EQ(changed.state, State::Changed);
    ASSERT_EQ(changed.changes.size(), 1U);
    EXPECT_EQ(changed.changes[0].place, "properties.Thickness");
    EXPECT_EQ(changed.changes[0].before, 200);
    EXPECT_EQ(changed.changes[0].after, 240);
}

TEST_F(ProjectDifferenceTest, shapeOfAnObjectIsToldFromWhatToWhat)
{
    const auto found = difference(wall("Q1", "LINESTRING(0 0, 5000 0)"), wall("Q1", "LINESTRING(0 0, 6000 0)"));
    ASSERT_EQ(elements(found).size(), 1U);
    EXPECT_EQ(elements(found)[0].state, State::Same);
    EXPECT_TRUE(is(found.elementCounts, 0, 0, 0));
    EXPECT_TRUE(is(found.objectCounts, 0, 0, 1));
    const auto object = elements(found)[0].objects[0];
    EXPECT_EQ(object.idBefore, object.idAfter);
    ASSERT_EQ(places(object.changes), QStringList{"shape.axis"});
    EXPECT_EQ(object.changes[0].before, "LINESTRING(0 0, 5000 0)");
    EXPECT_EQ(object.changes[0].after, "LINESTRING(0 0, 6000 0)");
}

TEST_F(ProjectDifferenceTest, openingThatLeavesItsWallIsToldByTheWallsName)
{
    const QByteArray walls =
        wall("Q1", "LINESTRING(0 0, 5000 0)") + ',' + wall("Q2", "LINESTRING(0 10, 5000 10)") + ',';
    const auto found = difference(walls + doorIn("M1", "Q1", 1000, 0), walls + doorIn("M1", "Q2", 1000, 0));
    ASSERT_EQ(elements(found).size(), 1U);
    const auto changes = elements(found)[0].objects[0].changes;
    ASSERT_EQ(places(changes), QStringList{"attachedTo"});
    EXPECT_EQ(changes[0].before.toString().left(14), "brick wall Q1,");
    EXPECT_EQ(changes[0].after.toString().left(14), "brick wall Q2,");
}

TEST_F(ProjectDifferenceTest, objectsThatArePlacedAnewAsTheyWereAreTheSame)
{
    openSample("made-building");
    const auto before = sampleOf("made-building");
    const QByteArray again = project->toJson();
    // Other ids throughout, links and names of objects among them.
    const Project shifted = exchangetest::projectOf(
        QByteArray(again).replace("\"regions\": [", "\"regions\": [{\"name\": \"Barn\", \"floors\": []}, "));
    const auto found = difference(before, shifted);
    EXPECT_FALSE(found.isById);
    ASSERT_EQ(found.regions.size(), 1U);
    EXPECT_EQ(found.regions[0].name, "Barn");
    EXPECT_EQ(found.regions[0].state, State::Added);
    EXPECT_TRUE(is(found.objectCounts, 0, 0, 0));
    EXPECT_TRUE(is(found.elementCounts, 0, 0, 0));
}

TEST_F(ProjectDifferenceTest, barThatNamesAnotherSlabIsChanged)
{
    const auto changed = changedSample("made-building", "4100 4500, 5900 4500)\", \"DependSlabID\": \"slab-left\"",
                                       "4100 4500, 5900 4500)\", \"DependSlabID\": \"slab-right\"");
    const auto found = difference(sampleOf("made-building"), changed);
    EXPECT_TRUE(is(found.objectCounts, 0, 0, 1));
    ASSERT_EQ(elements(found).size(), 1U);
    EXPECT_EQ(places(elements(found)[0].objects[0].changes), QStringList{"properties.DependSlabID"});
}

TEST_F(ProjectDifferenceTest, chainsAndSpansOfBeamsAreCompared)
{
    const auto unlinked = changedSample("made-building", "\"next\": 1", "\"layer\": 0");
    const auto found = difference(sampleOf("made-building"), unlinked);
    EXPECT_TRUE(is(found.objectCounts, 0, 0, 1));
    EXPECT_TRUE(places(elements(found)[0].objects[0].changes).contains("next"));
}

TEST_F(ProjectDifferenceTest, floorAndProjectAreComparedThemselves)
{
    const auto higher = changedSample("duplex-apartment", "\"bottomElev\": ", "\"remark\": \"wet\", \"bottomElev\": ");
    auto found = difference(sampleOf("duplex-apartment"), higher);
    EXPECT_TRUE(is(found.floorCounts, 0, 0, 1));
    EXPECT_EQ(places(found.regions[0].floors[0].changes), QStringList{"remark"});

    const auto renamed = changedSample("duplex-apartment", "\"name\": \"Duplex", "\"name\": \"Triplex");
    found = difference(sampleOf("duplex-apartment"), renamed);
    EXPECT_EQ(places(found.changes), QStringList{"name"});
    EXPECT_TRUE(found.regions.empty());
    EXPECT_FALSE(found.isSame());
}

TEST_F(ProjectDifferenceTest, differentBuildingsHaveNothingInCommon)
{
    const auto found = difference(sampleOf("duplex-apartment"), sampleOf("precast-hall"));
    EXPECT_FALSE(found.isById);
    EXPECT_EQ(found.objectCounts.changed, 0);
    EXPECT_EQ(found.objectCounts.added, found.compared);
    EXPECT_EQ(found.regions.size(), 2U);
}

} // namespace

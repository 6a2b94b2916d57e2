#include "cli/OpeningReplyCheck.h"

#include "JsonTexts.h"
#include "OpeningReplies.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElements.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXService.h"

#include <gtest/gtest.h>

#include <memory>

using clitest::with;
using clitest::without;
using hbx::embedded::HBXProject;
using hbx::embedded::ProjectError;
using orvcad::OpeningReplyCheck;

namespace {

/** Two regions, each with a floor of code "1"; that of "East" has a door M1 and a wall Q1. */
class OpeningReplyCheckTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ProjectError error;
        project = HBXProject::fromJson(R"~({"format": "hbx-project", "version": 1, "name": "Twins", "regions": [
            {"name": "East", "floors": [{"name": "Ground", "code": "1", "bottomElev": 0, "height": 3, "elements": [
                {"name": "M1", "type": 4}, {"name": "Q1", "type": 1003}]}]},
            {"name": "West", "floors": [{"name": "Ground", "code": "1", "bottomElev": 0, "height": 3}]}]})~",
                                       "twins.json", error);
        ASSERT_TRUE(project) << error.text().toStdString();
    }
    IHBXModel &model() { return *project->service()->model(); }

    static QJsonObject element(const QString &region, const QString &name)
    {
        return openingtest::elementMember(name, 4, region);
    }
    static QJsonObject placed(const QString &region, const QString &name)
    {
        return openingtest::placedMember(name, 1.5, -2, region);
    }
    /** "index: reason" of each member left out. */
    std::string reasons(const QJsonArray &members)
    {
        const OpeningReplyCheck check(model(), members);
        QStringList lines;
        for (const auto &leftOut : check.leftOut())
            lines.append(QStringLiteral("%1: %2").arg(leftOut.index).arg(leftOut.reason));
        return lines.join('\n').toStdString();
    }

    std::unique_ptr<HBXProject> project;
};

TEST_F(OpeningReplyCheckTest, soundMembersKeepTheirOrder)
{
    const QJsonArray members{element("West", "M1"), 3, placed("West", "M1"), "x", placed("East", "M1")};
    const OpeningReplyCheck check(model(), members);
    EXPECT_EQ(check.memberCount(), 5);
    EXPECT_EQ(check.sound(), (QJsonArray{members[0], members[2], members[4]}));
    ASSERT_EQ(check.leftOut().size(), 2U);
    EXPECT_EQ(check.leftOut()[0].index, 1);
    EXPECT_EQ(check.leftOut()[1].index, 3);
}

TEST_F(OpeningReplyCheckTest, checkChangesNothing)
{
    const int elements = model().elements()->count();
    const OpeningReplyCheck check(model(), {element("West", "M1"), placed("West", "M1")});
    EXPECT_EQ(model().elements()->count(), elements);
    EXPECT_EQ(model().drawObjects()->count(), 0);
}

TEST_F(OpeningReplyCheckTest, nameIsTakenOnItsOwnFloorOnly)
{
    EXPECT_EQ(reasons({element("East", "M1")}),
              "0: the floor has an element of that name already; it is kept as it is");
    EXPECT_EQ(reasons({element("West", "M1")}), "");
}

TEST_F(OpeningReplyCheckTest, placedObjectNeedsTheElementOfItsOwnFloor)
{
    EXPECT_EQ(reasons({element("East", "M2"), placed("West", "M2")}),
              "1: the floor has no element \"M2\", and the reply makes none");
}

TEST_F(OpeningReplyCheckTest, elementThatTheModelHasMayBePlaced)
{
    EXPECT_EQ(reasons({placed("East", "M1")}), "");
    EXPECT_EQ(reasons({placed("East", "Q1")}), "0: element \"Q1\" is no door or window");
}

TEST_F(OpeningReplyCheckTest, openingWithoutASizeOrAPlaceIsLeftOut)
{
    const QJsonObject sparse{{"elementID", 1},  {"name", "M2"},     {"nElementType", 4},   {"nWidth", 900},
                             {"nHeight", 2100}, {"floorName", "1"}, {"regionName", "West"}};
    EXPECT_EQ(reasons({sparse}), "");
    for (const char *key : {"nWidth", "nHeight"})
        EXPECT_EQ(reasons({without(sparse, key)}), std::string("0: ") + key + " is missing");
    for (const char *key : {"X", "Y"})
        EXPECT_EQ(reasons({without(placed("East", "M1"), key)}), std::string("0: ") + key + " is missing");
    EXPECT_EQ(reasons({without(placed("East", "M1"), "nHeightFromFloor")}), "");
}

TEST_F(OpeningReplyCheckTest, keyThatNothingReadsIsToldAndTheMemberGoesOn)
{
    const OpeningReplyCheck check(model(), {with(element("West", "M1"), "nwidth", 900)});
    EXPECT_EQ(check.sound().size(), 1);
    ASSERT_EQ(check.leftOut().size(), 1U);
    EXPECT_EQ(check.leftOut()[0].text(), "member 0.nwidth (M1): is no key of this record, and not read: nWidth is one");
    EXPECT_FALSE(check.leftOut()[0].isWhole);
    EXPECT_EQ(check.soundPlaces(), std::vector<int>{0});
}

TEST_F(OpeningReplyCheckTest, everyKeyOfAWrongTypeIsNamed)
{
    const QPair<const char *, const char *> ofElements[] = {
        {"name", "text"},
        {"nElementType", "a whole number of 32 bits"},
        {"floorName", "text"},
        {"nSubElementType", "a whole number of 32 bits"},
        {"regionName", "text"},
        {"nHeight", "a whole number of 32 bits"},
        {"nWidth", "a whole number of 32 bits"},
        {"nHeightFromFloor", "a whole number of 32 bits"},
    };
    for (const auto &key : ofElements) {
        QJsonObject member = element("West", "M1");
        member[QLatin1String(key.first)] = QJsonArray();
        EXPECT_EQ(reasons({member}), std::string("0: ") + key.first + " is not " + key.second);
    }
    const QPair<const char *, const char *> ofPlaced[] = {
        {"elementName", "text"}, {"X", "a number"},
        {"Y", "a number"},       {"nHeightFromFloor", "a whole number of 32 bits"},
        {"floorName", "text"},   {"regionName", "text"},
    };
    for (const auto &key : ofPlaced) {
        QJsonObject member = placed("East", "M1");
        member[QLatin1String(key.first)] = QJsonValue(QJsonValue::Null);
        EXPECT_EQ(reasons({member}), std::string("0: ") + key.first + " is not " + key.second);
    }
}

TEST_F(OpeningReplyCheckTest, numberBeyond32BitsIsNoWholeNumber)
{
    QJsonObject member = element("West", "M1");
    member["nWidth"] = 2147483648.0;
    EXPECT_EQ(reasons({member}), "0: nWidth is not a whole number of 32 bits");
    member["nWidth"] = 2147483647.0;
    EXPECT_EQ(reasons({member}), "");
}

TEST_F(OpeningReplyCheckTest, leftOutMemberIsToldInWordsAndAsJson)
{
    const OpeningReplyCheck check(model(), {element("North", "M1"), 5});
    ASSERT_EQ(check.leftOut().size(), 2U);
    EXPECT_EQ(check.leftOut()[0].text(), "member 0 (M1): unknown region \"North\"");
    EXPECT_EQ(check.leftOut()[1].text(), "member 1 (no name): is no object");
    EXPECT_EQ(check.leftOut()[0].toJson(), (QJsonObject{{"index", 0},
                                                        {"place", "eDoorWin.ElementsAndEdos[0]"},
                                                        {"name", "M1"},
                                                        {"reason", "unknown region \"North\""},
                                                        {"whole", true}}));
}

} // namespace

#include "cli/Applied.h"

#include "TestFiles.h"
#include "cli/ProjectFiles.h"
#include "embedded/ExchangeDocuments.h"
#include "platform/host/IHBXService.h"

using hbx::embedded::JournalEntry;
using namespace orvcad;

namespace {

constexpr char kTwoWallsAlike[] = R"~({"format": "hbx-project", "version": 1, "name": "Doubles", "regions": [
    {"name": "House", "floors": [{"name": "F1", "code": "1", "bottomElev": 0, "height": 3, "elements": [
     {"name": "Q1", "type": 1003, "properties": {"Thickness": 200}, "drawObjects": [
      {"shape": {"kind": "line", "axis": "LINESTRING(0 0, 5000 0)", "width": 200}},
      {"shape": {"kind": "line", "axis": "LINESTRING(0 3000, 5000 3000)", "width": 200}},
      {"shape": {"kind": "line", "axis": "LINESTRING(0 0, 5000 0)", "width": 200}}]}]}]}]})~";

QString lettersOf(int count) { return QString(count, 'x'); }

TEST(AppliedTest, textOfADocumentIsCutAtSixtyCharacters)
{
    EXPECT_EQ(shortened(lettersOf(60)), lettersOf(60));
    EXPECT_EQ(shortened(lettersOf(61)), lettersOf(60) + QStringLiteral("…"));
}

TEST(AppliedTest, linesAreCutAtTwenty)
{
    QStringList lines;
    for (int i = 0; i < 20; ++i)
        lines.append("line");
    EXPECT_EQ(cutLines(lines).count("\n  line"), 20);
    EXPECT_FALSE(cutLines(lines).contains("more"));
    lines += QStringList{"last", "of all"};
    EXPECT_EQ(cutLines(lines).count("\n  line"), 20);
    EXPECT_TRUE(cutLines(lines).endsWith(QStringLiteral("line\n  … and 2 more; --json lists all")));
    EXPECT_EQ(cutLines({}), "");
}

TEST(AppliedTest, memberThatIsLeftOutIsToldWithPlaceNameAndReason)
{
    const LeftOut member{"Beam[3]", "KL-1", "has no segment"};
    EXPECT_EQ(member.text(), "Beam[3] (KL-1): has no segment");
    EXPECT_EQ((LeftOut{"Beam[3]", "", "is no object"}.text()), "Beam[3] (no name): is no object");
    EXPECT_EQ((LeftOut{"a", lettersOf(61), "b"}.text()), "a (" + lettersOf(60) + QStringLiteral("…): b"));
    EXPECT_EQ(leftOutLines({member}), "\n  left out: Beam[3] (KL-1): has no segment");
    EXPECT_EQ(toJson({member}),
              (QJsonArray{
                  QJsonObject{{"place", "Beam[3]"}, {"name", "KL-1"}, {"reason", "has no segment"}, {"whole", true}}}));
}

TEST(AppliedTest, membersAndPartsThatAreLeftOutAreCountedApart)
{
    const LeftOut member{"Beam[3]", "KL-1", "has no name"};
    const LeftOut part{"Beam[2].EDOInfo[0]", "KL-2", "has no segment", false};
    EXPECT_EQ(leftOutCount(std::vector<LeftOut>()), "0 left out");
    EXPECT_EQ(leftOutCount(std::vector<LeftOut>{member, member}), "2 left out");
    EXPECT_EQ(leftOutCount(std::vector<LeftOut>{part}), "0 left out, and 1 part of the rest");
    EXPECT_EQ(leftOutCount(std::vector<LeftOut>{part, member, part}), "1 left out, and 2 parts of the rest");
    EXPECT_EQ(part.toJson()["whole"], false);
}

TEST(AppliedTest, refusedWritesAreThoseSinceTheJournalHadSoManyEntries)
{
    const auto project = exchangetest::projectOf(kTwoWallsAlike);
    project->journal().clear();
    project->journal().add({JournalEntry::kWriteThrew, 1, "Q1", "before"});
    project->journal().add({JournalEntry::kCheckRefused, 1, "Q1", "no write"});
    project->journal().add({JournalEntry::kWriteThrew, 1, "Q1", "behind"});
    EXPECT_EQ(refusedSince(*project, 1), QStringList{"behind"});
    EXPECT_EQ(refusedSince(*project, 3), QStringList());
}

TEST(AppliedTest, objectsThatAreTheSameAsAnotherOneAreCounted)
{
    const auto project = exchangetest::projectOf(kTwoWallsAlike);
    IHBXModel &model = *project->service()->model();
    EXPECT_EQ(doubledSince(model, 0), 2);
    EXPECT_EQ(doubledSince(model, 2), 1);
    EXPECT_EQ(doubledSince(model, 3), 0);
}

TEST(AppliedTest, lineOfDoubledObjectsIsEmptyForNone)
{
    EXPECT_EQ(doubledLine(0), "");
    EXPECT_EQ(doubledLine(2), "\n2 objects made where the same one stands already: was this applied before?");
}

class AppliedSaveTest : public TestFiles
{
protected:
    /** An outcome as replies have it. */
    struct Outcome
    {
        std::vector<LeftOut> leftOut;

        QString text() const { return "done"; }
        QJsonObject toJson() const { return {{"leftOut", static_cast<int>(leftOut.size())}}; }
    };
    void SetUp() override
    {
        m_project = exchangetest::projectOf(kTwoWallsAlike);
        saveProjectAs(*m_project, path("house.hbxdb"));
        m_project->journal().clear();
    }
    QJsonObject summaryOf(bool isSaved, int leftOut) const
    {
        return {{"project", path("house.hbxdb")}, {"saved", isSaved}, {"leftOut", leftOut}};
    }

    std::unique_ptr<hbx::embedded::HBXProject> m_project;
    const Outcome m_whole{};
    const Outcome m_partial{{{"Beam[0]", "", "is no object"}}};
};

TEST_F(AppliedSaveTest, replyWithoutAnythingLeftOutIsSaved)
{
    const Summary summary = saveApplied(*m_project, m_whole, true);
    EXPECT_EQ(summary.text, "done");
    EXPECT_EQ(summary.json, summaryOf(true, 0));
    EXPECT_EQ(summary.exitCode, kDone);
}

TEST_F(AppliedSaveTest, replyWithSomethingLeftOutIsSavedAndTold)
{
    const Summary summary = saveApplied(*m_project, m_partial, false);
    EXPECT_EQ(summary.text, "done");
    EXPECT_EQ(summary.json, summaryOf(true, 1));
    EXPECT_EQ(summary.exitCode, kLeftOut);
}

TEST_F(AppliedSaveTest, strictReplyWithSomethingLeftOutIsNotSaved)
{
    QFile::remove(path("house.hbxdb"));
    const Summary summary = saveApplied(*m_project, m_partial, true);
    EXPECT_EQ(summary.text, "done\nNothing was saved (--strict).");
    EXPECT_EQ(summary.json, summaryOf(false, 1));
    EXPECT_EQ(summary.exitCode, kLeftOut);
    EXPECT_FALSE(QFile::exists(path("house.hbxdb")));
}

} // namespace

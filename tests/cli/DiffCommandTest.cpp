#include "CliFixture.h"

namespace {

class DiffCommandTest : public CliFixture
{
protected:
    /** Imports a sample building, with one text in place of another, as a project of that name. */
    void importChanged(const QString &name, const QByteArray &from = {}, const QByteArray &to = {})
    {
        QByteArray json = clitest::fileContent(sample("duplex-apartment"));
        if (!from.isEmpty())
            json.replace(json.indexOf(from), from.size(), to);
        write("building.json", json);
        ASSERT_EQ(run({"project", "import", "building.json", "-o", name}).exitCode, 0);
    }
    void SetUp() override { importChanged("a.hbxdb"); }
};

TEST_F(DiffCommandTest, equalProjectsSaySoWithExitCodeZero)
{
    importChanged("b.hbxdb");
    const Result result = run({"diff", "a.hbxdb", "b.hbxdb"});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_TRUE(result.out.startsWith("The same: ")) << result.out.toStdString();
    EXPECT_TRUE(result.out.endsWith(" placed objects compared\n")) << result.out.toStdString();
}

TEST_F(DiffCommandTest, differenceIsListedWithExitCodeThree)
{
    importChanged("b.hbxdb", "\"name\": \"Duplex", "\"name\": \"Triplex");
    const Result result = run({"diff", "a.hbxdb", "b.hbxdb"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_TRUE(result.out.startsWith("Different (matched by id): the project itself\n")) << result.out.toStdString();
    EXPECT_TRUE(result.out.contains("\n  name: \"Duplex")) << result.out.toStdString();
    EXPECT_TRUE(result.out.contains(" -> \"Triplex")) << result.out.toStdString();
}

TEST_F(DiffCommandTest, differenceGoesIntoAFile)
{
    importChanged("b.hbxdb", "\"name\": \"Duplex", "\"name\": \"Triplex");
    const Result result = run({"diff", "a.hbxdb", "b.hbxdb", "-o", "diff.json"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.out, "Different (matched by id): the project itself\n");
    QJsonObject told = run({"diff", "a.hbxdb", "b.hbxdb", "--json"}).json();
    EXPECT_EQ(readJson("diff.json").object(), told);
    EXPECT_EQ(told.keys().join(' '), "changes compared counts matchedBy regions same");
    told["output"] = "diff.json";
    EXPECT_EQ(run({"diff", "a.hbxdb", "b.hbxdb", "--json", "-o", "diff.json"}).json(), told);
}

TEST_F(DiffCommandTest, projectsStayAsTheyAre)
{
    importChanged("b.hbxdb", "\"name\": \"Duplex", "\"name\": \"Triplex");
    const QByteArray before = read("a.hbxdb");
    const QByteArray after = read("b.hbxdb");
    run({"diff", "a.hbxdb", "b.hbxdb"});
    EXPECT_EQ(read("a.hbxdb"), before);
    EXPECT_EQ(read("b.hbxdb"), after);
}

TEST_F(DiffCommandTest, missingProjectIsNamed)
{
    refusal({"diff", "a.hbxdb", "nowhere.hbxdb"}, "nowhere.hbxdb");
    refusal({"diff", "nowhere.hbxdb", "a.hbxdb"}, "nowhere.hbxdb");
}

} // namespace

#include "cli/Completion.h"

#include "CliFixture.h"
#include "cli/CommandLine.h"

#include <CLI/CLI.hpp>

using orvcad::CommandLine;
using orvcad::Completion;

namespace {

class CompletionTest : public CliFixture
{
protected:
    Completion of(const std::vector<std::string> &words) { return orvcad::completed(m_line.app(), words); }
    /** The candidates with blanks between, and ":files" with their ending where one may stand. */
    std::string told(const std::vector<std::string> &words)
    {
        const Completion completion = of(words);
        std::string text;
        for (const Completion::Candidate &candidate : completion.candidates)
            text += candidate.word + ' ';
        return completion.isFile ? text + ":files" + completion.ending : text;
    }
    /** house.hbxdb with Level 1 in East, Level 1 and Level 2 in West, by its whole path. */
    std::string house() const
    {
        write("house.json", QByteArray(R"~({"format": "hbx-project", "version": 1, "name": "H", "regions": [
            {"name": "East", "floors": [{"name": "Level 1", "code": "1", "bottomElev": 0, "height": 3}]},
            {"name": "West", "floors": [{"name": "Level 1", "code": "1", "bottomElev": 0, "height": 3},
                                        {"name": "Level 2", "code": "2", "bottomElev": 3, "height": 3}]}]})~"));
        EXPECT_EQ(run({"project", "import", "house.json", "-o", "house.hbxdb"}).exitCode, 0);
        return path("house.hbxdb").toStdString();
    }

    CommandLine m_line;
};

TEST_F(CompletionTest, groupsAndVerbsAreCompleted)
{
    EXPECT_EQ(told({"dra"}), "drawing drawings draw ");
    EXPECT_EQ(told({"slab", ""}), "export apply ");
    EXPECT_EQ(told({"beam", "seats", "e"}), "export ");
    EXPECT_EQ(told({"castle"}), "");
    EXPECT_EQ(told({"man"}), ""); // for packagers
    EXPECT_EQ(of({"sl"}).candidates.at(0).description, "Slabs, rafts, their holes and bars");
}

TEST_F(CompletionTest, optionsAreThoseOfTheVerbAndThoseThatMayStandAnywhere)
{
    EXPECT_EQ(told({"opening", "export", "--"}), "--help --region --floor --output --version --json --quiet ");
    EXPECT_EQ(told({"opening", "export", "--fl"}), "--floor ");
}

TEST_F(CompletionTest, valuesToChooseFromAreCompleted)
{
    EXPECT_EQ(told({"wall", "reply", "--kind", ""}), "brick force ");
    EXPECT_EQ(told({"wall", "export", "--format", "x"}), "xml ");
    EXPECT_EQ(told({"copy", "--roads", "s"}), "seat slab ");
}

TEST_F(CompletionTest, filesAreAskedForWithTheEndingThatTheVerbTakes)
{
    EXPECT_EQ(told({"project", "info", ""}), ":files.hbxdb");
    EXPECT_EQ(told({"project", "info", "a.hbxdb", ""}), ":files.hbxdb"); // takes several
    EXPECT_EQ(told({"drawing", "show", ""}), ":files.cadi2");
    EXPECT_EQ(told({"opening", "apply", "a.hbxdb", "re"}), ":files");
    EXPECT_EQ(told({"opening", "apply", "a.hbxdb", "reply.json", ""}), "");
    EXPECT_EQ(told({"draw", "--output", ""}), ":files");
    EXPECT_EQ(told({"slab", "export", "--parts", ""}), "");
}

TEST_F(CompletionTest, kindOfDocumentMayStandBeforeTheFilesToCheck)
{
    EXPECT_EQ(told({"check", "slab-"}), "slab-io slab-model :files");
    EXPECT_EQ(told({"check", "slab-io", "slab-"}), ":files");
    EXPECT_EQ(of({"check", "floors"}).candidates.at(0).description, "floors document");
}

TEST_F(CompletionTest, regionsAndFloorsAreThoseOfTheProject)
{
    const std::string project = house();
    EXPECT_EQ(told({"draw", project, "--region", ""}), "East West ");
    EXPECT_EQ(told({"draw", project, "--region", "East", "--floor", ""}), "Level 1 ");
    EXPECT_EQ(told({"draw", project, "--region", "West", "--floor", "Level"}), "Level 1 Level 2 ");
    EXPECT_EQ(told({"copy", project, "--region", "East", "--floor", "Level 1", project, "--floor", ""}),
              "Level 1 Level 1 Level 2 ");
}

TEST_F(CompletionTest, projectThatCannotBeOpenedHasNoFloors)
{
    write("odd.hbxdb", QByteArray("no project"));
    EXPECT_EQ(told({"draw", path("odd.hbxdb").toStdString(), "--floor", ""}), "");
    EXPECT_EQ(told({"draw", "nowhere.hbxdb", "--region", ""}), "");
    EXPECT_EQ(told({"draw", "--floor", ""}), "");
}

TEST_F(CompletionTest, nothingTypedIsCompletedToo)
{
    EXPECT_EQ(told({}).rfind("demo project floors ", 0), 0U);
    EXPECT_EQ(told({}), told({""}));
}

} // namespace

#include "cli/Verb.h"

#include <CLI/CLI.hpp>

#include <gtest/gtest.h>

using namespace orvcad;

namespace {

/** What a verb was given, with bars between. */
Summary told(const Arguments &given)
{
    std::string text;
    for (const std::string &value : {given.project, given.region, given.floor, given.input, given.output, given.kind})
        text += value + '|';
    return {Arguments::text(text + (given.strict ? "strict" : "")), {}};
}

class VerbTest : public ::testing::Test
{
protected:
    VerbTest() { m_app.require_subcommand(1); }

    /** What the chosen verb is given; the error in words where arguments are wrong. */
    std::string run(const std::string &typed)
    {
        try {
            m_app.parse(typed, false);
        } catch (const CLI::ParseError &error) {
            return error.what();
        }
        return m_command().text.toStdString();
    }

    CLI::App m_app;
    Command m_command;
};

TEST_F(VerbTest, chosenVerbGetsItsArguments)
{
    Verb(m_app, m_command, "apply", "", told).project().anyFloors().input("REPLY", "").strict("reply");
    Verb(m_app, m_command, "show", "", told).input("FILE", "");
    EXPECT_EQ(run("apply house.hbxdb reply.json --floor 2 --region East --strict"),
              "house.hbxdb|East|2|reply.json|||strict");
    EXPECT_EQ(run("show reply.json"), "|||reply.json|||");
}

TEST_F(VerbTest, projectAndInputAreRequired)
{
    Verb(m_app, m_command, "apply", "", told).project().input("REPLY", "");
    EXPECT_EQ(run("apply"), "PROJECT is required");
    EXPECT_EQ(run("apply house.hbxdb"), "REPLY is required");
}

TEST_F(VerbTest, floorIsRequiredOfAVerbThatTakesOne)
{
    Verb(m_app, m_command, "draw", "", told).pickedFloor();
    Verb(m_app, m_command, "export", "", told).anyFloors();
    EXPECT_EQ(run("draw"), "--floor is required");
    EXPECT_EQ(run("draw --floor 1"), "||1||||");
    EXPECT_EQ(run("export"), "||||||");
}

TEST_F(VerbTest, verbThatTakesARegionAloneHasNoFloor)
{
    Verb(m_app, m_command, "export", "", told).region();
    EXPECT_EQ(run("export --region East"), "|East|||||");
    EXPECT_NE(run("export --floor 1").find("--floor"), std::string::npos);
}

TEST_F(VerbTest, outputMayBeAbsentUnlessThatIsWrongUsage)
{
    Verb(m_app, m_command, "export", "", told).output("File", ".json");
    Verb(m_app, m_command, "make", "", told).output("File", ".json", Verb::NoOutput::WrongUsage);
    EXPECT_EQ(run("export"), "||||||");
    EXPECT_EQ(run("export -o a.json"), "||||a.json||");
    EXPECT_EQ(run("make"), "--output is required");
}

TEST_F(VerbTest, helpTellsWhereADocumentWithoutAFileGoes)
{
    Verb standard(m_app, m_command, "export", "", told);
    EXPECT_NE(standard.output("File", ".json").app().help().find("File; standard output if absent"), std::string::npos);
    Verb nothing(m_app, m_command, "floors", "", told);
    EXPECT_EQ(nothing.output("File", ".json", Verb::NoOutput::NothingIsWritten).app().help().find("standard output"),
              std::string::npos);
}

TEST_F(VerbTest, wallKindIsBrickOrForce)
{
    Verb(m_app, m_command, "reply", "", told).wallKind();
    EXPECT_EQ(run("reply --kind force"), "|||||force|");
    EXPECT_NE(run("reply --kind straw").find("straw not in"), std::string::npos);
    EXPECT_EQ(run("reply"), "--kind is required");
}

TEST_F(VerbTest, verbOfManyFilesRunsForEach)
{
    Verb(m_app, m_command, "info", "", told).projects().region();
    Verb(m_app, m_command, "show", "", told).inputs("FILE", "");
    EXPECT_EQ(run("info a.hbxdb b.hbxdb --region East"), "a.hbxdb: a.hbxdb|East|||||\nb.hbxdb: b.hbxdb|East|||||\n"
                                                         "2 files: 2 done, 0 with something left out, 0 failed");
    EXPECT_EQ(run("show"), "FILE is required");
    EXPECT_EQ(run("show a.json"), "|||a.json|||");
}

TEST_F(VerbTest, helpOfAVerbOfManyFilesTellsWhereTheirResultsGo)
{
    Verb verb(m_app, m_command, "export", "", told);
    EXPECT_NE(verb.projects().output("File", ".json").app().help().find("absent; the directory for several"),
              std::string::npos);
}

TEST_F(VerbTest, whatStandsInTheArgumentsHoldsWhereNothingIsTyped)
{
    Verb(m_app, m_command, "demo", "", told).arguments().output = "tour";
    EXPECT_EQ(run("demo"), "||||tour||");
}

TEST_F(VerbTest, groupNeedsAVerb)
{
    CLI::App &group = addGroup(m_app, "beam", "");
    const Verb verb(group, m_command, "export", "", told);
    EXPECT_EQ(run("beam"), "A subcommand is required");
    EXPECT_EQ(run("beam export"), "||||||");
}

} // namespace

#include "cli/CommandLine.h"

#include "ForeignMessages.h"

#include <CLI/CLI.hpp>

#include <gtest/gtest.h>

using orvcad::CommandLine;

namespace {

/** Gives every verb that can be typed. */
template <typename Take> void forEachVerb(const CLI::App &app, const Take &take)
{
    const auto below = app.get_subcommands([](const CLI::App * /*any*/) { return true; });
    if (below.empty())
        take(app);
    for (const CLI::App *next : below)
        forEachVerb(*next, take);
}

TEST(CommandLineTest, everyVerbAndArgumentIsDescribed)
{
    CommandLine line;
    int verbs = 0;
    forEachVerb(line.app(), [&verbs](const CLI::App &verb) {
        ++verbs;
        EXPECT_FALSE(verb.get_description().empty()) << verb.get_name();
        for (const CLI::Option *option : verb.get_options())
            EXPECT_FALSE(option->get_description().empty()) << verb.get_name() << ' ' << option->get_name();
    });
    EXPECT_GE(verbs, 27);
}

TEST(CommandLineTest, chosenVerbIsTheCommandAndFlagsMayStandAnywhere)
{
    CommandLine line;
    EXPECT_FALSE(line.command());
    line.app().parse("--quiet drawings words 3 --json", false);
    EXPECT_TRUE(line.command());
    EXPECT_TRUE(line.isJson());
    EXPECT_TRUE(line.isQuiet());
}

TEST(CommandLineTest, wordsOfTheParserAreInTheLanguageOfTheUser)
{
    const ForeignMessages messages;
    CommandLine line;
    const std::string help = line.app().help() + line.app().get_subcommand("copy")->help();
    for (const char *words :
         {"文Usage: orvcad [文OPTIONS] 文SUBCOMMAND\n", "\n文Options:\n  -h,--help ", "\n文Subcommands:\n  demo ",
          "\n文Positionals:\n  FROM TEXT 文REQUIRED ", " 文Print this help message and exit\n",
          " 文Display program version information and exit\n"})
        EXPECT_NE(help.find(words), std::string::npos) << words << "is missing in\n" << help;
}

TEST(CommandLineTest, descriptionsStandBelowEachOtherBesideWideCharacters)
{
    const ForeignMessages messages;
    CommandLine line;
    const std::string help = line.app().get_subcommand("copy")->help();
    for (const char *row : {"\n  FROM TEXT 文REQUIRED        文Project file (.hbxdb) to copy from\n",
                            "\n  TO TEXT                     文Project file (.hbxdb) to copy to; FROM if absent\n",
                            ",slab} ...\n                              文What is copied, "})
        EXPECT_NE(help.find(row), std::string::npos) << row << "is missing in\n" << help;
}

TEST(CommandLineTest, versionIsThatOfTheProject)
{
    CommandLine line;
    EXPECT_EQ(line.app().version().rfind("orvcad 1.", 0), 0U);
}

} // namespace

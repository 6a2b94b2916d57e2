#include "cli/CommandLine.h"

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

TEST(CommandLineTest, versionIsThatOfTheProject)
{
    CommandLine line;
    EXPECT_EQ(line.app().version().rfind("orvcad 1.", 0), 0U);
}

} // namespace

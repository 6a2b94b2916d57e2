#include "cli/ManualPages.h"

#include "ForeignMessages.h"
#include "cli/CommandLine.h"

#include <CLI/CLI.hpp>

#include <gtest/gtest.h>

using orvcad::CommandLine;
using orvcad::ManualPage;
using orvcad::manualPages;

namespace {

class ManualPagesTest : public ::testing::Test
{
protected:
    /** The page of that name; empty for none. */
    std::string page(const std::string &name)
    {
        for (const ManualPage &page : manualPages(m_line.app()))
            if (page.name == name)
                return page.text;
        return {};
    }

    CommandLine m_line;
};

TEST_F(ManualPagesTest, programAndEachGroupThatTheHelpShowsHaveOne)
{
    std::vector<std::string> names;
    for (const ManualPage &page : manualPages(m_line.app()))
        names.push_back(page.name);
    EXPECT_EQ(names, (std::vector<std::string>{"orvcad", "orvcad-demo", "orvcad-project", "orvcad-floors",
                                               "orvcad-opening", "orvcad-slab", "orvcad-beam", "orvcad-wall",
                                               "orvcad-column", "orvcad-drawing", "orvcad-drawings", "orvcad-draw",
                                               "orvcad-diff", "orvcad-copy", "orvcad-check"}));
}

TEST_F(ManualPagesTest, pageOfTheProgramNamesThePagesOfTheGroupsAndTheExitCodes)
{
    const std::string text = page("orvcad");
    EXPECT_EQ(text.rfind(".TH ORVCAD 1 \"\" \"orvcad 1.", 0), 0U) << text;
    for (const char *part : {"\n.BR orvcad\\-slab (1)\nSlabs, rafts, their holes and bars.\n", "\n.TP\n\\fB3\\fR\n",
                             "\n\\fB\\-\\-json\\fR\nPrint the summary as one JSON object.\n", "orvcad demo tour\n"})
        EXPECT_NE(text.find(part), std::string::npos) << part << "\nis missing in\n" << text;
}

TEST_F(ManualPagesTest, pageOfAGroupDescribesTheVerbsBelowItsGroups)
{
    const std::string text = page("orvcad-beam");
    for (const char *part :
         {"\n.SS orvcad beam seats apply\nMake the seats of a document in a project and save it.\n",
          "\n.SS orvcad beam export\n", "\n\\fB\\-o\\fR, \\fB\\-\\-output\\fR \\fITEXT\\fR\nFile to write the ",
          "\norvcad beam apply site.hbxdb beams.json\n", "\n.BR orvcad (1)\n"})
        EXPECT_NE(text.find(part), std::string::npos) << part << "\nis missing in\n" << text;
}

TEST_F(ManualPagesTest, wordsToChooseFromStandInPlaceOfAValue)
{
    EXPECT_NE(page("orvcad-wall").find("\\fB\\-\\-kind\\fR \\fI{brick,force}\\fR"), std::string::npos);
}

TEST_F(ManualPagesTest, whatMayBeAbsentStandsInBrackets)
{
    const std::string text = page("orvcad-beam");
    EXPECT_NE(text.find("\\fBorvcad beam identify\\-input\\fR \\fIPROJECT\\fR... [\\fB\\-\\-region\\fR \\fITEXT\\fR] "
                        "\\fB\\-\\-floor\\fR \\fITEXT\\fR [\\fB\\-o\\fR \\fITEXT\\fR]\n"),
              std::string::npos)
        << text;
}

TEST(ManualPagesTextTest, headingsAndTextsAreInTheLanguageOfTheUser)
{
    const ForeignMessages messages;
    CLI::App app("About orvcad", "orvcad");
    app.add_subcommand("cut", "Cut it");
    const std::vector<ManualPage> pages = manualPages(app);
    for (const char *part :
         {" \"文User Commands\"\n.SH 文NAME\norvcad \\- About orvcad\n.SH 文SYNOPSIS\n", "\n.SH 文COMMANDS\n",
          "\n.BR orvcad\\-cut (1)\n文Cut it.\n", "\n.SH 文OPTIONS\n", "\n.SH \"文EXIT STATUS\"\n.TP\n\\fB0\\fR\n文All ",
          "\n.SH 文ENVIRONMENT\n.TP\n\\fBLANGUAGE, LC_ALL, LC_MESSAGES, LANG\\fR\n文The ",
          "\n.SH 文EXAMPLES\n.nf\norvcad "})
        EXPECT_NE(pages[0].text.find(part), std::string::npos) << part << "\nis missing in\n" << pages[0].text;
    for (const char *part :
         {"\n.SH 文DESCRIPTION\n.SS orvcad cut\n文Cut it.\n", "\n.SH \"文SEE ALSO\"\n.BR orvcad (1)\n"})
        EXPECT_NE(pages[1].text.find(part), std::string::npos) << part << "\nis missing in\n" << pages[1].text;
}

TEST(ManualPagesTextTest, charactersThatMeanSomethingToRoffAreEscaped)
{
    CLI::App app("Tells \\n and \"quotes\"", "orvcad");
    app.add_subcommand("cut", ".TH of 'more'");
    const std::vector<ManualPage> pages = manualPages(app);
    EXPECT_NE(pages[0].text.find("\norvcad \\- Tells \\en and \\(dqquotes\\(dq\n"), std::string::npos) << pages[0].text;
    EXPECT_NE(pages[1].text.find("\n\\&.TH of \\(aqmore\\(aq.\n"), std::string::npos) << pages[1].text;
}

} // namespace

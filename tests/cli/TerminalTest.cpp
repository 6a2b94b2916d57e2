#include "cli/Terminal.h"

#include "CliFixture.h"
#include "TerminalRun.h"

namespace {

class TerminalTest : public CliFixture
{
protected:
    /** What a command with an error shows on a terminal. */
    QByteArray shown(const std::string &terminal, const std::string &noColor = {}) const
    {
        return clitest::shownOnTerminal(path(".").toStdString(),
                                        {QStringLiteral(ORVCAD_PROGRAM), "project", "info", "nowhere.hbxdb"},
                                        {{"TERM", terminal}, {"NO_COLOR", noColor}});
    }
    /** What the reply at hand shows there, in a language. */
    QByteArray shownOfReply(const std::string &language) const
    {
        return clitest::shownOnTerminal(
            path(".").toStdString(), {QStringLiteral(ORVCAD_PROGRAM), "opening", "apply", "house.hbxdb", "reply.json"},
            {{"TERM", "xterm"}, {"NO_COLOR", ""}, {"LANGUAGE", language}});
    }
};

TEST_F(TerminalTest, errorsAreRedOnATerminal)
{
    EXPECT_TRUE(shown("xterm").startsWith("\033[31morvcad:\033[0m nowhere.hbxdb: ")) << shown("xterm").toStdString();
}

TEST_F(TerminalTest, dumbTerminalsAndUsersWhoWantNoneGetNoColours)
{
    EXPECT_TRUE(shown("dumb").startsWith("orvcad: nowhere.hbxdb: "));
    EXPECT_TRUE(shown("").startsWith("orvcad: nowhere.hbxdb: "));
    EXPECT_TRUE(shown("xterm", "1").startsWith("orvcad: nowhere.hbxdb: "));
}

TEST_F(TerminalTest, filesAndPipesGetNoColours)
{
    setVariable("TERM", "xterm");
    EXPECT_TRUE(run({"project", "info", "nowhere.hbxdb"}).err.startsWith("orvcad: nowhere.hbxdb: "));
    importSmallHouse();
    writeReply({1});
    EXPECT_TRUE(run({"opening", "apply", "house.hbxdb", "reply.json"}).out.contains("\n  left out: "));
}

TEST_F(TerminalTest, whatWasLeftOutIsYellowOnATerminal)
{
    importSmallHouse();
    writeReply({1});
    EXPECT_TRUE(shownOfReply("en").contains("\n  \033[33mleft out:\033[0m "));
    EXPECT_TRUE(shownOfReply("zh").contains(u8"\n  \033[33m略去:\033[0m "));
}

TEST_F(TerminalTest, streamThatIsNoTerminalShowsNothing)
{
    EXPECT_FALSE(orvcad::isTerminal(-1));
    EXPECT_FALSE(orvcad::showsColours(-1));
    EXPECT_EQ(orvcad::painted("orvcad: no", -1), "orvcad: no");
}

} // namespace

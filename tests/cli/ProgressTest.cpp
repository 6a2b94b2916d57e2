#include "cli/Progress.h"

#include "CliFixture.h"
#include "TerminalRun.h"

using orvcad::Progress;

namespace {

/** So many looks take longer than a second; with the sanitizers each takes many times as long. */
#ifdef __SANITIZE_ADDRESS__
constexpr int kMany = 120;
#else
constexpr int kMany = 1200;
#endif

class ProgressTest : public CliFixture
{
protected:
    /** Looks at one project so many times. */
    static QStringList look(int times, const QStringList &flags = {})
    {
        QStringList command{QStringLiteral(ORVCAD_PROGRAM), "project", "info"};
        for (int i = 0; i < times; ++i)
            command.append("house.hbxdb");
        return command + flags;
    }
    QByteArray shown(const QStringList &command, const std::string &terminal = "xterm") const
    {
        return clitest::shownOnTerminal(path(".").toStdString(), command, {{"TERM", terminal}});
    }
};

TEST_F(ProgressTest, barGrowsWithWhatIsDone)
{
    EXPECT_EQ(Progress::bar("files", 0, 4).toStdString(), "[                              ] 0/4 files");
    EXPECT_EQ(Progress::bar("files", 2, 4).toStdString(), "[###############               ] 2/4 files");
    EXPECT_EQ(Progress::bar("files", 4, 4).toStdString(), "[##############################] 4/4 files");
    EXPECT_EQ(Progress::bar("files", 0, 0).toStdString(), "[                              ] 0/0 files");
}

TEST_F(ProgressTest, longWorkShowsABarOnATerminalAndRemovesIt)
{
    importSample("masonry-block");
    const QByteArray all = shown(look(kMany));
    EXPECT_TRUE(all.contains("\r[")) << all.left(200).toStdString();
    EXPECT_TRUE(all.contains("/" + QByteArray::number(kMany) + " files\033[K"));
    EXPECT_GT(all.indexOf("house.hbxdb:"), all.lastIndexOf("\r\033[K")); // gone before the summary
}

TEST_F(ProgressTest, shortWorkQuietWorkAndDumbTerminalsShowNone)
{
    importSample("masonry-block");
    EXPECT_FALSE(shown(look(2)).contains("\033["));
    EXPECT_FALSE(shown(look(kMany, {"--quiet"})).contains("\033["));
    EXPECT_FALSE(shown(look(kMany), "dumb").contains("\033["));
}

TEST_F(ProgressTest, pipesGetNoBar)
{
    importSample("masonry-block");
    const Result result = run(look(kMany).mid(1));
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.err.isEmpty()) << result.err.left(200).toStdString();
}

} // namespace

#include "CliFixture.h"
#include "TerminalRun.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace {

/** Has zsh complete the line in LINE as the Tab key would, with all that is offered, write the line and end. */
constexpr const char *kZshrc = R"~(fpath=("$COMPLETION" $fpath)
autoload -Uz compinit && compinit -u -d "$ZDOTDIR/dump"
every() { compstate[insert]=all }
zle-line-init() {
    comppostfuncs=(every)
    BUFFER=$LINE CURSOR=$#BUFFER
    zle complete-word
    print -r -- "$BUFFER" >completed
    exit
}
zle -N zle-line-init
)~";

class CompleteCommandTest : public CliFixture
{
protected:
    static QString pathWithProgram()
    {
        return QFileInfo(QStringLiteral(ORVCAD_PROGRAM)).path() + ':' + QString::fromLocal8Bit(qgetenv("PATH"));
    }
    static bool isInstalled(const QString &shell) { return !QStandardPaths::findExecutable(shell).isEmpty(); }

    /** What bash offers in place of the last word, one candidate per line; all words begin with the program. */
    std::string offeredByBash(const QStringList &words)
    {
        setVariable("PATH", pathWithProgram());
        const QString script = QStringLiteral(". \"$0\"; COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); _orvcad; "
                                              "[ ${#COMPREPLY[@]} = 0 ] || printf '%s\\n' \"${COMPREPLY[@]}\"");
        QProcess process;
        start(process, "bash", QStringList{"-c", script, QStringLiteral(ORVCAD_COMPLETION "/orvcad.bash")} + words);
        const Result result = resultOf(process);
        EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
        EXPECT_TRUE(result.err.isEmpty()) << result.err.toStdString();
        return result.out.toStdString();
    }
    /** The line with all that zsh offers in place of its last word. */
    std::string completedByZsh(const std::string &line)
    {
        write(".zshrc", QByteArray(kZshrc));
        clitest::shownOnTerminal(path(".").toStdString(), {QStandardPaths::findExecutable("zsh"), "-d", "-i"},
                                 {{"PATH", pathWithProgram().toStdString()},
                                  {"ZDOTDIR", path(".").toStdString()},
                                  {"HOME", path(".").toStdString()},
                                  {"TERM", "xterm"},
                                  {"COMPLETION", ORVCAD_COMPLETION},
                                  {"LINE", line}});
        return read("completed").trimmed().toStdString();
    }
    /** What fish offers in place of the last word of a line, one candidate per line, with descriptions behind tabs. */
    std::string offeredByFish(const QString &line)
    {
        setVariable("PATH", pathWithProgram());
        setVariable("HOME", path("."));
        QProcess process;
        start(process, "fish",
              {"--no-config", "-c", "source $argv[1]; complete -C $argv[2]",
               QStringLiteral(ORVCAD_COMPLETION "/orvcad.fish"), line});
        const Result result = resultOf(process);
        EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
        EXPECT_TRUE(result.err.isEmpty()) << result.err.toStdString();
        return result.out.toStdString();
    }
    /** A house of one floor, a tower of three, of which the alphabet would put the last between the others, and a folder. */
    void makeHouses()
    {
        importSmallHouse();
        write("tower.json", QByteArray(R"~({"format": "hbx-project", "version": 1, "name": "Tower",
            "regions": [{"name": "T", "floors": [{"name": "F 1", "code": "1", "elements": [], "bottomElev": 0, "height": 3},
            {"name": "F 2", "code": "2", "elements": [], "bottomElev": 3, "height": 3},
            {"name": "F 10", "code": "10", "elements": [], "bottomElev": 6, "height": 3}]}]})~"));
        ASSERT_EQ(run({"project", "import", "tower.json", "-o", "my tower.hbxdb"}).exitCode, 0);
        ASSERT_TRUE(QDir(path(".")).mkdir("houses"));
    }
};

TEST_F(CompleteCommandTest, candidatesStandOnLinesWithTheirDescriptions)
{
    EXPECT_EQ(run({"complete", "--", "slab", ""}).out, "export\tWrite what recognition gets of a floor's slabs\n"
                                                       "apply\tWrite a reply into a floor and save the project\n");
    EXPECT_EQ(run({"complete", "--", "drawing", "show", ""}).out, ":files .cadi2\n");
    EXPECT_EQ(run({"complete", "--", "draw", "-o", ""}).out, ":files\n");
    EXPECT_EQ(run({"complete", "--", "castle"}).out, "");
}

TEST_F(CompleteCommandTest, helpDoesNotShowIt) { EXPECT_FALSE(run({"--help"}).out.contains("complete")); }

TEST_F(CompleteCommandTest, bashOffersVerbsAndOptions)
{
    EXPECT_EQ(offeredByBash({"orvcad", "slab", ""}), "export\napply\n");
    EXPECT_EQ(offeredByBash({"orvcad", "draw", "--re"}), "--region\n");
    EXPECT_EQ(offeredByBash({"orvcad", "wall", "reply", "--kind", "b"}), "brick\n");
}

TEST_F(CompleteCommandTest, bashOffersFilesOfTheEndingAndDirectories)
{
    importSmallHouse();
    ASSERT_TRUE(QDir(path(".")).mkdir("houses"));
    const QStringList offered =
        QString::fromStdString(offeredByBash({"orvcad", "project", "info", "hou"})).split('\n', Qt::SkipEmptyParts);
    EXPECT_EQ(QSet<QString>(offered.begin(), offered.end()), (QSet<QString>{"house.hbxdb", "houses"}));
}

TEST_F(CompleteCommandTest, bashOffersFloorsOfTheProjectWithTheirBlanksEscaped)
{
    makeHouses();
    EXPECT_EQ(offeredByBash({"orvcad", "draw", "house.hbxdb", "--floor", ""}), "Level\\ 1\n");
    EXPECT_EQ(offeredByBash({"orvcad", "draw", "house.hbxdb", "--floor", "\"Lev"}), "Level 1\n");
    EXPECT_EQ(offeredByBash({"orvcad", "draw", "\"house.hbxdb\"", "--region", "H"}), "House\n");
    EXPECT_EQ(offeredByBash({"orvcad", "draw", "my\\ tower.hbxdb", "--floor", ""}), "F\\ 1\nF\\ 2\nF\\ 10\n");
}

TEST_F(CompleteCommandTest, bashFindsProjectsBelowTheHomeDirectory)
{
    importSmallHouse();
    setVariable("HOME", path("."));
    EXPECT_EQ(offeredByBash({"orvcad", "draw", "~/house.hbxdb", "--floor", ""}), "Level\\ 1\n");
}

TEST_F(CompleteCommandTest, zshOffersVerbsOptionsFilesAndFloors)
{
    if (!isInstalled("zsh"))
        GTEST_SKIP() << "there is no zsh";
    makeHouses();
    EXPECT_EQ(completedByZsh("orvcad slab "), "orvcad slab export apply");
    EXPECT_EQ(completedByZsh("orvcad draw --re"), "orvcad draw --region");
    EXPECT_EQ(completedByZsh("orvcad wall reply --kind b"), "orvcad wall reply --kind brick");
    EXPECT_EQ(completedByZsh("orvcad project info hou"), "orvcad project info house.hbxdb houses/");
    EXPECT_EQ(completedByZsh("orvcad draw \"my"), "orvcad draw \"my tower.hbxdb\"");
    EXPECT_EQ(completedByZsh("orvcad draw my\\ tower.hbxdb --floor "),
              "orvcad draw my\\ tower.hbxdb --floor F\\ 1 F\\ 2 F\\ 10");
    EXPECT_EQ(completedByZsh("orvcad draw house.hbxdb --floor \"Lev"), "orvcad draw house.hbxdb --floor \"Level 1\"");
    EXPECT_EQ(completedByZsh("orvcad draw ~/house.hbxdb --floor "), "orvcad draw ~/house.hbxdb --floor Level\\ 1");
    EXPECT_EQ(completedByZsh("orvcad castle"), "orvcad castle");
}

TEST_F(CompleteCommandTest, fishOffersVerbsOptionsFilesAndFloors)
{
    if (!isInstalled("fish"))
        GTEST_SKIP() << "there is no fish";
    makeHouses();
    EXPECT_EQ(offeredByFish("orvcad slab ex"), "export\tWrite what recognition gets of a floor's slabs\n");
    EXPECT_EQ(offeredByFish("orvcad draw --re"),
              "--region\tName of the region; may be absent where there is only one\n");
    EXPECT_EQ(offeredByFish("orvcad wall reply --kind "), "brick\nforce\n");
    EXPECT_EQ(offeredByFish("orvcad project info hou"), "house.hbxdb\nhouses/\n");
    EXPECT_EQ(offeredByFish("orvcad draw \"my"), "my tower.hbxdb\n");
    EXPECT_EQ(offeredByFish("orvcad draw my\\ tower.hbxdb --floor "), "F 1\nF 2\nF 10\n");
    EXPECT_EQ(offeredByFish("orvcad draw house.hbxdb --floor \"Lev"), "Level 1\n");
    EXPECT_EQ(offeredByFish("orvcad draw ~/house.hbxdb --floor "), "Level 1\n");
    EXPECT_EQ(offeredByFish("orvcad castle"), "");
}

} // namespace

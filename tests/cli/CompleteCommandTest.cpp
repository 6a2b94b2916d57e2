#include "CliFixture.h"

#include <QFileInfo>

namespace {

class CompleteCommandTest : public CliFixture
{
protected:
    /** What bash offers in place of the last word, one candidate per line; all words begin with the program. */
    std::string offeredByBash(const QStringList &words)
    {
        const QString folder = QFileInfo(QStringLiteral(ORVCAD_PROGRAM)).path();
        setVariable("PATH", folder + ':' + QString::fromLocal8Bit(qgetenv("PATH")));
        const QString script = QStringLiteral(". \"$0\"; COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); _orvcad; "
                                              "[ ${#COMPREPLY[@]} = 0 ] || printf '%s\\n' \"${COMPREPLY[@]}\"");
        QProcess process;
        start(process, "bash", QStringList{"-c", script, QStringLiteral(ORVCAD_COMPLETION "/orvcad.bash")} + words);
        const Result result = resultOf(process);
        EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
        EXPECT_TRUE(result.err.isEmpty()) << result.err.toStdString();
        return result.out.toStdString();
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
    importSmallHouse();
    EXPECT_EQ(offeredByBash({"orvcad", "draw", "house.hbxdb", "--floor", ""}), "Level\\ 1\n");
    EXPECT_EQ(offeredByBash({"orvcad", "draw", "house.hbxdb", "--floor", "\"Lev"}), "Level 1\n");
    EXPECT_EQ(offeredByBash({"orvcad", "draw", "\"house.hbxdb\"", "--region", "H"}), "House\n");
}

} // namespace

#include "CliFixture.h"
#include "embedded/ExchangeDocuments.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace {

/** The page on thousands of projects, and a directory as it supposes one, with four buildings. */
class AtScaleTest : public CliFixture
{
protected:
    void SetUp() override
    {
        ASSERT_FALSE(QStandardPaths::findExecutable("parallel").isEmpty()) << "parallel is not installed";
        ASSERT_TRUE(QDir(path(".")).mkdir("buildings"));
        for (const char *name : {"first", "second one", "third", "fourth"})
            write(QStringLiteral("buildings/%1.json").arg(name), QByteArray(exchangetest::kSmallBuilding));
        const QString folder = QFileInfo(QStringLiteral(ORVCAD_PROGRAM)).path();
        setVariable("PATH", folder + ':' + QString::fromLocal8Bit(qgetenv("PATH")));
        setVariable("HOME", path(".")); // where parallel keeps its own files
    }
    /** The blocks that are said to run as they stand. */
    static QStringList blocks()
    {
        QStringList blocks;
        const QString page = QString::fromUtf8(clitest::fileContent(QStringLiteral(ORVCAD_DOCS "/at-scale.md")));
        QRegularExpressionMatchIterator found =
            QRegularExpression(QStringLiteral("```sh\n(.*?)```"), QRegularExpression::DotMatchesEverythingOption)
                .globalMatch(page);
        while (found.hasNext())
            blocks.append(found.next().captured(1));
        return blocks;
    }
    Result typed(const QString &block) const
    {
        QProcess process;
        start(process, QStringLiteral("/bin/sh"), {"-ec", block});
        return resultOf(process);
    }
    QStringList held(const QString &directory, const QString &pattern) const
    {
        return QDir(path(directory)).entryList({pattern}, QDir::Files, QDir::Name);
    }
};

TEST_F(AtScaleTest, blocksOfThePageRunAsTheyStand)
{
    const QStringList page = blocks();
    ASSERT_EQ(page.size(), 5);
    for (const QString &block : page) {
        const Result result = typed(block);
        EXPECT_EQ(result.exitCode, 0) << block.toStdString() << result.err.toStdString();
    }
    const QStringList names{"first.hbxdb", "fourth.hbxdb", "second one.hbxdb", "third.hbxdb"};
    EXPECT_EQ(held("projects", "*"), names);
    EXPECT_EQ(held("exported", "*.json").size(), 4);
    EXPECT_EQ(held("out/second one", "*.json"), (QStringList{"beams.json", "floors.json", "openings.json"}));
    EXPECT_EQ(readJson("logs/info.json").object()["files"].toArray().size(), 4);
    EXPECT_EQ(read("logs/import.tsv").count('\n'), 5); // a heading and a line for each job, which ran once
    EXPECT_TRUE(read("logs/import/first").startsWith("Imported buildings/first.json into projects/first.hbxdb: "));
}

TEST_F(AtScaleTest, fileThatCannotBeReadIsCountedAndNamedAndEndsNoOther)
{
    write("buildings/third.json", QByteArray("no building"));
    const QStringList page = blocks();
    EXPECT_EQ(typed(page.at(0)).exitCode, 1); // jobs that failed
    EXPECT_EQ(held("projects", "*").size(), 3);
    EXPECT_TRUE(read("logs/import/third.err").startsWith("orvcad: buildings/third.json: "));
    const Result counts = typed(page.at(1));
    EXPECT_TRUE(counts.out.contains("3 with exit code 0\n")) << counts.out.toStdString();
    EXPECT_TRUE(counts.out.contains("1 with exit code 2\n")) << counts.out.toStdString();
    EXPECT_TRUE(counts.out.contains("orvcad project import buildings/third.json ")) << counts.out.toStdString();
}

} // namespace

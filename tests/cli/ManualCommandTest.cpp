#include "CliFixture.h"

#include <QStandardPaths>

namespace {

class ManualCommandTest : public CliFixture
{
protected:
    /** Writes the pages; the command man shows each of them with its headings. */
    void expectShown()
    {
        ASSERT_FALSE(QStandardPaths::findExecutable("man").isEmpty()) << "man-db is not installed";
        ASSERT_EQ(run({"manual", "pages"}).exitCode, 0);
        setVariable("MANWIDTH", "80");
        for (const QString &page : QDir(path("pages")).entryList({"*.1"})) {
            QProcess process;
            start(process, "man", {"--warnings", "-E", "UTF-8", "-l", "pages/" + page});
            const Result result = resultOf(process);
            EXPECT_EQ(result.exitCode, 0) << page.toStdString();
            EXPECT_TRUE(result.err.isEmpty()) << page.toStdString() << ": " << result.err.toStdString();
            const QStringList headings = headingsOf("pages/" + page);
            EXPECT_GT(headings.size(), 4) << page.toStdString();
            for (const QString &heading : headings)
                EXPECT_TRUE(result.out.contains('\n' + heading.toUtf8() + '\n'))
                    << page.toStdString() << ": " << heading.toStdString() << '\n'
                    << result.out.toStdString();
        }
    }

private:
    QStringList headingsOf(const QString &page) const
    {
        QStringList headings;
        for (const QString &line : QString::fromUtf8(read(page)).split('\n'))
            if (line.startsWith(".SH "))
                headings.append(line.mid(4).remove('"'));
        return headings;
    }
};

TEST_F(ManualCommandTest, pagesAreWrittenIntoADirectoryThatIsMade)
{
    const Result result = run({"manual", "made/man1", "--json"});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_EQ(result.json()["pages"], QDir(path("made/man1")).entryList({"orvcad*.1"}).size());
    EXPECT_TRUE(read("made/man1/orvcad-slab.1").startsWith(".TH ORVCAD-SLAB 1 "));
}

TEST_F(ManualCommandTest, helpDoesNotShowIt) { EXPECT_FALSE(run({"--help"}).out.contains("manual")); }

TEST_F(ManualCommandTest, manReadsEachPageWithoutAWarning) { expectShown(); }

TEST_F(ManualCommandTest, manReadsEachChinesePageWithoutAWarning)
{
    setVariable("LC_ALL", "C.UTF-8");
    setVariable("LANGUAGE", "zh_CN");
    expectShown();
    EXPECT_TRUE(read("pages/orvcad.1").contains(u8"\n.SH 退出状态\n"));
}

} // namespace

#include "cli/Examples.h"

#include "CliFixture.h"
#include "cli/CommandLine.h"
#include "embedded/ExchangeDocuments.h"

#include <CLI/CLI.hpp>

#include <QDirIterator>
#include <QFileInfo>
#include <QRegularExpression>

#include <map>

using namespace orvcad;

namespace {

/** What the examples start from, and the program on the search path. */
class ExamplesTest : public CliFixture
{
protected:
    void SetUp() override
    {
        const QByteArray building = exchangetest::building("masonry-block");
        write("building.json", building);
        write("site.json", exchangetest::withoutElements(building, {4, 5, 15, 19, 25, 48, 1003}));
        ASSERT_EQ(run({"project", "import", "site.json", "-o", "site.hbxdb"}).exitCode, 0);
        ASSERT_TRUE(QFile::remove(path("site.json")));
        place(QStringLiteral(ORVCAD_TEST_DATA "/honesty/beam-result.json"), "result.json");
        place(QStringLiteral(ORVCAD_EXAMPLES "/precast-hall.column-results.json"), "columns.json");
        place(QStringLiteral(ORVCAD_EXAMPLES "/precast-hall.drawing-set.json"), "drawing-set.json");
        place(QStringLiteral(ORVCAD_EXAMPLES "/masonry-block.floor-sdc.json"), "floor-sdc.json");
        const QString folder = QFileInfo(QStringLiteral(ORVCAD_PROGRAM)).path();
        setVariable("PATH", folder + ':' + QString::fromLocal8Bit(qgetenv("PATH")));
    }
    void place(const QString &file, const QString &name) const
    {
        ASSERT_TRUE(QFile::copy(file, path(name))) << file.toStdString();
    }
    /** Runs a line as a shell does. */
    Result typed(const QString &line) const
    {
        QProcess process;
        start(process, QStringLiteral("/bin/sh"), {"-c", line});
        return resultOf(process);
    }
    using Files = std::map<QString, QString>;
    /** Each export gives slabs new ones. */
    static QString withoutIdentities(QString text)
    {
        return text.remove(QRegularExpression("[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}"));
    }
    /** What stands in the directory when the examples are typed, by name; of projects what an export tells. */
    Files filesOfExamples() const
    {
        for (const Example &example : examples())
            EXPECT_EQ(typed(example.typed).exitCode, example.exitCode) << example.typed;
        Files files;
        const QDir directory(path("."));
        QDirIterator found(directory.path(), QDir::Files, QDirIterator::Subdirectories);
        while (found.hasNext()) {
            const QString name = directory.relativeFilePath(found.next());
            const QString text(name.endsWith(".hbxdb") ? run({"project", "export", name}).out : read(name));
            files[name] = withoutIdentities(text);
        }
        return files;
    }
    void startAgain()
    {
        QDir directory(path("."));
        ASSERT_TRUE(directory.removeRecursively() && directory.mkpath("."));
        SetUp();
    }
};

TEST_F(ExamplesTest, eachExampleDoesWhatItSaysWhenTypedAsItStands)
{
    for (const Example &example : examples()) {
        const Result result = typed(example.typed);
        EXPECT_EQ(result.exitCode, example.exitCode) << example.typed << '\n'
                                                     << result.out.toStdString() << result.err.toStdString();
    }
    for (const char *made :
         {"tour/after.svg", "building.hbxdb", "exported/site.json", "slab-ids.json", "plans/site.svg"})
        EXPECT_TRUE(exists(made)) << made;
}

TEST_F(ExamplesTest, filesAreTheSameInEveryLanguage)
{
    const Files inEnglish = filesOfExamples();
    startAgain();
    setVariable("LC_ALL", "C.UTF-8");
    setVariable("LANGUAGE", "zh_CN");
    const Files inChinese = filesOfExamples();
    EXPECT_GT(inEnglish.size(), 40U);
    EXPECT_EQ(inChinese.size(), inEnglish.size());
    for (const auto &[name, content] : inEnglish)
        EXPECT_TRUE(inChinese.count(name) == 1 && inChinese.at(name) == content) << name.toStdString();
}

void expectExamples(const CLI::App &app)
{
    const auto below = app.get_subcommands([](const CLI::App *shown) { return !shown->get_group().empty(); });
    const std::string name = commandName(app);
    if (below.empty()) {
        EXPECT_FALSE(examplesOf(name).empty()) << name << " has no example";
    }
    for (const std::string &typed : examplesOf(name)) {
        EXPECT_NE(app.help().find(typed), std::string::npos) << typed;
        EXPECT_EQ(typed.rfind("orvcad " + name, 0), 0U) << typed;
    }
    for (const CLI::App *next : below)
        expectExamples(*next);
}

TEST_F(ExamplesTest, everyVerbHasOneAndItsHelpShowsIt)
{
    CommandLine line;
    expectExamples(line.app());
}

TEST_F(ExamplesTest, everyExampleIsOfACommandThatThereIs)
{
    for (const Example &example : examples()) {
        CommandLine line;
        CLI::App *app = &line.app();
        for (const QString &word : QString(example.command).split(' ', Qt::SkipEmptyParts))
            EXPECT_NO_THROW(app = app->get_subcommand(word.toStdString())) << example.command;
        EXPECT_EQ(commandName(*app), example.command);
    }
}

TEST_F(ExamplesTest, oneExampleIsOneAndSeveralAreSeveral)
{
    CommandLine line;
    EXPECT_NE(line.app().get_subcommand("demo")->help().find("Example:\n  orvcad demo tour\n"), std::string::npos);
    EXPECT_NE(line.app().help().find("Examples:\n  orvcad demo tour\n  orvcad project import"), std::string::npos);
    EXPECT_TRUE(examplesOf("castle").empty());
}

} // namespace

#include "CliFixture.h"

namespace {

class UsageTest : public CliFixture
{
protected:
    /** Standard error of a run that must end as wrong usage and print nothing else. */
    QByteArray wrongUsage(const QStringList &arguments)
    {
        const Result result = run(arguments);
        EXPECT_EQ(result.exitCode, 1) << arguments.join(' ').toStdString();
        EXPECT_TRUE(result.out.isEmpty()) << result.out.toStdString();
        return result.err;
    }
};

TEST_F(UsageTest, noArgumentsIsWrongUsage) { EXPECT_TRUE(wrongUsage({}).contains("Usage: orvcad")); }

TEST_F(UsageTest, unknownGroupIsNamedAndTheGroupsAreListed)
{
    const QByteArray message = wrongUsage({"castle"});
    EXPECT_TRUE(message.startsWith("orvcad: \"castle\" is not understood here\n")) << message.toStdString();
    for (const char *group :
         {"demo", "project", "floors", "opening", "slab", "beam", "drawing", "drawings", "draw", "copy"})
        EXPECT_TRUE(message.contains(QByteArray("  ") + group + ' ')) << group;
}

TEST_F(UsageTest, unknownVerbIsNamedAndTheVerbsOfItsGroupAreListed)
{
    const QByteArray message = wrongUsage({"project", "demolish"});
    EXPECT_TRUE(message.startsWith("orvcad: \"demolish\" is not understood here\n")) << message.toStdString();
    EXPECT_TRUE(message.contains("Usage: orvcad project")) << message.toStdString();
    for (const char *verb : {"import", "export", "info"})
        EXPECT_TRUE(message.contains(QByteArray("  ") + verb + ' ')) << verb;
}

TEST_F(UsageTest, groupWithoutAVerbIsWrongUsage)
{
    for (const char *group : {"project", "floors", "opening", "slab", "beam", "drawing", "drawings"})
        EXPECT_TRUE(wrongUsage({group}).contains(QByteArray("Usage: orvcad ") + group)) << group;
}

TEST_F(UsageTest, missingArgumentIsNamedWithTheUsageOfTheVerb)
{
    struct Case
    {
        QStringList arguments;
        QByteArray missing;
        QByteArray usage;
    };
    const Case cases[] = {
        {{"project", "import", "-o", "a.hbxdb"}, "BUILDING", "orvcad project import"},
        {{"project", "import", "house.json"}, "--output", "orvcad project import"},
        {{"project", "export"}, "PROJECT", "orvcad project export"},
        {{"project", "info"}, "PROJECT", "orvcad project info"},
        {{"floors", "export"}, "PROJECT", "orvcad floors export"},
        {{"floors", "show"}, "FLOORS", "orvcad floors show"},
        {{"opening", "export"}, "PROJECT", "orvcad opening export"},
        {{"opening", "apply", "house.hbxdb"}, "REPLY", "orvcad opening apply"},
        {{"opening", "options"}, "PROJECT", "orvcad opening options"},
        {{"slab", "export", "house.hbxdb"}, "--floor", "orvcad slab export"},
        {{"slab", "apply", "house.hbxdb", "reply.json"}, "--floor", "orvcad slab apply"},
        {{"slab", "apply", "house.hbxdb", "--floor", "1"}, "REPLY", "orvcad slab apply"},
        {{"drawing", "make", "house.hbxdb", "--floor", "1"}, "--output", "orvcad drawing make"},
        {{"drawing", "make", "house.hbxdb", "-o", "a.cadi2"}, "--floor", "orvcad drawing make"},
        {{"drawing", "show"}, "DRAWING", "orvcad drawing show"},
        {{"drawings", "show"}, "SET", "orvcad drawings show"},
        {{"drawings", "floors"}, "FLOORS", "orvcad drawings floors"},
        {{"drawings", "words"}, "FLOOR", "orvcad drawings words"},
        {{"draw", "house.hbxdb"}, "--floor", "orvcad draw"},
    };
    for (const Case &usage : cases) {
        const QByteArray message = wrongUsage(usage.arguments);
        EXPECT_TRUE(message.startsWith("orvcad: " + usage.missing)) << message.toStdString();
        EXPECT_TRUE(message.contains("Usage: " + usage.usage)) << message.toStdString();
    }
}

TEST_F(UsageTest, optionThatAVerbLacksIsNamed)
{
    const QByteArray message = wrongUsage({"project", "info", "house.hbxdb", "--floor", "1"});
    EXPECT_TRUE(message.startsWith("orvcad: \"--floor\" is not understood here\n")) << message.toStdString();
}

TEST_F(UsageTest, oneArgumentTooManyIsNamed)
{
    const QByteArray message = wrongUsage({"opening", "apply", "house.hbxdb", "reply.json", "more.json"});
    EXPECT_TRUE(message.startsWith("orvcad: \"more.json\" is not understood here\n")) << message.toStdString();
}

TEST_F(UsageTest, wrongUsageWithJsonIsOneErrorObject)
{
    const Result result = run({"project", "demolish", "--json"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.out.isEmpty());
    const QJsonObject error = QJsonDocument::fromJson(result.err).object();
    EXPECT_EQ(keys(error), "error,exitCode");
    EXPECT_EQ(error["exitCode"], 1);
    EXPECT_EQ(error["error"], QJsonValue(QJsonObject{{"message", "\"demolish\" is not understood here"}}));
}

TEST_F(UsageTest, helpGoesToStandardOutputOnEveryLevel)
{
    const QPair<QStringList, QByteArray> cases[] = {{{"--help"}, "Usage: orvcad "},
                                                    {{"project", "--help"}, "Usage: orvcad project "},
                                                    {{"project", "import", "--help"}, "Usage: orvcad project import "}};
    for (const auto &help : cases) {
        const Result result = run(help.first);
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_TRUE(result.out.contains(help.second)) << result.out.toStdString();
        EXPECT_TRUE(result.err.isEmpty()) << result.err.toStdString();
    }
}

TEST_F(UsageTest, versionIsOneLine)
{
    const Result result = run({"--version"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.out.startsWith("orvcad 1.")) << result.out.toStdString();
    EXPECT_EQ(result.out.count('\n'), 1);
}

TEST_F(UsageTest, jsonMayStandBeforeBetweenAndBehindTheVerb)
{
    importSmallHouse();
    const QStringList orders[] = {{"--json", "project", "info", "house.hbxdb"},
                                  {"project", "--json", "info", "house.hbxdb"},
                                  {"project", "info", "--json", "house.hbxdb"},
                                  {"project", "info", "house.hbxdb", "--json"}};
    for (const QStringList &arguments : orders) {
        const Result result = run(arguments);
        EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
        EXPECT_EQ(result.json()["name"], "Small house") << arguments.join(' ').toStdString();
    }
}

TEST_F(UsageTest, quietMayStandBeforeBetweenAndBehindTheVerb)
{
    importSmallHouse();
    const QStringList orders[] = {{"--quiet", "project", "info", "house.hbxdb"},
                                  {"project", "--quiet", "info", "house.hbxdb"},
                                  {"project", "info", "--quiet", "house.hbxdb"},
                                  {"project", "info", "house.hbxdb", "--quiet"}};
    for (const QStringList &arguments : orders) {
        const Result result = run(arguments);
        EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
        EXPECT_TRUE(result.out.isEmpty()) << result.out.toStdString();
        EXPECT_TRUE(result.err.isEmpty()) << result.err.toStdString();
    }
}

TEST_F(UsageTest, quietLeavesTheResultAndErrorsAlone)
{
    importSmallHouse();
    const Result result = run({"floors", "export", "house.hbxdb", "--quiet"});
    EXPECT_EQ(QJsonDocument::fromJson(result.out).object()["AreaName"], "House");
    EXPECT_TRUE(result.err.isEmpty()) << result.err.toStdString();
    EXPECT_TRUE(run({"floors", "show", "nowhere.json", "--quiet"}).err.contains("nowhere.json"));
}

TEST_F(UsageTest, jsonSummaryStandsOnStandardErrorWhenTheResultWentToStandardOutput)
{
    importSmallHouse();
    const Result result = run({"floors", "export", "house.hbxdb", "--json"});
    EXPECT_EQ(QJsonDocument::fromJson(result.out).object()["AreaName"], "House");
    EXPECT_EQ(QJsonDocument::fromJson(result.err).object()["areaName"], "House");
}

TEST_F(UsageTest, dashAsOutputIsStandardOutput)
{
    importSmallHouse();
    const Result result = run({"floors", "export", "house.hbxdb", "-o", "-"});
    EXPECT_EQ(QJsonDocument::fromJson(result.out).object()["AreaName"], "House");
    EXPECT_FALSE(exists("-"));
}

TEST_F(UsageTest, outputThatCannotBeWrittenIsNamed)
{
    importSmallHouse();
    for (const QString &output : {QStringLiteral("no/such/directory/out.json"), QStringLiteral(".")})
        refusal({"floors", "export", "house.hbxdb", "-o", output}, output);
}

TEST_F(UsageTest, outputFileStaysAsItWasWhenTheCommandFails)
{
    importSmallHouse();
    write("out.json", QByteArray("old content"));
    EXPECT_EQ(run({"floors", "export", "nowhere.hbxdb", "-o", "out.json"}).exitCode, 2);
    EXPECT_EQ(run({"opening", "export", "house.hbxdb", "--floor", "Attic", "-o", "out.json"}).exitCode, 2);
    EXPECT_EQ(run({"draw", "house.hbxdb", "--floor", "Attic", "-o", "out.json"}).exitCode, 2);
    EXPECT_EQ(run({"drawing", "make", "house.hbxdb", "--floor", "Attic", "-o", "out.json"}).exitCode, 2);
    EXPECT_EQ(read("out.json"), "old content");
}

TEST_F(UsageTest, outputFileIsReplacedAndNothingIsLeftBesideIt)
{
    importSmallHouse();
    write("out.json", QByteArray(100000, 'x'));
    ASSERT_EQ(run({"floors", "export", "house.hbxdb", "-o", "out.json"}).exitCode, 0);
    EXPECT_EQ(readJson("out.json").object()["AreaName"], "House");
    EXPECT_EQ(QDir(path(".")).entryList(QDir::Files | QDir::Hidden).join(' ').toStdString(),
              "house.hbxdb house.json out.json");
}

TEST_F(UsageTest, verbsMayServeAsFileNames)
{
    importSmallHouse();
    ASSERT_TRUE(QFile::rename(path("house.hbxdb"), path("info")));
    EXPECT_EQ(run({"project", "info", "info", "--json"}).json()["name"], "Small house");
}

} // namespace

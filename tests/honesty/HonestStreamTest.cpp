#include "BuildingWalk.h"
#include "CommandRun.h"

#include "crash/FileHarmFixture.h"

#include <fcntl.h>

using namespace crashtest;

namespace {

const QStringList kFloor{"--region", kRegion, "--floor", "1"};

/** Verbs that give a document. */
const QStringList kGiving[] = {
    {"project", "export", "house.hbxdb"},
    {"floors", "export", "house.hbxdb", "--region", kRegion},
    {"opening", "export", "house.hbxdb"},
    {"opening", "options", "house.hbxdb"},
    QStringList{"slab", "export", "house.hbxdb"} + kFloor,
    {"beam", "export", "house.hbxdb"},
    QStringList{"beam", "identify-input", "house.hbxdb"} + kFloor,
    {"beam", "seats", "export", "house.hbxdb"},
    QStringList{"wall", "export", "house.hbxdb", "--kind", "brick"} + kFloor,
    QStringList{"wall", "export", "house.hbxdb", "--kind", "force", "--format", "xml"} + kFloor,
    QStringList{"wall", "export", "house.hbxdb", "--kind", "brick", "--format", "cloud"} + kFloor,
    {"wall", "reply", "house.hbxdb", "--kind", "brick"},
    QStringList{"draw", "house.hbxdb"} + kFloor,
};

/** Verbs whose result is what they tell. */
const QStringList kTelling[] = {
    {"project", "info", "house.hbxdb"},
    {"floors", "show", "floors.json"},
    {"drawing", "show", "drawing.cadi2"},
    {"drawings", "words", "3"},
    {"drawings", "show", ORVCAD_EXAMPLES "/precast-hall.drawing-set.json"},
    {"drawings", "floors", ORVCAD_EXAMPLES "/masonry-block.floor-sdc.json"},
    {"column", "check", ORVCAD_EXAMPLES "/precast-hall.column-results.json"},
};

class HonestStreamTest : public FileHarmFixture
{
protected:
    void SetUp() override
    {
        makeHouse();
        ASSERT_EQ(run({"floors", "export", "house.hbxdb", "--region", kRegion, "-o", "floors.json"}).exitCode, 0);
        ASSERT_EQ(run(QStringList{"drawing", "make", "house.hbxdb", "-o", "drawing.cadi2"} + kFloor).exitCode, 0);
    }
    /** Seeds of new identities and orders of time aside: a document has to be the same each time. */
    static QByteArray comparable(QByteArray document)
    {
        static const QRegularExpression identity("\\{[0-9a-f-]{36}\\}");
        return QString::fromUtf8(document).replace(identity, "{}").toUtf8();
    }
};

TEST_F(HonestStreamTest, fileHoldsWhatStandardOutputCarries)
{
    for (const QStringList &verb : kGiving) {
        SCOPED_TRACE(verb.join(' ').toStdString());
        ASSERT_EQ(run(verb + QStringList{"-o", "result"}).exitCode, 0);
        const QByteArray file = comparable(read("result"));
        for (const QStringList &flags :
             {QStringList(), QStringList{"-o", "-"}, QStringList("--json"), QStringList("--quiet")}) {
            const Result result = run(verb + flags);
            EXPECT_EQ(result.exitCode, 0);
            EXPECT_TRUE(comparable(result.out) == file) << flags.join(' ').toStdString();
            EXPECT_EQ(result.err.isEmpty(), flags.contains("--quiet"));
            if (flags.contains("--json")) {
                EXPECT_FALSE(QJsonDocument::fromJson(result.err).object().isEmpty()) << result.err.toStdString();
            }
        }
    }
}

TEST_F(HonestStreamTest, summaryIsOneObjectOrLinesAndNothingElse)
{
    for (const QStringList &verb : kTelling) {
        SCOPED_TRACE(verb.join(' ').toStdString());
        const Result text = run(verb);
        const Result json = run(verb + QStringList{"--json"});
        EXPECT_EQ(text.exitCode, 0) << text.err.toStdString();
        EXPECT_EQ(json.exitCode, 0);
        EXPECT_FALSE(text.out.isEmpty());
        EXPECT_FALSE(json.json().isEmpty());
        EXPECT_EQ(text.err + json.err, "");
        EXPECT_EQ(run(verb + QStringList{"--quiet"}).out, "");
    }
}

TEST_F(HonestStreamTest, outputThatTakesNothingIsNeverDone)
{
    const auto closeOutput = [] { close(STDOUT_FILENO); };
    const auto fillOutput = [] {
        const int full = open("/dev/full", O_WRONLY);
        dup2(full, STDOUT_FILENO);
    };
    const auto breakOutput = [] {
        int ends[2];
        if (pipe(ends) == 0) {
            close(ends[0]);
            dup2(ends[1], STDOUT_FILENO);
        }
    };
    const Files before = filesIn(folder());
    for (const Process::Preparation &harm :
         {Process::Preparation(closeOutput), Process::Preparation(fillOutput), Process::Preparation(breakOutput)}) {
        for (const QStringList &verb : kGiving)
            EXPECT_EQ(run(verb, harm).exitCode, 2) << verb.join(' ').toStdString();
        for (const QStringList &verb : kTelling)
            EXPECT_EQ(run(verb, harm).exitCode, 2) << verb.join(' ').toStdString();
    }
    EXPECT_EQ(changesOf(before, filesIn(folder())), "");
}

TEST_F(HonestStreamTest, tourComparesWhatItMoved)
{
    const Result result = run({"demo", "tour", "--json"});
    EXPECT_EQ(result.exitCode, 0) << result.out.toStdString();
    const QJsonObject json = result.json();
    for (const char *comparison : {"comparison", "beamComparison", "slabComparison"})
        EXPECT_EQ(json[QLatin1String(comparison)]["deviations"], QJsonArray()) << comparison;
    for (const char *apply : {"apply", "applyBeams", "applySlabs"})
        EXPECT_EQ(json[QLatin1String(apply)]["leftOut"], QJsonArray()) << apply;
}

} // namespace

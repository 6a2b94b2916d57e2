#include "Cases.h"
#include "CommandRun.h"
#include "Mutations.h"

#include <QDir>
#include <QJsonArray>
#include <QSet>

#include <gtest/gtest.h>

using namespace honestytest;

namespace {

/** A verb that tells what a document holds. */
struct Reading
{
    const char *name;
    QStringList verb;
    QString file; ///< of a sound document, for which the exit code is 0
    /** Where it tells what was not read as it stands. */
    QStringList told;
};

void PrintTo(const Reading &reading, std::ostream *out) { *out << reading.name; }

using Kinds = QMap<QString, QSet<int>>;

/** Kinds of the values by their place, entries of an array all at one place. */
void gather(const QJsonValue &value, const QString &place, Kinds &kinds)
{
    kinds[place].insert(value.type());
    const QJsonObject object = value.toObject();
    for (const QString &key : object.keys())
        gather(object[key], place + '.' + key, kinds);
    for (const QJsonValue entry : value.toArray())
        gather(entry, place + "[]", kinds);
}

/** The first value of a place or kind that a sound document has not; empty for none. Keys of maps, such as the numbers of
 *  rows, are names that a document is free to choose. */
QString firstForeign(const QJsonValue &document, const Kinds &known)
{
    Kinds kinds;
    gather(document, QString(), kinds);
    for (auto place = kinds.cbegin(); place != kinds.cend(); ++place)
        for (const int kind : place.value())
            if (!known.value(place.key()).contains(kind))
                return place.key();
    return {};
}

bool isInMap(const QString &place) { return place.startsWith(".parseDrawing"); }

class HonestReadTest : public ::testing::TestWithParam<Reading>
{
protected:
    void SetUp() override
    {
        m_document = fileObject(GetParam().file);
        gather(m_document, QString(), m_known);
    }
    const QJsonObject &document() const { return m_document; }

    std::string dishonestyOf(const QJsonValue &document)
    {
        writeFile("document.json", document);
        const Ran ran = run(GetParam().verb + QStringList{"document.json"});
        ++m_exits[ran.exitCode];
        if (ran.exitCode == 2)
            return ran.error["file"] == "document.json" && !ran.error["reason"].toString().isEmpty() ? "" : ran.shown();
        int told = 0;
        for (const QString &key : GetParam().told)
            told += ran.json[key].toArray().size();
        if (ran.exitCode == 3)
            return told > 0 ? "" : "left something out and does not tell what: " + ran.shown();
        const QString foreign = firstForeign(document, m_known);
        const bool isForeign = !foreign.isEmpty() && !isInMap(foreign) && !isFree(foreign);
        return ran.exitCode == 0 && !isForeign ? "" : foreign.toStdString() + " is passed over: " + ran.shown();
    }

    QMap<int, int> m_exits; // how often

private:
    /** What a format takes as it comes: the code of a floor, which is never read, and null where a number was not finite. */
    static bool isFree(const QString &place)
    {
        return place.startsWith(".Floors[].Code") || place.startsWith(".reviseScale[].originScale") ||
               place.startsWith(".locateDrawing[].axisInfo[].point[]") || isStage(place);
    }
    /** A stage that has not run. */
    static bool isStage(const QString &place) { return place.count('.') == 1 && !place.contains('['); }

    QJsonObject m_document;
    Kinds m_known;
};

TEST_P(HonestReadTest, soundDocumentIsReadWhole)
{
    EXPECT_EQ(dishonestyOf(document()), "");
    EXPECT_EQ(m_exits.value(0), 1);
}

TEST_P(HonestReadTest, whatIsChangedIsRefusedToldOrTaken)
{
    for (const Mutation &mutation : Mutations(document()).sample(3 * casesAsked(), kSeed))
        EXPECT_EQ(dishonestyOf(mutation.document), "") << mutation.what.toStdString();
    EXPECT_GT(m_exits.value(2) + m_exits.value(3), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Verbs, HonestReadTest,
    ::testing::Values(
        Reading{"floors", {"floors", "show"}, ORVCAD_CORPUS "/DrawingRecords/floors.json", {"leftOut"}},
        Reading{"drawingSet", {"drawings", "show"}, ORVCAD_EXAMPLES "/precast-hall.drawing-set.json", {"notRead"}},
        Reading{
            "drawingSetOfAllStages", {"drawings", "show"}, ORVCAD_TEST_DATA "/drawing/drawing-set.json", {"notRead"}},
        Reading{"floorExchange",
                {"drawings", "floors"},
                ORVCAD_EXAMPLES "/masonry-block.floor-sdc.json",
                {"notKept", "notStable"}},
        Reading{"beamResult", {"beam", "result"}, ORVCAD_TEST_DATA "/honesty/beam-result.json", {"leftOut"}},
        Reading{"columnInput", {"column", "check"}, ORVCAD_EXAMPLES "/precast-hall.column-input.json", {"findings"}},
        Reading{
            "columnResults", {"column", "check"}, ORVCAD_EXAMPLES "/precast-hall.column-results.json", {"findings"}},
        Reading{"columnCheck", {"column", "check"}, ORVCAD_TEST_DATA "/columns/check-input.json", {"findings"}}),
    [](const auto &test) { return std::string(test.param.name); });

/** Every document of the corpus, given to every verb that reads one: told or refused, and never thrown out of. */
TEST(HonestCorpusTest, anyDocumentGivenToAnyVerbEndsInOneOfFourWays)
{
    writeFile("building.json", fileContent(ORVCAD_CORPUS "/Exchange/small-house.json"));
    ASSERT_EQ(run({"project", "import", "building.json", "-o", "bare.hbxdb"}).exitCode, 0);
    const QByteArray bare = fileContent("bare.hbxdb");
    const QJsonValue region = fileObject("building.json")["regions"].toArray().at(0);
    const QString floor = region["floors"][0]["name"].toString();
    const QStringList verbs[] = {{"project", "import", "-o", "made.hbxdb"},
                                 {"floors", "show"},
                                 {"opening", "apply", "house.hbxdb"},
                                 {"slab", "apply", "house.hbxdb", "--floor", floor},
                                 {"slab", "apply", "house.hbxdb", "--floor", floor, "--as-new"},
                                 {"beam", "apply", "house.hbxdb"},
                                 {"beam", "result"},
                                 {"beam", "seats", "apply", "house.hbxdb"},
                                 {"wall", "apply", "house.hbxdb", "--kind", "brick"},
                                 {"wall", "apply", "house.hbxdb", "--kind", "force"},
                                 {"column", "check"},
                                 {"drawing", "show"},
                                 {"drawings", "show"},
                                 {"drawings", "floors"},
                                 {"project", "info"}};
    int files = 0;
    for (const QString &folder : QDir(ORVCAD_CORPUS).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        for (const QString &name : QDir(QStringLiteral(ORVCAD_CORPUS "/") + folder).entryList(QDir::Files)) {
            ++files;
            writeFile("given", fileContent(QStringLiteral(ORVCAD_CORPUS "/%1/%2").arg(folder, name)));
            for (const QStringList &verb : verbs) {
                writeFile("house.hbxdb", bare);
                const Ran ran = run(verb + QStringList{"given"});
                const bool isChanged = fileContent("house.hbxdb") != bare;
                EXPECT_TRUE(ran.exitCode == 0 || ran.exitCode == 2 || ran.exitCode == 3)
                    << folder.toStdString() << '/' << name.toStdString() << ran.shown();
                EXPECT_FALSE(ran.exitCode == 2 && (isChanged || ran.error["file"] != "given"))
                    << folder.toStdString() << '/' << name.toStdString() << ran.shown();
                EXPECT_EQ(ran.exitCode == 3 && ran.json.contains("leftOut"), !ran.json["leftOut"].toArray().isEmpty())
                    << ran.shown();
            }
        }
    EXPECT_GT(files, 70);
}

} // namespace

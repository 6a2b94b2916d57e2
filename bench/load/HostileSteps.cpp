#include "load/HostileSteps.h"

#include "load/EntryText.h"
#include "load/LoadRunner.h"

#include <QFile>

#include <array>
#include <iterator>
#include <vector>

namespace load {

namespace {

constexpr double kSeconds = 60.0;      // of the processor, for what takes a second per million entries at least
constexpr int kLongestAnswer = 100000; // bytes of a message that people can read

/** A verb that reads a document, and where in the document its records stand. */
struct Verb
{
    QStringList words; ///< "#" is the file, "P" a project
    const char *start; ///< up to the records
    const char *end;
};

const Verb kVerbs[] = {
    {{"project", "import", "#", "-o", "Q"},
     R"({"format":"hbx-project","version":1,"name":"Many","regions":[{"name":"House","floors":[)",
     "]}]}"},
    {{"floors", "show", "#"}, R"({"AreaName":"A","Floors":[)", "]}"},
    {{"opening", "apply", "P", "#"}, R"({"eDoorWin":{"ElementsAndEdos":[)", "]}}"},
    {{"slab", "apply", "P", "--floor", "1", "#"}, R"({"boards":[)", "]}"},
    {{"beam", "apply", "P", "#"}, R"({"LinkBeam":[],"FDBeam":[],"Beam":[)", "]}"},
    {{"beam", "seats", "apply", "P", "#"}, R"({"etIsolatedFD":[)", "]}"},
    {{"beam", "result", "#"}, R"({"elementInfoList":[)", "]}"},
    {{"wall", "apply", "P", "--kind", "brick", "#"},
     R"({"eBrickWall":{"ElementsAndEdos":{"BrickWallIdentifyData":{"key_0":{},"value_0":[)",
     "]}}}}"},
    {{"column", "check", "#"}, R"({"drawing":"D","floorCode":"1","resultData":[)", "]}"},
    {{"drawing", "show", "#"}, R"({"format":"cadi2","version":1,"layers":[)", "]}"},
    {{"drawings", "show", "#"}, R"({"splitDrawing":{},"parseDrawing":{},"floorInfos":{},"matchFloorInfo":[)", "]}"},
    {{"drawings", "floors", "#"}, R"({"FloorSDCData":[)", "]}"},
};

/** What stands in the place of the records. */
struct Harm
{
    const char *name;
    const char *start;
    const char *entry;
    const char *end;
    const char *between;
    qint64 entries;
    qint64 small;
};
constexpr qint64 kMillion = 1000 * 1000;
const Harm kHarms[] = {
    {"arrays within arrays", "", "[", "", "", kMillion, kMillion / 10},
    {"objects within objects", "", R"({"a":)", "", "", kMillion, kMillion / 10},
    {"a number of 100 MB", "", "1234567890", "", "", 10 * kMillion, kMillion},
    {"a text of 100 MB", "\"", "0123456789", "\"", "", 10 * kMillion, kMillion},
    {"a name of 100 MB", R"({"name":")", "0123456789", "\"}", "", 10 * kMillion, kMillion},
    {"a key of 100 MB twice", R"({"name":1,"name)", "0123456789", "\":1}", "", 10 * kMillion, kMillion},
    {"numbers", "", "1", "", ",", kMillion, kMillion / 5},
    {"empty objects", "", "{}", "", ",", 10 * kMillion, kMillion / 5},
};

constexpr int kHarmCount = std::size(kHarms);

/** Texts of all verbs with all harms, put together once. */
struct Texts
{
    Texts()
    {
        for (const Verb &verb : kVerbs)
            for (const Harm &harm : kHarms) {
                parts.push_back({QByteArray(verb.start) + harm.start, QByteArray(harm.end) + verb.end});
                harms.push_back(&harm);
            }
        for (std::size_t i = 0; i < parts.size(); ++i)
            all.push_back({parts[i][0].constData(), harms[i]->entry, parts[i][1].constData(), harms[i]->between});
    }

    std::vector<std::array<QByteArray, 2>> parts; ///< start and end
    std::vector<const Harm *> harms;
    std::vector<EntryText> all;
};

QString whyNotPlain(const bench::ChildCost &cost)
{
    if (cost.exitCode != 0 && cost.exitCode != 2 && cost.exitCode != 3)
        return QStringLiteral("ended with %1").arg(cost.exitCode);
    if (cost.exitCode == 2 && !cost.err.startsWith("orvcad: "))
        return QStringLiteral("no message: ") + QString::fromUtf8(cost.err.left(100));
    if (cost.errBytes > kLongestAnswer)
        return QStringLiteral("a message of %1 bytes").arg(cost.errBytes);
    return {};
}

QStringList argumentsOf(const LoadRunner &runner, const Verb &verb, const QString &file)
{
    QStringList arguments;
    for (const QString &word : verb.words) {
        const bool isFile = word == QLatin1String("#");
        const bool isProject = word == QLatin1String("P") || word == QLatin1String("Q");
        arguments.append(isFile ? file : isProject ? runner.path(word + QStringLiteral(".hbxdb")) : word);
    }
    return arguments;
}

void runOne(LoadRunner &runner, int verbNumber, int harmNumber)
{
    const Verb &verb = kVerbs[verbNumber];
    const Harm &harm = kHarms[harmNumber];
    Series series{QStringLiteral("hostile: %1: %2")
                      .arg(QStringList(verb.words.mid(0, 2)).join(QLatin1Char(' ')), QString::fromLatin1(harm.name)),
                  {{}, {}, {}, kSeconds},
                  {}};
    if (!runner.isWanted(series.step))
        return;
    const QString file = runner.path(QStringLiteral("hostile.json"));
    const qint64 entries = runner.options().isSmall ? harm.small : harm.entries;
    runner.prepare({"hostile", QString::number(verbNumber * kHarmCount + harmNumber), QString::number(entries), file});
    Run run;
    run.size = static_cast<double>(entries);
    run.documentBytes = runner.bytesOf(QStringLiteral("hostile.json"));
    run.cost = runner.commandForPeople(argumentsOf(runner, verb, file));
    run.failure = whyNotPlain(run.cost);
    series.runs.push_back(std::move(run));
    runner.add(std::move(series));
    QFile::remove(file);
}

} // namespace

const EntryText &hostileText(int number)
{
    static const Texts texts;
    return texts.all.at(static_cast<std::size_t>(number));
}

void runHostileSteps(LoadRunner &runner)
{
    const QString house = runner.path(QStringLiteral("house.json"));
    runner.prepare({"crowd", "-1", "0", house});
    runner.prepareByCommand({"project", "import", house, "-o", runner.path(QStringLiteral("P.hbxdb"))});
    for (int verb = 0; verb < static_cast<int>(std::size(kVerbs)); ++verb)
        for (int harm = 0; harm < kHarmCount; ++harm)
            runOne(runner, verb, harm);
}

} // namespace load

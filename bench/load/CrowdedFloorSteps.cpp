#include "load/CrowdedFloorSteps.h"

#include "load/EntryText.h"
#include "load/LoadRunner.h"

#include <QFile>

#include <iterator>

namespace load {

namespace {

// As for buildings; a floor's index and its names are hashed.
constexpr double kTimeGrowth = 1.15;
constexpr double kMemoryGrowth = 1.1;

// Not held to it are rafts with more than thousands of bars: the text of a raft that tells its bars is looked through for
// each that is added, which shows beyond 10,000 (at 16,000 with 1.17).

constexpr int kSteps = 3;

const QString kHouse = QStringLiteral("house.hbxdb");
const QString kProject = QStringLiteral("crowd.hbxdb");
const QString kReply = QStringLiteral("reply.json");

/** A building of one floor, all of which a raft lies under. */
constexpr EntryText kEmptyFloor{
    R"({"format":"hbx-project","version":1,"name":"Crowd","regions":[{"name":"House","floors":[{"name":"1","code":"1",)"
    R"("bottomElev":0,"height":3,"elements":[{"name":"FB-1","type":48,"properties":{"Thickness":500},"drawObjects":[)"
    R"j({"shape":{"kind":"face","outline":"POLYGON((-1000 -1000, 9000000 -1000, 9000000 9000000, -1000 -1000))",)j"
    R"("height":-500}}]}]}]}]})",
    "", ""};

struct Crowd
{
    const char *name;
    const char *count; ///< key of the summary that tells how many were made
    QStringList verb;  ///< words in front of project and reply
    QStringList place; ///< words behind them
    EntryText reply;
    int entries[kSteps];
    int small[kSteps];
    int exitCode = 0;
};

const Crowd kCrowds[] = {
    {"floor: walls of one name",
     "placed",
     {"wall", "apply"},
     {"--kind", "brick"},
     {R"({"eBrickWall":{"ElementsAndEdos":{"BrickWallIdentifyData":{)",
      R"("key_#":{"edoId":"#","entName":"Q","elementType":"1003","elementSubType":"316","width":"200",)"
      R"("floorCode":"1","region":"House"},"value_#":[{"sWidth":"200","sWorldLine":"#000,0,#900,0",)"
      R"("sPfnStartPtTopElev":"2.8","sPfnStartPtBottomElev":"0","sPfnEndPtTopElev":"2.8","sPfnEndPtBottomElev":"0"}])",
      "}}}}"},
     {2000, 20000, 200000},
     {500, 2000, 10000},
     3}, // all but one get another name, which is told
    {"floor: doors of one element",
     "placed",
     {"opening", "apply"},
     {},
     {R"({"eDoorWin":{"ElementsAndEdos":[{"elementID":1,"name":"M","nElementType":4,"nHeight":2100,"nWidth":800,)"
      R"("nHeightFromFloor":0,"floorName":"1","regionName":"House"},)",
      R"({"elementName":"M","X":#e3,"Y":0,"nHeightFromFloor":0,"floorName":"1","regionName":"House"})", "]}}"},
     {2000, 20000, 200000},
     {500, 2000, 10000}},
    {"floor: beams",
     "made.chains",
     {"beam", "apply"},
     {},
     {R"({"LinkBeam":[],"FDBeam":[],"Beam":[)",
      R"({"ElementInfo":{"Name":"KL-#","ElementType":15,"ElementSubType":3,"FloorName":"1","RegionName":"House",)"
      R"("SectionWidth":300,"SectionHeight":600},"EDOInfo":[{"BeamSegmentInfo":[{"AxisOffset":0,"Index":0,)"
      R"("LineWidth":300,"StartPtTopElev":"3.3","EndPtTopElev":"3.3","WordLine":"#000,0,#900,0"}],)"
      R"("BeamSpanInfo":[{"SpanIndex":1,"SpanLength":5000,"Section":"300*600"}]}]})",
      "]}"},
     {1000, 10000, 100000},
     {500, 2000, 10000}},
    {"floor: chains of one beam",
     "made.chains",
     {"beam", "apply"},
     {},
     {R"({"LinkBeam":[],"FDBeam":[],"Beam":[{"ElementInfo":{"Name":"KL","ElementType":15,"ElementSubType":3,)"
      R"("FloorName":"1","RegionName":"House","SectionWidth":300,"SectionHeight":600},"EDOInfo":[)",
      R"({"BeamSegmentInfo":[{"AxisOffset":0,"Index":0,"LineWidth":300,"StartPtTopElev":"3.3","EndPtTopElev":"3.3",)"
      R"("WordLine":"#000,0,#900,0"}],"BeamSpanInfo":[]})",
      "]}]}"},
     {1000, 10000, 100000},
     {500, 2000, 10000}},
    {"floor: slabs",
     "made",
     {"slab", "apply"},
     {"--floor", "1"},
     {R"({"boards":[)",
      R"j({"name":"B","surface":"POLYGON((#0000 0, #4000 0, #4000 3000, #0000 3000, #0000 0))","thinkness":120,)j"
      R"("elev":3,"recongnizedID":"","type":3})",
      "]}"},
     {1000, 5000, 20000},
     {500, 1000, 4000}},
    {"floor: bars of one raft, each with its outline",
     "made",
     {"slab", "apply"},
     {"--floor", "1"},
     {R"({"raft_main_forced_bars":[)",
      R"j({"name":"ZJ","surface":"POLYGON((#00 0, #90 0, #90 3000, #00 3000, #00 0))","direction_x":0,"direction_y":1,)j"
      R"("bar_info":"C16@200","ref_point_x":#e1,"ref_point_y":20,"ref_point_valid":true,"forced_type":2,)"
      R"("row_number":1})",
      "]}"},
     {1000, 2500, 6000},
     {500, 1000, 4000}},
    {"floor: bars of one raft in one outline",
     "made",
     {"slab", "apply"},
     {"--floor", "1"},
     {R"({"raft_main_forced_bars":[)",
      R"j({"name":"ZJ","surface":"POLYGON((0 0, 800000 0, 800000 600000, 0 600000, 0 0))","direction_x":0,)j"
      R"("direction_y":1,"bar_info":"C16@200","ref_point_x":#e1,"ref_point_y":20,"ref_point_valid":true,)"
      R"("forced_type":2,"row_number":1})",
      "]}"},
     {1000, 2500, 6000},
     {500, 1000, 4000}},
};

Run runOf(const LoadRunner &runner, const Crowd &crowd, int entries)
{
    const QString number = QString::number(std::distance(std::begin(kCrowds), &crowd));
    runner.prepare({"crowd", number, QString::number(entries), runner.path(kReply)});
    QFile::remove(runner.path(kProject));
    QFile::copy(runner.path(kHouse), runner.path(kProject));
    Run run;
    run.size = entries;
    run.documentBytes = runner.bytesOf(kReply);
    run.cost = runner.command(crowd.verb + QStringList{runner.path(kProject), runner.path(kReply)} + crowd.place);
    run.failure = runner.failureOf(run.cost, QString::fromLatin1(crowd.count), entries, crowd.exitCode);
    return run;
}

} // namespace

const EntryText &crowdReply(int number) { return number < 0 ? kEmptyFloor : kCrowds[number].reply; }

void runCrowdedFloorSteps(LoadRunner &runner)
{
    const QString house = runner.path(QStringLiteral("house.json"));
    runner.prepare({"crowd", "-1", "0", house});
    runner.prepareByCommand({"project", "import", house, "-o", runner.path(kHouse)});
    for (const Crowd &crowd : kCrowds) {
        Series series{QString::fromLatin1(crowd.name), {kTimeGrowth, kMemoryGrowth, {}, {}}, {}};
        if (!runner.isWanted(series.step))
            continue;
        for (const int entries : runner.options().isSmall ? crowd.small : crowd.entries)
            series.runs.push_back(LoadRunner::leastOf([&] { return runOf(runner, crowd, entries); }));
        runner.add(std::move(series));
    }
}

} // namespace load

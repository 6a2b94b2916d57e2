#include "cli/BeamComparison.h"
#include "cli/Beams.h"
#include "cli/Counted.h"
#include "cli/DifferenceReport.h"
#include "cli/Files.h"
#include "cli/FloorLookup.h"
#include "cli/FloorsDocument.h"
#include "cli/HtmlPage.h"
#include "cli/Message.h"
#include "cli/OpeningComparison.h"
#include "cli/Openings.h"
#include "cli/PlanSvg.h"
#include "cli/ProjectFiles.h"
#include "cli/ProjectInfo.h"
#include "cli/RecordTour.h"
#include "cli/SlabArrays.h"
#include "cli/SlabComparison.h"
#include "cli/SlabExport.h"
#include "cli/SlabNewIdentities.h"
#include "cli/Slabs.h"
#include "cli/Verb.h"
#include "cli/WallTour.h"
#include "drawing/ORVCADFloor.h"
#include "drawing/ORVCADFloors.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXService.h"

#include <CLI/CLI.hpp>

#include <QJsonDocument>
#include <QStringList>

using hbx::embedded::HBXProject;

namespace orvcad {

namespace {

const QString kBuilding = QStringLiteral(":/demo/masonry-block.json");
const QString kDrawnFloor = QStringLiteral("Level 1");
const QString kOriginal = QStringLiteral("building.hbxdb");
const QString kRestored = QStringLiteral("restored.hbxdb");
const QString kStripped = QStringLiteral("stripped.hbxdb");

const WallTour::Stop kBrickWalls{"brick", kDrawnFloor, kOriginal, kRestored, QStringLiteral("walls.json")};

// Load-bearing walls: the building has none, so another one stands in.
const QString kHall = QStringLiteral(":/demo/precast-hall.json");
const WallTour::Stop kForceWalls{"force", QStringLiteral("Ground floor"), QStringLiteral("hall.hbxdb"),
                                 QStringLiteral("hall-restored.hbxdb"), QStringLiteral("hall-walls.json")};

/** What the tour says as it goes. */
class Tour
{
public:
    explicit Tour(QString directory) : m_directory(std::move(directory)) {}

    QString path(const QString &name) { return fileIn(m_directory, name); }
    /** One step: its command, as one would type it, and what came of it. */
    void step(const QString &typed, const QString &outcome)
    {
        m_lines.append(QStringLiteral("$ orvcad ") + typed);
        for (const QString &line : outcome.split('\n'))
            m_lines.append(QStringLiteral("  ") + line);
    }
    void step(const TourStep &step) { this->step(step.typed, step.outcome); }
    void say(const QString &line) { m_lines.append(line); }
    QString text() const { return m_lines.join('\n'); }

private:
    QString m_directory;
    QStringList m_lines;
};

/** Puts a building of the program and a project of it into the directory: two files of the same name. */
std::unique_ptr<HBXProject> importBuilding(Tour &tour, const QString &building, const QString &projectFile)
{
    const QByteArray json = readFile(building);
    const QString jsonFile = QString(projectFile).replace(QLatin1String(".hbxdb"), QLatin1String(".json"));
    writeResult(tour.path(jsonFile), json);
    auto project = projectOfBuilding(json, jsonFile);
    saveProjectAs(*project, tour.path(projectFile));
    tour.say(Message::tr("Building: %1 (%2)").arg(project->name(), project->source()));
    tour.step(QStringLiteral("project import %1 -o %2").arg(jsonFile, projectFile), projectInfo(*project).counts());
    return project;
}

QString nameOf(ORVCADFloor *floor) { return floor ? floor->name() : Message::tr("none"); }

void writeAndReadFloors(Tour &tour, const HBXProject &project)
{
    const QString path = tour.path(QStringLiteral("floors.json"));
    const auto written = floorsOfRegion(requireRegion(project, QString()));
    writeResult(path, written->toJson());
    const FloorsDocument read = readFloorsDocument(path);
    tour.step(QStringLiteral("floors export building.hbxdb -o floors.json && orvcad floors show floors.json"),
              Message::tr("%1 of \"%2\": base %3, first %4, highest %5")
                  .arg(counted(read.floors->getCount(), Message::tr("floor")), read.floors->getAreaName(),
                       nameOf(read.floors->getBaseFloor()), nameOf(read.floors->getFirstFloor()),
                       nameOf(read.floors->getHighestFloor())));
}

QJsonObject writePayload(Tour &tour, const HBXProject &project)
{
    OpeningCounts counts;
    QJsonObject reply = openingReply(*project.service()->model(), pickFloors(project, QString(), QString()), counts);
    const QByteArray json = QJsonDocument(reply).toJson();
    writeResult(tour.path(QStringLiteral("openings.json")), json);
    tour.step(QStringLiteral("opening export building.hbxdb -o openings.json"),
              Message::tr("%1 and %2, %3 of them in a wall, %4 bytes")
                  .arg(counted(counts.elements, Message::tr("element")),
                       counted(counts.placed, Message::tr("placed opening")))
                  .arg(counts.attached)
                  .arg(json.size()));
    return reply;
}

void writeBeams(Tour &tour, HBXProject &project)
{
    BeamCounts counts;
    const QJsonObject document = beamDocument(project, pickFloors(project, QString(), kDrawnFloor), counts);
    writeResult(tour.path(QStringLiteral("beams.json")), document);
    tour.step(QStringLiteral("beam export building.hbxdb --floor \"%1\" -o beams.json").arg(kDrawnFloor),
              counts.text());
}

IHBXFloor &drawnFloor(const HBXProject &project)
{
    return requireFloor(project, requireRegion(project, QString()), kDrawnFloor);
}

void writeSlabs(Tour &tour, const HBXProject &project)
{
    const QJsonObject document = slabDocument(project, drawnFloor(project), SlabParts());
    writeResult(tour.path(QStringLiteral("slabs.json")), document);
    tour.step(QStringLiteral("slab export building.hbxdb --floor \"%1\" -o slabs.json").arg(kDrawnFloor),
              slabCountsText(document));
}

void drawFloor(Tour &tour, const HBXProject &project, const QString &projectFile, const QString &picture,
               const QString &floorName = kDrawnFloor)
{
    IHBXFloor &floor = requireFloor(project, requireRegion(project, QString()), floorName);
    const PlanSvg plan = drawPlan(*project.service()->model(), floor, project.name());
    writeResult(tour.path(picture), plan.document);
    tour.step(QStringLiteral("draw %1 --floor \"%2\" -o %3").arg(projectFile, floorName, picture),
              Message::tr("%1 at 1:%2").arg(counted(plan.drawn, Message::tr("placed object"))).arg(plan.scale));
}

/** Pages for a browser: the building with what the replies made, and what they changed of the copy that had lost it. */
void drawPages(Tour &tour, const HBXProject &restored)
{
    const HtmlPage building = htmlPageOf(restored, pickFloors(restored, QString(), QString()));
    writeResult(tour.path(QStringLiteral("building.html")), building.document);
    tour.step(QStringLiteral("draw restored.hbxdb -o building.html"),
              Message::tr("%1 on %2")
                  .arg(counted(building.drawn, Message::tr("placed object")),
                       counted(building.floors, Message::tr("floor"))));
    const auto stripped = openProject(tour.path(kStripped));
    const ProjectDifference difference = differenceBetween(*stripped, restored);
    writeResult(tour.path(QStringLiteral("changes.html")), htmlPageOf(*stripped, restored, difference).document);
    tour.step(QStringLiteral("draw stripped.hbxdb --against restored.hbxdb -o changes.html"),
              DifferenceReport(difference).headline());
}

/** The copy that has lost its doors and windows and the beams and slabs of a floor, saved and opened again. */
std::unique_ptr<HBXProject> stripCopy(Tour &tour, HBXProject &project, const QString &path)
{
    const int openings = removeOpenings(project);
    const int beams = removeBeams(project, drawnFloor(project));
    const int slabs = removeSlabs(project, drawnFloor(project));
    saveProjectAs(project, path);
    saveProjectAs(project, tour.path(kStripped));
    tour.say(
        Message::tr("A copy, restored.hbxdb, loses all doors and windows (%1) and the beams (%2) and slabs (%3) of "
                    "%4, with all that is placed.")
            .arg(counted(openings, Message::tr("element")), counted(beams, Message::tr("element")),
                 counted(slabs, Message::tr("element")), kDrawnFloor));
    return openProject(path);
}

OpeningOutcome applyPayload(Tour &tour, HBXProject &project)
{
    const QString path = tour.path(QStringLiteral("openings.json"));
    OpeningOutcome outcome = applyOpenings(project, openingMembers(readJsonFile(path).object(), path));
    saveProject(project);
    tour.step(QStringLiteral("opening apply restored.hbxdb openings.json"), outcome.text());
    return outcome;
}

BeamOutcome applyBeamPayload(Tour &tour, HBXProject &project)
{
    const QString path = tour.path(QStringLiteral("beams.json"));
    BeamOutcome outcome = applyBeams(project, readJsonFile(path).object(), path);
    saveProject(project);
    tour.step(QStringLiteral("beam apply restored.hbxdb beams.json"),
              outcome.headline() + leftOutLines(outcome.leftOut));
    return outcome;
}

SlabOutcome applySlabPayload(Tour &tour, HBXProject &project)
{
    const QString path = tour.path(QStringLiteral("slabs.json"));
    SlabOutcome outcome =
        applySlabs(project, drawnFloor(project), withNewIdentities(readJsonFile(path).object()), path);
    writeResult(tour.path(QStringLiteral("slab-ids.json")), outcome.idMap());
    saveProject(project);
    tour.step(QStringLiteral("slab apply restored.hbxdb --floor \"%1\" slabs.json --as-new --ids slab-ids.json")
                  .arg(kDrawnFloor),
              outcome.text());
    return outcome;
}

/** What the replies did. */
struct Outcomes
{
    OpeningOutcome openings;
    BeamOutcome beams;
    SlabOutcome slabs;

    bool isComplete() const { return openings.leftOut.empty() && beams.leftOut.empty() && slabs.leftOut.empty(); }
};

/** The walls of another building, from one copy to the other, with pictures. */
WallTour visitHall(Tour &tour, const QString &directory)
{
    WallTour walls(directory, kForceWalls);
    auto project = importBuilding(tour, kHall, kForceWalls.original);
    tour.step(walls.write(*project));
    tour.say(Message::tr("A copy: %1").arg(walls.strip(*project)));
    saveProjectAs(*project, tour.path(kForceWalls.restored));
    project = openProject(tour.path(kForceWalls.restored));
    drawFloor(tour, *project, kForceWalls.restored, QStringLiteral("hall-before.svg"), kForceWalls.floor);
    tour.step(walls.apply(*project));
    drawFloor(tour, *project, kForceWalls.restored, QStringLiteral("hall-after.svg"), kForceWalls.floor);
    project.reset();
    tour.say(walls.compare());
    return walls;
}

/** Compares the saved projects, says what came of it and gives the summary of the tour. */
Summary conclude(Tour &tour, const QString &directory, const Outcomes &outcomes, WallTour &brickWalls)
{
    const auto original = openProject(tour.path(kOriginal));
    const auto restored = openProject(tour.path(kRestored));
    const OpeningComparison comparison = compareOpenings(*original, *restored);
    const BeamComparison beamComparison = compareBeams(*original, *restored, kDrawnFloor);
    const SlabComparison slabComparison = compareSlabs(*original->service()->model(), drawnFloor(*original),
                                                       *restored->service()->model(), drawnFloor(*restored));
    tour.say(comparison.text());
    tour.say(beamComparison.text());
    tour.say(slabComparison.text());
    tour.say(brickWalls.compare());
    drawPages(tour, *restored);
    const WallTour forceWalls = visitHall(tour, directory);
    RecordTour records(directory);
    tour.step(records.showDrawings());
    tour.step(records.checkColumns());
    tour.say(Message::tr("Everything stands in %1; before.svg and after.svg, hall-before.svg and "
                         "hall-after.svg are the pictures, building.html and changes.html the pages.")
                 .arg(directory));
    const bool isSame = comparison.isSame() && beamComparison.isSame() && slabComparison.isSame() &&
                        brickWalls.isSame() && forceWalls.isSame() && records.isSame();
    return {tour.text(),
            {{"directory", directory},
             {"apply", outcomes.openings.toJson()},
             {"comparison", comparison.toJson()},
             {"applyBeams", outcomes.beams.toJson()},
             {"beamComparison", beamComparison.toJson()},
             {"applySlabs", outcomes.slabs.toJson()},
             {"slabComparison", slabComparison.toJson()},
             {"brickWalls", brickWalls.toJson()},
             {"forceWalls", forceWalls.toJson()}},
            isSame && outcomes.isComplete() ? kDone : kLeftOut};
}

/** The tour: a real building is imported, its floors are written and read, its doors and windows and the beams, slabs and
 *  brick walls of a floor are written out, taken as replies into a copy of the building that has lost them, and drawn before
 *  and after; so are the load-bearing walls of another building, whose drawing set and columns are read. Everything made
 *  stands in the directory; what the tour compares is compared, and a difference ends it with exit code 3. */
Summary runTour(const Arguments &arguments)
{
    const QString directory = Arguments::text(arguments.output);
    Tour tour(directory);
    WallTour walls(directory, kBrickWalls);
    auto project = importBuilding(tour, kBuilding, kOriginal);
    writeAndReadFloors(tour, *project);
    writePayload(tour, *project);
    writeBeams(tour, *project);
    writeSlabs(tour, *project);
    tour.step(walls.write(*project));
    const QString lostWalls = walls.strip(*project);
    project = stripCopy(tour, *project, tour.path(kRestored));
    tour.say(lostWalls);
    drawFloor(tour, *project, kRestored, QStringLiteral("before.svg"));
    Outcomes outcomes;
    tour.step(walls.apply(*project)); // ahead of the openings, which stand in them
    outcomes.openings = applyPayload(tour, *project);
    outcomes.beams = applyBeamPayload(tour, *project);
    outcomes.slabs = applySlabPayload(tour, *project);
    drawFloor(tour, *project, kRestored, QStringLiteral("after.svg"));
    project.reset();
    return conclude(tour, directory, outcomes, walls);
}

} // namespace

void addDemoCommand(CLI::App &app, Command &command)
{
    Verb verb(app, command, "demo", Message::help("Take a real building through every road, into a directory"),
              runTour);
    verb.arguments().output = "orvcad-demo";
    verb.app()
        .add_option("DIR", verb.arguments().output, Message::help("Directory for what the tour makes"))
        ->capture_default_str();
}

} // namespace orvcad

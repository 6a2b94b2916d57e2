#include "cli/Demo.h"

#include "cli/BeamComparison.h"
#include "cli/Beams.h"
#include "cli/Files.h"
#include "cli/FloorsDocument.h"
#include "cli/OpeningComparison.h"
#include "cli/Openings.h"
#include "cli/PlanSvg.h"
#include "cli/ProjectInfo.h"
#include "drawing/ORVCADFloor.h"
#include "drawing/ORVCADFloors.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXService.h"

#include <QFile>
#include <QJsonDocument>
#include <QStringList>

using hbx::embedded::HBXProject;
using hbx::embedded::ProjectError;

namespace orvcad {

namespace {

const QString kBuilding = QStringLiteral(":/demo/masonry-block.json");
const QString kDrawnFloor = QStringLiteral("Level 1");
const QString kOriginal = QStringLiteral("building.hbxdb");
const QString kRestored = QStringLiteral("restored.hbxdb");

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
    void say(const QString &line) { m_lines.append(line); }
    QString text() const { return m_lines.join('\n'); }

private:
    QString m_directory;
    QStringList m_lines;
};

std::unique_ptr<HBXProject> importBuilding(Tour &tour, const QString &path)
{
    const QByteArray json = readFile(kBuilding);
    writeResult(tour.path(QStringLiteral("building.json")), json);
    ProjectError error;
    auto project = HBXProject::fromJson(json, QStringLiteral("building.json"), error);
    if (!project)
        throw CommandFailure(kBadInput, error.file, error.place, error.reason);
    saveProjectAs(*project, path);
    tour.say(QStringLiteral("Building: %1 (%2)").arg(project->name(), project->source()));
    tour.step(QStringLiteral("project import building.json -o building.hbxdb"), projectInfo(*project).counts());
    return project;
}

QString nameOf(ORVCADFloor *floor) { return floor ? floor->name() : QStringLiteral("none"); }

void writeAndReadFloors(Tour &tour, const HBXProject &project)
{
    const QString path = tour.path(QStringLiteral("floors.json"));
    const auto written = floorsOfRegion(requireRegion(project, QString()));
    writeResult(path, QJsonDocument(written->toJson()).toJson());
    const FloorsDocument read = readFloorsDocument(path);
    tour.step(QStringLiteral("floors export building.hbxdb -o floors.json && orvcad floors show floors.json"),
              QStringLiteral("%1 of \"%2\": base %3, first %4, highest %5")
                  .arg(counted(read.floors->getCount(), QStringLiteral("floor")), read.floors->getAreaName(),
                       nameOf(read.floors->getBaseFloor()), nameOf(read.floors->getFirstFloor()),
                       nameOf(read.floors->getHighestFloor())));
}

QJsonObject writePayload(Tour &tour, const HBXProject &project)
{
    OpeningOutcome counts;
    QJsonObject reply = openingReply(*project.service()->model(), pickFloors(project, QString(), QString()), counts);
    const QByteArray json = QJsonDocument(reply).toJson();
    writeResult(tour.path(QStringLiteral("openings.json")), json);
    tour.step(QStringLiteral("opening export building.hbxdb -o openings.json"),
              QStringLiteral("%1 and %2, %3 of them in a wall, %4 bytes")
                  .arg(counted(counts.elements, QStringLiteral("element")),
                       counted(counts.placed, QStringLiteral("placed opening")))
                  .arg(counts.attached)
                  .arg(json.size()));
    return reply;
}

void writeBeams(Tour &tour, HBXProject &project)
{
    BeamCounts counts;
    const QJsonObject document = beamDocument(project, pickFloors(project, QString(), kDrawnFloor), counts);
    writeResult(tour.path(QStringLiteral("beams.json")), QJsonDocument(document).toJson());
    tour.step(QStringLiteral("beam export building.hbxdb --floor \"%1\" -o beams.json").arg(kDrawnFloor),
              counts.text());
}

void drawFloor(Tour &tour, const HBXProject &project, const QString &projectFile, const QString &picture)
{
    IHBXRegion &region = requireRegion(project, QString());
    IHBXFloor &floor = requireFloor(project, region, kDrawnFloor);
    const PlanSvg plan = drawPlan(*project.service()->model(), floor, project.name());
    writeResult(tour.path(picture), plan.document);
    tour.step(QStringLiteral("draw %1 --floor \"%2\" -o %3").arg(projectFile, kDrawnFloor, picture),
              QStringLiteral("%1 at 1:%2").arg(counted(plan.drawn, QStringLiteral("placed object"))).arg(plan.scale));
}

/** The copy that has lost its doors and windows and the beams of a floor, saved and opened again. */
std::unique_ptr<HBXProject> stripCopy(Tour &tour, HBXProject &project, const QString &path)
{
    const int openings = removeOpenings(project);
    const int beams = removeBeams(project, *pickFloors(project, QString(), kDrawnFloor).front());
    saveProjectAs(project, path);
    tour.say(
        QStringLiteral("A copy, restored.hbxdb, loses all doors and windows (%1) and the beams of %2 (%3), with all "
                       "that is placed.")
            .arg(counted(openings, QStringLiteral("element")), kDrawnFloor, counted(beams, QStringLiteral("element"))));
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

/** Compares the saved projects, says what came of it and gives the summary of the tour. */
Summary conclude(Tour &tour, const QString &directory, const OpeningOutcome &openings, const BeamOutcome &beams)
{
    const auto original = openProject(tour.path(kOriginal));
    const auto restored = openProject(tour.path(kRestored));
    const OpeningComparison comparison = compareOpenings(*original, *restored);
    const BeamComparison beamComparison = compareBeams(*original, *restored, kDrawnFloor);
    tour.say(comparison.text());
    tour.say(beamComparison.text());
    tour.say(QStringLiteral("Everything stands in %1; before.svg and after.svg are the pictures.").arg(directory));
    const bool isSame = comparison.isSame() && beamComparison.isSame();
    return {tour.text(),
            {{"directory", directory},
             {"apply", openings.toJson()},
             {"comparison", comparison.toJson()},
             {"applyBeams", beams.toJson()},
             {"beamComparison", beamComparison.toJson()}},
            isSame && openings.leftOut.empty() && beams.leftOut.empty() ? kDone : kLeftOut};
}

} // namespace

Summary runDemo(const QString &directory)
{
    Tour tour(directory);
    auto project = importBuilding(tour, tour.path(kOriginal));
    writeAndReadFloors(tour, *project);
    writePayload(tour, *project);
    writeBeams(tour, *project);
    project = stripCopy(tour, *project, tour.path(kRestored));
    drawFloor(tour, *project, kRestored, QStringLiteral("before.svg"));
    const OpeningOutcome openings = applyPayload(tour, *project);
    const BeamOutcome beams = applyBeamPayload(tour, *project);
    drawFloor(tour, *project, kRestored, QStringLiteral("after.svg"));
    project.reset();
    return conclude(tour, directory, openings, beams);
}

} // namespace orvcad

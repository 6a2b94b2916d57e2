#include "cli/Demo.h"

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

void drawFloor(Tour &tour, const HBXProject &project, const QString &projectFile, const QString &picture)
{
    IHBXRegion &region = requireRegion(project, QString());
    IHBXFloor &floor = requireFloor(project, region, kDrawnFloor);
    const PlanSvg plan = drawPlan(*project.service()->model(), floor, project.name());
    writeResult(tour.path(picture), plan.document);
    tour.step(QStringLiteral("draw %1 --floor \"%2\" -o %3").arg(projectFile, kDrawnFloor, picture),
              QStringLiteral("%1 at 1:%2").arg(counted(plan.drawn, QStringLiteral("placed object"))).arg(plan.scale));
}

/** The copy that has lost its doors and windows, saved and opened again. */
std::unique_ptr<HBXProject> stripCopy(Tour &tour, HBXProject &project, const QString &path)
{
    const int removed = removeOpenings(project);
    saveProjectAs(project, path);
    tour.say(QStringLiteral("A copy, restored.hbxdb, loses all doors and windows: %1 removed with all that is placed.")
                 .arg(counted(removed, QStringLiteral("element"))));
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

} // namespace

Summary runDemo(const QString &directory)
{
    Tour tour(directory);
    const QString original = tour.path(QStringLiteral("building.hbxdb"));
    const QString restored = tour.path(QStringLiteral("restored.hbxdb"));

    auto project = importBuilding(tour, original);
    writeAndReadFloors(tour, *project);
    writePayload(tour, *project);
    project = stripCopy(tour, *project, restored);
    drawFloor(tour, *project, QStringLiteral("restored.hbxdb"), QStringLiteral("before.svg"));
    const OpeningOutcome outcome = applyPayload(tour, *project);
    drawFloor(tour, *project, QStringLiteral("restored.hbxdb"), QStringLiteral("after.svg"));

    const OpeningComparison comparison = compareOpenings(*openProject(original), *openProject(restored));
    tour.say(comparison.text());
    tour.say(QStringLiteral("Everything stands in %1; before.svg and after.svg are the pictures.").arg(directory));
    return {tour.text(),
            {{"directory", directory}, {"apply", outcome.toJson()}, {"comparison", comparison.toJson()}},
            comparison.isSame() && outcome.leftOut.empty() ? kDone : kLeftOut};
}

} // namespace orvcad

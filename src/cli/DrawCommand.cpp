#include "cli/Counted.h"
#include "cli/FloorLookup.h"
#include "cli/PlanSvg.h"
#include "cli/ProjectFiles.h"
#include "cli/Verb.h"
#include "cli/Written.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXService.h"

namespace orvcad {

namespace {

Summary draw(const Arguments &arguments)
{
    const auto project = openProject(Arguments::text(arguments.project));
    IHBXFloor &floor = pickFloor(*project, arguments);
    const PlanSvg plan = drawPlan(*project->service()->model(), floor, project->name());
    const QString left =
        plan.withoutGeometry ? QStringLiteral("; %1 without geometry").arg(plan.withoutGeometry) : QString();
    return writeDocument(arguments, plan.document,
                         {QStringLiteral("Drew %1 of %2 at 1:%3%4")
                              .arg(counted(plan.drawn, QStringLiteral("placed object")), floor.name(),
                                   QString::number(plan.scale), left),
                          {{"drawn", plan.drawn}, {"withoutGeometry", plan.withoutGeometry}, {"scale", plan.scale}}});
}

} // namespace

void addDrawCommand(CLI::App &app, Command &command)
{
    Verb(app, command, "draw", "Draw a floor plan as an SVG page", draw)
        .projects()
        .pickedFloor()
        .output("File to write the picture to", ".svg");
}

} // namespace orvcad

#include "cli/Arguments.h"
#include "cli/Command.h"
#include "cli/Files.h"
#include "cli/PlanSvg.h"
#include "cli/ProjectInfo.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXService.h"

namespace orvcad {

namespace {

Summary draw(const Arguments &arguments)
{
    const auto project = openProject(Arguments::text(arguments.project));
    IHBXRegion &region = requireRegion(*project, Arguments::text(arguments.region));
    IHBXFloor &floor = requireFloor(*project, region, Arguments::text(arguments.floor));
    const PlanSvg plan = drawPlan(*project->service()->model(), floor, project->name());
    const QString output = Arguments::text(arguments.output);
    const bool onStdout = writeResult(output, plan.document);
    return {QStringLiteral("Drew %1 of %2 at 1:%3%4")
                .arg(counted(plan.drawn, QStringLiteral("placed object")), floor.name(), QString::number(plan.scale),
                     plan.withoutGeometry ? QStringLiteral("; %1 without geometry").arg(plan.withoutGeometry)
                                          : QString()),
            {{"output", output},
             {"drawn", plan.drawn},
             {"withoutGeometry", plan.withoutGeometry},
             {"scale", plan.scale}},
            kDone,
            onStdout};
}

} // namespace

void addDrawCommand(CLI::App &app, Command &command)
{
    auto arguments = newArguments();
    CLI::App *verb = app.add_subcommand("draw", "Draw a floor plan as an SVG page");
    addProject(verb, arguments);
    addPlace(verb, arguments, true);
    addOutput(verb, arguments, "File to write the picture to");
    verb->callback([&command, arguments] { command = [arguments] { return draw(*arguments); }; });
}

} // namespace orvcad

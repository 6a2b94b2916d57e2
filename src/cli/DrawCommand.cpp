#include "cli/Counted.h"
#include "cli/FloorLookup.h"
#include "cli/PlanPicture.h"
#include "cli/PlanSvg.h"
#include "cli/ProjectFiles.h"
#include "cli/Verb.h"
#include "cli/Written.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXService.h"

#include <CLI/CLI.hpp>

#include <QFileInfo>

namespace orvcad {

namespace {

const std::string kSvg = "svg";
const std::string kPng = "png";

/** The format that is asked for, else the one that the file's ending tells, else SVG. */
std::string formatOf(const Arguments &arguments)
{
    if (!arguments.format.empty())
        return arguments.format;
    const std::string ending = QFileInfo(Arguments::text(arguments.output)).suffix().toLower().toStdString();
    return ending == kPng ? ending : kSvg;
}

Summary draw(const Arguments &arguments)
{
    const auto project = openProject(Arguments::text(arguments.project));
    IHBXFloor &floor = pickFloor(*project, arguments);
    const PlanSvg plan = drawPlan(*project->service()->model(), floor, project->name());
    const QString left =
        plan.withoutGeometry ? QStringLiteral("; %1 without geometry").arg(plan.withoutGeometry) : QString();
    const QByteArray picture = formatOf(arguments) == kPng ? pngOf(plan.document, arguments.width) : plan.document;
    return writeDocument(arguments, picture,
                         {QStringLiteral("Drew %1 of %2 at 1:%3%4")
                              .arg(counted(plan.drawn, QStringLiteral("placed object")), floor.name(),
                                   QString::number(plan.scale), left),
                          {{"drawn", plan.drawn}, {"withoutGeometry", plan.withoutGeometry}, {"scale", plan.scale}}});
}

void addPictureOptions(Verb &verb)
{
    Arguments &arguments = verb.arguments();
    verb.app()
        .add_option("--format", arguments.format, "svg or png; if absent, as the file's ending tells, else svg")
        ->check(CLI::IsMember({kSvg, kPng}));
    arguments.width = kUsualPixels;
    CLI::Option *width = verb.app().add_option("--width", arguments.width, "Width of a png picture in pixels");
    width->capture_default_str()->check(CLI::Range(kLeastPixels, kMostPixels));
    verb.app().parse_complete_callback([&arguments, width] {
        if (width->count() > 0 && formatOf(arguments) != kPng)
            throw CLI::ValidationError("--width", "is for png pictures");
    });
}

} // namespace

void addDrawCommand(CLI::App &app, Command &command)
{
    Verb verb(app, command, "draw", "Draw a floor plan as an SVG page or a PNG picture", draw);
    verb.project().pickedFloor().output("File to write the picture to");
    addPictureOptions(verb);
}

} // namespace orvcad

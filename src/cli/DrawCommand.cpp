#include "cli/Counted.h"
#include "cli/DifferenceReport.h"
#include "cli/FloorLookup.h"
#include "cli/HtmlPage.h"
#include "cli/Message.h"
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
const std::string kHtml = "html";

/** The format that is asked for, else the one that the file's ending tells, else SVG. */
std::string formatOf(const Arguments &arguments)
{
    if (!arguments.format.empty())
        return arguments.format;
    const std::string ending = QFileInfo(Arguments::text(arguments.output)).suffix().toLower().toStdString();
    return ending == kPng || ending == kHtml ? ending : kSvg;
}

QString withoutText(int withoutGeometry)
{
    return withoutGeometry ? Message::tr("; %1 without geometry").arg(withoutGeometry) : QString();
}

Summary drawSheet(const Arguments &arguments)
{
    const auto project = openProject(Arguments::text(arguments.project));
    IHBXFloor &floor = pickFloor(*project, arguments);
    const PlanSvg plan = drawPlan(*project->service()->model(), floor, project->name());
    const QByteArray picture = formatOf(arguments) == kPng ? pngOf(plan.document, arguments.width) : plan.document;
    return writeDocument(arguments, picture,
                         {Message::tr("Drew %1 of %2 at 1:%3%4")
                              .arg(counted(plan.drawn, Message::tr("placed object")), floor.name(),
                                   QString::number(plan.scale), withoutText(plan.withoutGeometry)),
                          {{"drawn", plan.drawn}, {"withoutGeometry", plan.withoutGeometry}, {"scale", plan.scale}}});
}

Summary drawPage(const Arguments &arguments)
{
    const auto project = openProject(Arguments::text(arguments.project));
    const HtmlPage page = htmlPageOf(*project, pickFloors(*project, arguments));
    return writeDocument(arguments, page.document,
                         {Message::tr("Drew %1 on %2%3")
                              .arg(counted(page.drawn, Message::tr("placed object")),
                                   counted(page.floors, Message::tr("floor")), withoutText(page.withoutGeometry)),
                          {{"drawn", page.drawn}, {"withoutGeometry", page.withoutGeometry}, {"floors", page.floors}}});
}

Summary drawDifference(const Arguments &arguments)
{
    const auto before = openProject(Arguments::text(arguments.project));
    const auto after = openProject(Arguments::text(arguments.against));
    const ProjectDifference difference = differenceBetween(*before, *after);
    const HtmlPage page = htmlPageOf(*before, *after, difference);
    return writeDocument(arguments, page.document,
                         {Message::tr("Drew %1 on %2. %3")
                              .arg(counted(page.drawn, Message::tr("placed object")),
                                   counted(page.floors, Message::tr("floor")), DifferenceReport(difference).headline()),
                          {{"drawn", page.drawn},
                           {"withoutGeometry", page.withoutGeometry},
                           {"floors", page.floors},
                           {"same", difference.isSame()}}});
}

Summary draw(const Arguments &arguments)
{
    if (formatOf(arguments) != kHtml)
        return drawSheet(arguments);
    return arguments.against.empty() ? drawPage(arguments) : drawDifference(arguments);
}

/** Which options go with which format. */
void checkOptions(const Arguments &arguments, bool hasWidth)
{
    const std::string format = formatOf(arguments);
    if (format != kHtml && !arguments.against.empty())
        throw CLI::ValidationError("--against",
                                   Message::help("is for html pages, which a name ending in .html asks for"));
    if (format != kHtml && arguments.floor.empty())
        throw CLI::RequiredError("--floor");
    if (hasWidth && format != kPng)
        throw CLI::ValidationError("--width",
                                   Message::help("is for png pictures, which a name ending in .png asks for"));
    if (!arguments.against.empty() && (!arguments.floor.empty() || !arguments.region.empty()))
        throw CLI::ValidationError("--against", Message::help("takes all floors, without --region and --floor"));
}

void addPictureOptions(Verb &verb)
{
    Arguments &arguments = verb.arguments();
    verb.app()
        .add_option("--format", arguments.format,
                    Message::help("svg, png or html; if absent, as the file's ending tells, else svg"))
        ->check(CLI::IsMember({kSvg, kPng, kHtml}));
    arguments.width = kUsualPixels;
    CLI::Option *width =
        verb.app().add_option("--width", arguments.width, Message::help("Width of a png picture in pixels"));
    width->capture_default_str()->check(CLI::Range(kLeastPixels, kMostPixels));
    verb.app().add_option("--against", arguments.against,
                          Message::help("Project file; the html page shows what became of PROJECT in it"));
    verb.app().parse_complete_callback([&arguments, width] { checkOptions(arguments, width->count() > 0); });
}

} // namespace

void addDrawCommand(CLI::App &app, Command &command)
{
    Verb verb(app, command, "draw",
              Message::help("Draw a floor plan as an SVG page or a PNG picture, or all floors as a page for a browser"),
              draw);
    verb.projects().anyFloors().output(Message::help("File to write the picture to"),
                                       [](const Arguments &arguments) { return '.' + formatOf(arguments); });
    addPictureOptions(verb);
}

} // namespace orvcad

#include "cli/Applied.h"
#include "cli/Counted.h"
#include "cli/Files.h"
#include "cli/FloorLookup.h"
#include "cli/Message.h"
#include "cli/Openings.h"
#include "cli/ProjectFiles.h"
#include "cli/Verb.h"
#include "cli/Written.h"
#include "doorwindow/ORVCADWindoorDataInputModel.h"
#include "platform/host/IHBXService.h"

namespace orvcad {

namespace {

Summary exportOpenings(const Arguments &arguments)
{
    const auto project = openProject(Arguments::text(arguments.project));
    const auto floors = pickFloors(*project, arguments);
    const auto floorCount = static_cast<int>(floors.size());
    OpeningCounts counts;
    const QJsonObject reply = openingReply(*project->service()->model(), floors, counts);
    return writeDocument(arguments, reply,
                         {Message::tr("Wrote %1 and %2 (%3 in a wall) of %4")
                              .arg(counted(counts.elements, Message::tr("element")),
                                   counted(counts.placed, Message::tr("placed opening")))
                              .arg(counts.attached)
                              .arg(counted(floorCount, Message::tr("floor"))),
                          {{"floors", floorCount},
                           {"elements", counts.elements},
                           {"placed", counts.placed},
                           {"attached", counts.attached}}});
}

Summary applyReply(const Arguments &arguments)
{
    const QString input = Arguments::text(arguments.input);
    const auto project = openProject(Arguments::text(arguments.project));
    const QJsonObject reply = readJsonFile(input).object();
    return saveApplied(*project, applyOpenings(*project, openingMembers(reply, input)), arguments.strict);
}

Summary exportOptions(const Arguments &arguments)
{
    const auto project = openProject(Arguments::text(arguments.project));
    ORVCADWindoorDataInputModel model;
    model.parseIdentifyOption(project->service());
    QJsonObject document;
    model.saveToJason(&document);
    const int options = model.identifyOptions.size();
    return writeDocument(
        arguments, document,
        {Message::tr("Wrote %1").arg(counted(options, Message::tr("option"))), {{"options", options}}});
}

} // namespace

void addOpeningCommands(CLI::App &app, Command &command)
{
    CLI::App &group = addGroup(app, "opening", Message::help("Doors and windows"));
    Verb(group, command, "export", Message::help("Write doors and windows in the form of a reply"), exportOpenings)
        .projects()
        .anyFloors()
        .output(Message::help("File to write the reply to"), ".openings.json");
    Verb(group, command, "apply", Message::help("Write a reply into a project and save it"), applyReply)
        .project()
        .input("REPLY", Message::help("Reply document"))
        .strict(Message::help("reply"));
    Verb(group, command, "options", Message::help("Write the identify options of doors and windows"), exportOptions)
        .projects()
        .output(Message::help("File to write the options to"), ".opening-options.json");
}

} // namespace orvcad

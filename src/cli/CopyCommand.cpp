#include "cli/CopyRoads.h"
#include "cli/FloorCopy.h"
#include "cli/FloorLookup.h"
#include "cli/Message.h"
#include "cli/ProjectFiles.h"
#include "cli/Verb.h"
#include "platform/host/IHBXFloor.h"

#include <CLI/CLI.hpp>

#include <QFileInfo>

#include <map>

using hbx::embedded::HBXProject;

namespace orvcad {

namespace {

constexpr char kFrom[] = "FROM";
constexpr char kTo[] = "TO";
constexpr char kRegion[] = "--region";
constexpr char kFloor[] = "--floor";
constexpr char kToRegion[] = "--to-region";
constexpr char kToFloor[] = "--to-floor";

/** Gives what was typed to the project that it stands behind, word by word. */
class PlaceReader
{
public:
    explicit PlaceReader(Arguments &arguments)
        : m_from{&arguments.project, &arguments.region, &arguments.floor}, m_to{&arguments.toProject,
                                                                                &arguments.toRegion, &arguments.toFloor}
    {}

    void take(const std::string &option, const std::string &value)
    {
        if (option == kFrom || option == kTo)
            *(m_behind = option == kFrom ? &m_from : &m_to)->project = value;
        else if (option == kToRegion || option == kToFloor)
            set(option, option == kToRegion ? *m_to.region : *m_to.floor, value);
        else if (option == kRegion || option == kFloor)
            set(option, option == kRegion ? *behind(option).region : *behind(option).floor, value);
    }
    void finish() const
    {
        if (m_from.floor->empty())
            throw CLI::ValidationError(Message::help("--floor is required behind the first project"));
        if (m_to.floor->empty())
            throw CLI::ValidationError(Message::help("--floor behind the second project or --to-floor is required"));
    }

private:
    struct Place
    {
        std::string *project;
        std::string *region;
        std::string *floor;
    };

    Place &behind(const std::string &option) const
    {
        if (!m_behind)
            throw CLI::ValidationError(
                Message::tr("%1 stands before the project that it is of").arg(Arguments::text(option)).toStdString());
        return *m_behind;
    }
    static void set(const std::string &option, std::string &place, const std::string &value)
    {
        if (!place.empty())
            throw CLI::ValidationError(Message::tr("%1 names a second one: \"%2\" and \"%3\"")
                                           .arg(Arguments::text(option), Arguments::text(place), Arguments::text(value))
                                           .toStdString());
        place = value;
    }

    Place m_from;
    Place m_to;
    Place *m_behind = nullptr;
};

void readPlaces(const CLI::App &app, Arguments &arguments)
{
    PlaceReader reader(arguments);
    std::map<const CLI::Option *, std::size_t> taken;
    for (const CLI::Option *option : app.parse_order())
        reader.take(option->get_name(), option->results().at(taken[option]++));
    reader.finish();
}

bool isSameFile(const QString &one, const QString &other)
{
    const QString path = QFileInfo(one).canonicalFilePath();
    return !path.isEmpty() && path == QFileInfo(other).canonicalFilePath();
}

/** Puts the floor that was taken out of a project into the same or another one. */
Summary put(FloorCopy &copy, HBXProject &project, IHBXFloor &floor, const Arguments &arguments)
{
    copy.put(project, floor);
    return saveApplied(project, copy.isComplete(), arguments.strict, copy.text(), copy.toJson());
}

IHBXFloor &targetFloor(const HBXProject &project, const Arguments &arguments)
{
    return requireFloor(project, requireRegion(project, Arguments::text(arguments.toRegion)),
                        Arguments::text(arguments.toFloor));
}

Summary copyWithin(HBXProject &project, IHBXFloor &from, const Arguments &arguments)
{
    IHBXFloor &to = targetFloor(project, arguments);
    if (to.id() == from.id())
        throw CommandFailure(kBadInput, project.path(), {},
                             Message::tr("floor \"%1\" would be copied onto itself").arg(from.name()));
    FloorCopy copy(project, from, arguments.roads);
    return put(copy, project, to, arguments);
}

Summary copyFloor(const Arguments &arguments)
{
    auto from = openProject(Arguments::text(arguments.project));
    IHBXFloor &floor = pickFloor(*from, arguments);
    const QString target = Arguments::text(arguments.toProject);
    if (target.isEmpty() || isSameFile(from->path(), target))
        return copyWithin(*from, floor, arguments);
    FloorCopy copy(*from, floor, arguments.roads);
    from.reset();
    const auto to = openProject(target);
    return put(copy, *to, targetFloor(*to, arguments), arguments);
}

/** An option that may be typed more than once, with one value each time. */
void addRepeated(CLI::App &app, const char *name, const std::string &description)
{
    app.add_option(name, CLI::callback_t(), description)->type_name("TEXT")->take_all();
}

} // namespace

void addCopyCommand(CLI::App &app, Command &command)
{
    Verb verb(app, command, "copy", Message::help("Copy a floor to another one, of the same or another project"),
              copyFloor);
    Arguments &arguments = verb.arguments();
    arguments.roads = copyRoadWords();
    verb.app()
        .add_option(kFrom, CLI::callback_t(), Message::help("Project file (.hbxdb) to copy from"))
        ->type_name("TEXT")
        ->required();
    verb.app()
        .add_option(kTo, CLI::callback_t(), Message::help("Project file (.hbxdb) to copy to; FROM if absent"))
        ->type_name("TEXT");
    addRepeated(verb.app(), kRegion,
                Message::help("Name of a region, behind its project; may be absent where there is only one"));
    addRepeated(verb.app(), kFloor, Message::help("Name or code of a floor, behind its project"));
    verb.app()
        .add_option(kToRegion, CLI::callback_t(), Message::help("Name of the region to copy to, wherever it stands"))
        ->type_name("TEXT");
    verb.app()
        .add_option(kToFloor, CLI::callback_t(),
                    Message::help("Name or code of the floor to copy to, wherever it stands"))
        ->type_name("TEXT");
    verb.app()
        .add_option("--roads", arguments.roads,
                    Message::help("What is copied, with commas between; everything if absent"))
        ->delimiter(',')
        ->allow_extra_args(false)
        ->check(CLI::IsMember(arguments.roads));
    verb.strict(Message::help("copied floor"));
    verb.app().parse_complete_callback([&app = verb.app(), &arguments] { readPlaces(app, arguments); });
}

} // namespace orvcad

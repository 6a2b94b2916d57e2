#include "cli/Verb.h"

#include "cli/Message.h"
#include "cli/WallKind.h"

#include <CLI/CLI.hpp>

namespace orvcad {

namespace {
constexpr char kProject[] = "PROJECT";
constexpr char kProjectFile[] = QT_TRANSLATE_NOOP("orvcad", "Project file (.hbxdb)");
} // namespace

Verb::Verb(CLI::App &group, Command &command, const std::string &name, const std::string &description,
           const Action &action)
    : m_app(group.add_subcommand(name, description)), m_arguments(std::make_shared<Arguments>()),
      m_batch(std::make_shared<FileBatch>())
{
    m_app->callback([&command, arguments = m_arguments, batch = m_batch, action] {
        command = [arguments, batch, action] { return batch->run(action, *arguments); };
    });
}

Verb &Verb::project()
{
    m_app->add_option(kProject, m_arguments->project, Message::help(kProjectFile))->required();
    return *this;
}

Verb &Verb::projects() { return files(kProject, Message::help(kProjectFile), &Arguments::project); }

Verb &Verb::files(const std::string &name, const std::string &description, std::string Arguments::*file)
{
    m_batch->file = file;
    const QString several = Message::tr("%1, or several").arg(QString::fromStdString(description));
    m_app->add_option(name, m_batch->files, several.toStdString())->required()->type_name("TEXT");
    return *this;
}

Verb &Verb::region()
{
    m_app->add_option("--region", m_arguments->region,
                      Message::help("Name of the region; may be absent where there is only one"));
    return *this;
}

Verb &Verb::pickedFloor()
{
    anyFloors();
    m_app->get_option("--floor")->required();
    return *this;
}

Verb &Verb::anyFloors()
{
    region();
    m_app->add_option("--floor", m_arguments->floor, Message::help("Name or code of the floor"));
    return *this;
}

Verb &Verb::wallKind()
{
    std::vector<std::string> words;
    for (const WallKind &kind : wallKinds())
        words.emplace_back(kind.word);
    m_app->add_option("--kind", m_arguments->kind, Message::help("Kind of walls: brick or force"))
        ->required()
        ->check(CLI::IsMember(words));
    return *this;
}

Verb &Verb::input(const std::string &name, const std::string &description)
{
    m_app->add_option(name, m_arguments->input, description)->required();
    return *this;
}

Verb &Verb::inputs(const std::string &name, const std::string &description)
{
    return files(name, description, &Arguments::input);
}

Verb &Verb::output(const std::string &description, const std::string &ending, NoOutput none)
{
    return output(
        description, [ending](const Arguments & /*arguments*/) { return ending; }, none);
}

Verb &Verb::output(const std::string &description, FileBatch::Ending ending, NoOutput none)
{
    const std::string without =
        none == NoOutput::StandardOutput ? Message::help("; standard output if absent") : std::string();
    const std::string many = m_batch->file ? Message::help("; the directory for several") : std::string();
    m_app->add_option("-o,--output", m_arguments->output, description + without + many)
        ->required(none == NoOutput::WrongUsage);
    m_batch->ending = std::move(ending);
    m_batch->isOutputRequired = none == NoOutput::StandardOutput;
    return *this;
}

Verb &Verb::strict(const std::string &document)
{
    const QString strict = Message::tr("Save nothing when a member of the %1 is left out");
    m_app->add_flag("--strict", m_arguments->strict, strict.arg(QString::fromStdString(document)).toStdString());
    return *this;
}

CLI::App &addGroup(CLI::App &app, const std::string &name, const std::string &description)
{
    CLI::App *group = app.add_subcommand(name, description);
    group->require_subcommand(1);
    return *group;
}

} // namespace orvcad

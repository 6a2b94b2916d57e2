#include "cli/CommandLine.h"

#include "cli/Examples.h"
#include "cli/Message.h"
#include "cli/WideCharacters.h"

#include <CLI/CLI.hpp>

#include <utility>
#include <vector>

namespace orvcad {

namespace {

/** Groups, and verbs that stand alone, in the order of the help. */
constexpr void (*kGroups[])(CLI::App &, Command &) = {
    addDemoCommand,  addProjectCommands, addFloorsCommands,  addOpeningCommands,  addSlabCommands, addBeamCommands,
    addWallCommands, addColumnCommands,  addDrawingCommands, addDrawingsCommands, addDrawCommand,  addDiffCommand,
    addCopyCommand,  addCheckCommand,    addManualCommand,   addCompleteCommand,
};

/** Words that the parser has for the parts of a help. */
constexpr const char *kLabels[] = {
    QT_TRANSLATE_NOOP("orvcad", "Usage"),       QT_TRANSLATE_NOOP("orvcad", "OPTIONS"),
    QT_TRANSLATE_NOOP("orvcad", "SUBCOMMAND"),  QT_TRANSLATE_NOOP("orvcad", "REQUIRED"),
    QT_TRANSLATE_NOOP("orvcad", "Positionals"), QT_TRANSLATE_NOOP("orvcad", "Options"),
    QT_TRANSLATE_NOOP("orvcad", "Excludes"),
};

/** Writes a help in the language of the user. */
class HelpFormatter : public CLI::Formatter
{
public:
    HelpFormatter()
    {
        for (const char *english : kLabels)
            label(english, Message::help(english));
    }
    std::string make_group(std::string group, bool isPositional,
                           std::vector<const CLI::Option *> options) const override
    {
        return CLI::Formatter::make_group(get_label(std::move(group)), isPositional, std::move(options));
    }
    /** The parser itself counts bytes, and would set the description of an option with a wide character askew. */
    std::string make_option(const CLI::Option *option, bool isPositional) const override
    {
        const std::string names = "  " + make_option_name(option, isPositional) + make_option_opts(option);
        const auto width = static_cast<std::size_t>(shownWidth(QString::fromStdString(names)));
        const std::string gap =
            width < column_width_ ? std::string(column_width_ - width, ' ') : '\n' + std::string(column_width_, ' ');
        return names + gap + make_option_desc(option) + '\n';
    }
};

} // namespace

CommandLine::CommandLine()
    : m_app(std::make_unique<CLI::App>(
          Message::help("Moves buildings between a host model, recognition payloads and replies"), "orvcad"))
{
    m_app->formatter(std::make_shared<HelpFormatter>());
    m_app->group(Message::help("Subcommands"));
    m_app->set_help_flag("-h,--help", Message::help("Print this help message and exit"));
    m_app->require_subcommand(1);
    m_app->fallthrough();
    m_app->set_version_flag("--version", "orvcad " ORVCAD_VERSION,
                            Message::help("Display program version information and exit"));
    m_app->add_flag("--json", m_isJson, Message::help("Print the summary as one JSON object"));
    m_app->add_flag("--quiet", m_isQuiet, Message::help("Print no summary"));
    for (const auto addGroup : kGroups)
        addGroup(*m_app, m_command);
    addExamples(*m_app);
}

CommandLine::~CommandLine() = default;

} // namespace orvcad

#include "cli/Completion.h"

#include "cli/Arguments.h"
#include "cli/Command.h"
#include "cli/DocumentKinds.h"
#include "cli/FloorLookup.h"
#include "cli/Message.h"
#include "cli/ProjectFiles.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXRegion.h"

#include <CLI/CLI.hpp>

#include <QFileInfo>

#include <memory>
#include <sstream>

namespace orvcad {

namespace {

/** A project of more bytes takes longer to open than one waits for a key. */
constexpr qint64 kLargestOpened = 64 * 1024 * 1024;

bool startsWith(const std::string &text, const std::string &start) { return text.compare(0, start.size(), start) == 0; }

/** Reads the words before the last one. */
class Line
{
public:
    explicit Line(const CLI::App &app) : m_app(&app) {}

    void take(const std::string &word)
    {
        if (m_awaiting)
            takeValue(word);
        else if (startsWith(word, "-"))
            takeOption(word);
        else if (const CLI::App *below = verbNamed(word))
            m_app = below;
        else
            takePositional(word);
    }

    const CLI::App &app() const { return *m_app; }
    /** The option whose value comes next; null for none. */
    const CLI::Option *awaiting() const { return m_awaiting; }
    /** The positional argument that comes next; null for none. */
    const CLI::Option *nextPositional() const
    {
        std::size_t place = 0;
        for (const CLI::Option *option : m_app->get_options())
            if (option->get_positional() && (place++ == m_positionals || option->get_items_expected_max() > 1))
                return option;
        return nullptr;
    }
    /** How many positional arguments there have been. */
    std::size_t positionals() const { return m_positionals; }
    const std::string &project() const { return m_project; }
    const std::string &region() const { return m_region; }

private:
    const CLI::App *verbNamed(const std::string &word) const
    {
        const auto named = m_app->get_subcommands([&word](const CLI::App *below) { return below->get_name() == word; });
        return named.empty() ? nullptr : named.front();
    }
    void takeValue(const std::string &word)
    {
        if (m_awaiting->check_lname("region") || m_awaiting->check_lname("to-region"))
            m_region = word;
        m_awaiting = nullptr;
    }
    void takeOption(const std::string &word)
    {
        for (const CLI::App *app = m_app; app; app = app->get_parent())
            if (const CLI::Option *option = app->get_option_no_throw(word)) {
                m_awaiting = option->get_items_expected_max() > 0 ? option : nullptr;
                return;
            }
    }
    void takePositional(const std::string &word)
    {
        ++m_positionals;
        if (QFileInfo(Arguments::text(word)).isFile()) {
            m_project = word;
            m_region.clear(); // of the project before it
        }
    }

    const CLI::App *m_app;
    const CLI::Option *m_awaiting = nullptr;
    std::size_t m_positionals = 0;
    std::string m_project;
    std::string m_region;
};

std::unique_ptr<hbx::embedded::HBXProject> projectOf(const Line &line)
{
    const QString path = Arguments::text(line.project());
    if (path.isEmpty() || QFileInfo(path).size() > kLargestOpened)
        return nullptr;
    try {
        return openProject(path);
    } catch (const CommandFailure &) {
        return nullptr; // is told when the command is run
    }
}

QStringList regionsFor(const Line &line)
{
    const auto project = projectOf(line);
    return project ? regionNames(*project) : QStringList();
}

QStringList floorsFor(const Line &line)
{
    QStringList names;
    if (const auto project = projectOf(line))
        for (const IHBXFloor *floor : pickFloors(*project, QString(), QString()))
            if (line.region().empty() || floor->region()->name() == Arguments::text(line.region()))
                names.append(floor->name());
    return names;
}

/** What stands between the braces in "TEXT:{brick,force}". */
QStringList choicesOf(const CLI::Option &option)
{
    const std::string type = option.get_type_name();
    const std::size_t open = type.find('{');
    QStringList words;
    if (open != std::string::npos) {
        std::istringstream list(type.substr(open + 1, type.find('}') - open - 1));
        for (std::string word; std::getline(list, word, ',');)
            words.append(Arguments::text(word));
    }
    return words;
}

/** ".hbxdb" of "Project file (.hbxdb)". */
std::string endingIn(const std::string &description)
{
    const std::size_t open = description.find("(.");
    return open == std::string::npos ? "" : description.substr(open + 1, description.find(')', open) - open - 1);
}

class Completer
{
public:
    Completer(const Line &line, std::string begun) : m_line(line), m_begun(std::move(begun)) {}

    Completion complete()
    {
        if (m_line.awaiting())
            addValues(*m_line.awaiting());
        else if (startsWith(m_begun, "-"))
            addOptions();
        else
            addVerbsOrValues();
        return m_completion;
    }

private:
    void add(const std::string &word, const std::string &description = {})
    {
        if (startsWith(word, m_begun))
            m_completion.candidates.push_back({word, description});
    }
    void add(const QStringList &words)
    {
        for (const QString &word : words)
            add(word.toStdString());
    }
    void addValues(const CLI::Option &option)
    {
        const QStringList choices = choicesOf(option);
        if (option.check_lname("region") || option.check_lname("to-region"))
            add(regionsFor(m_line));
        else if (option.check_lname("floor") || option.check_lname("to-floor"))
            add(floorsFor(m_line));
        else if (!choices.isEmpty())
            add(choices);
        else if (option.get_type_name() == "TEXT") {
            m_completion.isFile = true;
            m_completion.ending = endingIn(option.get_description());
        }
    }
    void addOptions()
    {
        for (const CLI::App *app = &m_line.app(); app; app = app->get_parent())
            for (const CLI::Option *option : app->get_options())
                if (app == &m_line.app() || option != app->get_help_ptr())
                    for (const std::string &name : option->get_lnames())
                        add("--" + name, option->get_description());
    }
    void addVerbsOrValues()
    {
        const auto verbs =
            m_line.app().get_subcommands([](const CLI::App *below) { return !below->get_group().empty(); });
        for (const CLI::App *verb : verbs)
            add(verb->get_name(), verb->get_description());
        const CLI::Option *positional = m_line.nextPositional();
        if (!positional)
            return;
        if (positional->check_name("[KIND] FILE") && m_line.positionals() == 0)
            for (const DocumentKind &kind : documentKinds())
                add(kind.name, Message::tr(kind.title).toStdString());
        addValues(*positional);
    }

    const Line &m_line;
    std::string m_begun;
    Completion m_completion;
};

} // namespace

Completion completed(const CLI::App &app, const std::vector<std::string> &words)
{
    Line line(app);
    for (std::size_t i = 0; i + 1 < words.size(); ++i)
        line.take(words[i]);
    return Completer(line, words.empty() ? std::string() : words.back()).complete();
}

} // namespace orvcad

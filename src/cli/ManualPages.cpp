#include "cli/ManualPages.h"

#include "cli/Examples.h"
#include "cli/Message.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <sstream>

namespace orvcad {

namespace {

struct Row
{
    const char *term;
    const char *text; ///< in English
};

const Row kExitCodes[] = {
    {"0", QT_TRANSLATE_NOOP("orvcad", "All that was asked is done, and all that was sent arrived as it was sent.")},
    {"1", QT_TRANSLATE_NOOP("orvcad", "The arguments are wrong; nothing was done.")},
    {"2", QT_TRANSLATE_NOOP(
              "orvcad", "An input or a file cannot be used. No project file was changed, unless the message says so.")},
    {"3", QT_TRANSLATE_NOOP("orvcad",
                            "Done, but some members, parts or values were left out; with --strict nothing was saved.")},
};

const Row kVariables[] = {
    {"LANGUAGE, LC_ALL, LC_MESSAGES, LANG",
     QT_TRANSLATE_NOOP("orvcad", "The first of them that is set names the language of messages: English or Chinese. "
                                 "Documents, and summaries under --json, are the same in both.")},
    {"NO_COLOR", QT_TRANSLATE_NOOP("orvcad", "If set and not empty, messages have no colours.")},
    {"TERM",
     QT_TRANSLATE_NOOP("orvcad",
                       "If \"dumb\", there are neither colours nor a progress bar. Files and pipes never get either.")},
};

/** A text that no character of gives a meaning to roff. */
std::string plain(const std::string &text)
{
    std::string escaped;
    for (const char c : text) {
        if (c == '\\')
            escaped += "\\e";
        else if (c == '-')
            escaped += "\\-";
        else if (c == '\'' || c == '"')
            escaped += c == '"' ? "\\(dq" : "\\(aq";
        else
            escaped += c;
    }
    const bool isRequest = !escaped.empty() && escaped.front() == '.';
    return isRequest ? "\\&" + escaped : escaped;
}

/** A line of the help as a sentence. */
std::string sentence(const std::string &text)
{
    return plain(Message::tr("%1.").arg(QString::fromStdString(text)).toStdString());
}

std::string bold(const std::string &text) { return "\\fB" + plain(text) + "\\fR"; }
std::string italic(const std::string &text) { return "\\fI" + plain(text) + "\\fR"; }

std::string upper(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::toupper(c); });
    return text;
}

/** "orvcad-slab" of "orvcad slab". */
std::string hyphened(std::string name)
{
    std::replace(name.begin(), name.end(), ' ', '-');
    return name;
}

std::string typedName(const CLI::App &app)
{
    const std::string name = commandName(app);
    return name.empty() ? app.get_name() : "orvcad " + name;
}

std::vector<const CLI::App *> shownBelow(const CLI::App &app)
{
    return app.get_subcommands([](const CLI::App *below) { return !below->get_group().empty(); });
}

std::vector<const CLI::App *> verbsOf(const CLI::App &app)
{
    std::vector<const CLI::App *> verbs;
    for (const CLI::App *below : shownBelow(app)) {
        const std::vector<const CLI::App *> further = verbsOf(*below);
        verbs.insert(verbs.end(), further.begin(), further.end());
    }
    return verbs.empty() ? std::vector<const CLI::App *>{&app} : verbs;
}

bool isMany(const CLI::Option &option) { return option.get_items_expected_max() > 1 && option.get_positional(); }
bool takesValue(const CLI::Option &option) { return option.get_items_expected_max() > 0; }

/** "--floor TEXT" and the like; words to choose from in place of TEXT. */
std::string valueName(const CLI::Option &option)
{
    const std::string type = option.get_type_name();
    const std::size_t choice = type.find('{');
    return choice == std::string::npos ? type : type.substr(choice);
}

/** An argument as the synopsis shows it. */
std::string shown(const CLI::Option &option)
{
    if (option.get_positional())
        return italic(option.get_name(true)) + (isMany(option) ? "..." : "");
    const std::string name =
        option.get_snames().empty() ? "--" + option.get_lnames().front() : '-' + option.get_snames().front();
    return bold(name) + (takesValue(option) ? ' ' + italic(valueName(option)) : "");
}

/** All names of an option. */
std::string term(const CLI::Option &option)
{
    if (option.get_positional())
        return italic(option.get_name(true));
    std::string names;
    for (const std::string &name : option.get_snames())
        names += bold('-' + name) + ", ";
    for (const std::string &name : option.get_lnames())
        names += bold("--" + name) + ", ";
    names.resize(names.size() - 2);
    return names + (takesValue(option) ? ' ' + italic(valueName(option)) : "");
}

/** One page while it is written. */
class Page
{
public:
    Page(const CLI::App &app, const std::string &version)
    {
        const std::string name = typedName(app);
        m_text << ".TH " << upper(hyphened(name)) << " 1 \"\" \"" << plain(version) << "\" \""
               << Message::help("User Commands") << "\"\n";
        section(Message::help("NAME"));
        m_text << plain(hyphened(name)) << " \\- " << plain(app.get_description()) << '\n';
    }

    void section(const std::string &title)
    {
        const char *quote = title.find(' ') == std::string::npos ? "" : "\"";
        m_text << ".SH " << quote << title << quote << '\n';
    }
    void line(const std::string &roff) { m_text << roff << '\n'; }
    void item(const std::string &term, const std::string &text) { m_text << ".TP\n" << term << '\n' << text << '\n'; }
    template <std::size_t Count> void table(const std::string &title, const Row (&rows)[Count])
    {
        section(title);
        for (const Row &row : rows)
            item(bold(row.term), plain(Message::help(row.text)));
    }
    void synopsis(const CLI::App &verb)
    {
        m_text << ".HP\n" << bold(typedName(verb));
        for (const CLI::Option *option : verb.get_options())
            if (option != verb.get_help_ptr())
                m_text << ' ' << (option->get_required() ? shown(*option) : '[' + shown(*option) + ']');
        m_text << '\n';
    }
    void options(const CLI::App &verb)
    {
        for (const CLI::Option *option : verb.get_options())
            item(term(*option), sentence(option->get_description()));
    }
    void examples(const std::vector<std::string> &typed)
    {
        if (typed.empty())
            return;
        section(Message::help("EXAMPLES"));
        line(".nf");
        for (const std::string &command : typed)
            line(plain(command));
        line(".fi");
    }
    std::string text() const { return m_text.str(); }

private:
    std::ostringstream m_text;
};

ManualPage pageOfProgram(const CLI::App &app)
{
    Page page(app, app.version());
    page.section(Message::help("SYNOPSIS"));
    page.line(bold(app.get_name()) + ' ' + italic("COMMAND") + " [" + italic("ARGUMENT") + "]... [" + bold("--json") +
              "] [" + bold("--quiet") + ']');
    page.section(Message::help("COMMANDS"));
    for (const CLI::App *group : shownBelow(app))
        page.item(".BR " + plain(hyphened(typedName(*group))) + " (1)", sentence(group->get_description()));
    page.section(Message::help("OPTIONS"));
    page.options(app);
    page.table(Message::help("EXIT STATUS"), kExitCodes);
    page.table(Message::help("ENVIRONMENT"), kVariables);
    page.examples(examplesOf(""));
    return {app.get_name(), page.text()};
}

ManualPage pageOfGroup(const CLI::App &app, const CLI::App &group)
{
    Page page(group, app.version());
    const std::vector<const CLI::App *> verbs = verbsOf(group);
    page.section(Message::help("SYNOPSIS"));
    for (const CLI::App *verb : verbs)
        page.synopsis(*verb);
    page.section(Message::help("DESCRIPTION"));
    std::vector<std::string> typed;
    for (const CLI::App *verb : verbs) {
        page.line(".SS " + plain(typedName(*verb)));
        page.line(sentence(verb->get_description()));
        page.options(*verb);
        for (const std::string &example : examplesOf(commandName(*verb)))
            typed.push_back(example);
    }
    page.table(Message::help("EXIT STATUS"), kExitCodes);
    page.examples(typed);
    page.section(Message::help("SEE ALSO"));
    page.line(".BR " + plain(app.get_name()) + " (1)");
    return {hyphened(typedName(group)), page.text()};
}

} // namespace

std::vector<ManualPage> manualPages(const CLI::App &app)
{
    std::vector<ManualPage> pages{pageOfProgram(app)};
    for (const CLI::App *group : shownBelow(app))
        pages.push_back(pageOfGroup(app, *group));
    return pages;
}

} // namespace orvcad

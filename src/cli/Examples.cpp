#include "cli/Examples.h"

#include "cli/Message.h"

#include <CLI/CLI.hpp>

namespace orvcad {

namespace {

std::string footerOf(const std::vector<std::string> &typed)
{
    std::string footer = typed.size() == 1 ? Message::help("Example:") : Message::help("Examples:");
    for (const std::string &line : typed)
        footer += "\n  " + line;
    return footer;
}

} // namespace

const std::vector<Example> &examples()
{
    static const std::vector<Example> all{
        {"", "orvcad demo tour"},
        {"demo", "orvcad demo tour"},
        {"", "orvcad project import building.json -o building.hbxdb"},
        {"project import", "orvcad project import building.json -o building.hbxdb"},
        {"project export", "orvcad project export building.hbxdb -o again.json"},
        {"project export", "orvcad project export building.hbxdb site.hbxdb -o exported/"},
        {"", "orvcad project info building.hbxdb"},
        {"project info", "orvcad project info building.hbxdb"},
        {"project info", "orvcad project info *.hbxdb --json"},
        {"floors export", "orvcad floors export building.hbxdb --region Block -o floors.json"},
        {"floors show", "orvcad floors show floors.json"},
        {"wall export", "orvcad wall export building.hbxdb --kind brick --floor \"Level 1\" -o walls-input.json"},
        {"wall reply", "orvcad wall reply building.hbxdb --kind brick --floor \"Level 1\" -o walls.json"},
        {"wall apply", "orvcad wall apply site.hbxdb --kind brick walls.json --strict"},
        {"opening export", "orvcad opening export building.hbxdb --floor \"Level 1\" -o openings.json"},
        {"opening apply", "orvcad opening apply site.hbxdb openings.json"},
        {"opening options", "orvcad opening options building.hbxdb -o options.json"},
        {"beam export", "orvcad beam export building.hbxdb --floor \"Level 1\" -o beams.json"},
        {"beam apply", "orvcad beam apply site.hbxdb beams.json"},
        {"beam identify-input", "orvcad beam identify-input building.hbxdb --floor 1 -o beam-input.json"},
        {"beam result", "orvcad beam result result.json"},
        {"beam seats export", "orvcad beam seats export building.hbxdb -o seats.json"},
        {"beam seats apply", "orvcad beam seats apply site.hbxdb seats.json"},
        {"slab export", "orvcad slab export building.hbxdb --floor \"Level 1\" -o slabs.json"},
        {"check", "orvcad check slabs.json"},
        {"slab apply", "orvcad slab apply site.hbxdb --floor \"Level 1\" slabs.json --as-new --ids slab-ids.json"},
        {"column check", "orvcad column check columns.json"},
        {"drawing make", "orvcad drawing make building.hbxdb --floor \"Level 1\" -o level-1.cadi2"},
        {"drawing show", "orvcad drawing show level-1.cadi2"},
        {"drawings show", "orvcad drawings show drawing-set.json"},
        {"drawings floors", "orvcad drawings floors floor-sdc.json"},
        {"drawings words", "orvcad drawings words 3"},
        {"", "orvcad draw building.hbxdb --floor \"Level 1\" -o plan.svg"},
        {"draw", "orvcad draw building.hbxdb --floor \"Level 1\" -o plan.svg"},
        {"draw", "orvcad draw building.hbxdb site.hbxdb --floor 1 -o plans/"},
        {"draw", "orvcad draw building.hbxdb -o building.html"},
        {"draw", "orvcad draw building.hbxdb --against site.hbxdb -o difference.html"},
        {"diff", "orvcad diff building.hbxdb site.hbxdb", kLeftOut},
        {"copy", "orvcad copy building.hbxdb --floor \"Level 2\" site.hbxdb --floor \"Level 2\""},
        {"copy", "orvcad copy building.hbxdb --floor \"Level 3\" --to-floor \"Level 5\" --roads wall,opening"},
    };
    return all;
}

std::vector<std::string> examplesOf(const std::string &command)
{
    std::vector<std::string> typed;
    for (const Example &example : examples())
        if (command == example.command)
            typed.emplace_back(example.typed);
    return typed;
}

std::string commandName(const CLI::App &verb)
{
    const CLI::App *group = verb.get_parent();
    if (!group)
        return {};
    const std::string above = commandName(*group);
    return above.empty() ? verb.get_name() : above + ' ' + verb.get_name();
}

void addExamples(CLI::App &app)
{
    const std::vector<std::string> typed = examplesOf(commandName(app));
    if (!typed.empty())
        app.footer(footerOf(typed));
    for (CLI::App *below : app.get_subcommands({}))
        addExamples(*below);
}

} // namespace orvcad

#include "architecture/NameRules.h"

#include <regex>
#include <set>
#include <sstream>

namespace architecture {

namespace {

const std::string kHome = "platform/services/HBXPropertyNames.h";

struct Name
{
    int line = 0;
    std::string text;
};

std::vector<Name> namesIn(const std::string &text)
{
    static const std::regex wideWord(R"re(\bL"(\w+)")re");
    std::vector<Name> names;
    std::istringstream lines(text);
    int number = 0;
    for (std::string line; std::getline(lines, line);) {
        ++number;
        if (line.find("L\"") == std::string::npos) {
            continue; // most lines, and a pattern is slow
        }
        for (std::sregex_iterator word(line.begin(), line.end(), wideWord), end; word != end; ++word) {
            names.push_back({number, (*word)[1]});
        }
    }
    return names;
}

} // namespace

std::vector<Violation> nameViolations(const std::vector<SourceFile> &tree)
{
    std::vector<Violation> violations;
    for (const SourceFile &file : tree) {
        std::set<std::string> known;
        for (const Name &name : namesIn(file.text)) {
            if (file.path != kHome) {
                violations.push_back({file.path, name.line, "spells \"" + name.text + "\", which has a name"});
            } else if (!known.insert(name.text).second) {
                violations.push_back({file.path, name.line, "names \"" + name.text + "\" again"});
            }
        }
    }
    return violations;
}

} // namespace architecture

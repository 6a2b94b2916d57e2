#include "architecture/IncludeRules.h"

#include <algorithm>
#include <cctype>
#include <regex>
#include <set>

namespace architecture {

namespace {

using Names = std::vector<std::string_view>;

const Names kPlatform = {"platform/geometry", "platform/host", "platform/dwgx", "platform/services"};
const Names kElements = {"beam", "slab", "column", "IdentifyInputModel/Wall", "doorwindow"};

Names operator+(Names left, const Names &right)
{
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

bool contains(const Names &names, std::string_view name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool startsWith(std::string_view text, std::string_view start) { return text.substr(0, start.size()) == start; }

bool isBelow(std::string_view path, std::string_view folder)
{
    return startsWith(path, folder) && path.size() > folder.size() && path[folder.size()] == '/';
}

/** Headers of a library, by how their names begin. "Qt" is followed by a capital letter or a module: see libraryOf. */
struct LibraryPrefix
{
    std::string_view prefix;
    std::string_view name;
};

constexpr LibraryPrefix kLibraryPrefixes[] = {
    {"boost/", "Boost"},
    {"CLI/", "CLI11"},
    {"rapidjson/", "RapidJSON"},
    {"double-conversion/", "number text"},
    {"fast_float/", "number text"},
    {"geos_c.h", "GEOS"},
    {"geos/", "GEOS"},
    {"sqlite3.h", "SQLite"},
    {"zip.h", "libzip"},
    {"zipconf.h", "libzip"},
};

constexpr std::string_view kPlatformExport = "ORVCADPlatformExport.h";
constexpr std::string_view kModelDataExport = "ORVCADModelDataExport.h";

/** Generated headers, which stand in no folder: each library includes its own. */
std::string exportHeaderProblem(std::string_view path, std::string_view header)
{
    const bool inPlatform = isBelow(path, "platform");
    if (isBelow(path, "cli") || inPlatform != (header == kPlatformExport)) {
        return std::string(header) + " belongs to another library";
    }
    return {};
}

/** The column sample context takes over the section value of walls and the option reading of openings. */
bool isSampleContextException(std::string_view path, std::string_view folder)
{
    return isBelow(path, "column") && path.find("SampleContext") != std::string_view::npos &&
           (folder == "IdentifyInputModel/Wall" || folder == "doorwindow");
}

std::string ownHeaderProblem(const FolderRule &rule, std::string_view path, const Include &include)
{
    const FolderRule *target = ruleOf(include.target);
    if (target == nullptr) {
        return "\"" + include.target + "\" is not written from src";
    }
    const bool allowed =
        target == &rule || contains(rule.folders, target->folder) || isSampleContextException(path, target->folder);
    return allowed ? std::string() : std::string(rule.folder) + " may not include " + std::string(target->folder);
}

std::string foreignHeaderProblem(const FolderRule &rule, const Include &include)
{
    const std::string_view library = libraryOf(include.target);
    if (library.empty()) {
        return "<" + include.target + "> belongs to no library that this project uses";
    }
    if (library == "standard" || contains(rule.libraries, library)) {
        return {};
    }
    return std::string(rule.folder) + " may not include " + std::string(library);
}

std::string includeProblem(const FolderRule &rule, std::string_view path, const Include &include)
{
    if (include.target == kPlatformExport || include.target == kModelDataExport) {
        return exportHeaderProblem(path, include.target);
    }
    if (include.quoted) {
        return ownHeaderProblem(rule, path, include);
    }
    if (ruleOf(include.target) != nullptr) {
        return "<" + include.target + "> is the project's own and stands in quotes";
    }
    return foreignHeaderProblem(rule, include);
}

/** A conversion service serves one element: its headers and sources know the folder of that one alone. */
std::string secondElementProblem(std::string_view path, const std::vector<Include> &includes)
{
    std::set<std::string_view> elements;
    for (const Include &include : includes) {
        const FolderRule *target = ruleOf(include.target);
        if (target != nullptr && contains(kElements, target->folder)) {
            elements.insert(target->folder);
        }
    }
    return isBelow(path, "ModelSerialization") && elements.size() > 1 ? "a conversion includes several element folders"
                                                                      : "";
}

} // namespace

const std::vector<FolderRule> &folderRules()
{
    static const Names record = Names{"encoding"} + kPlatform;
    static const std::vector<FolderRule> rules = {
        {"platform/geometry", {}, {"GEOS"}},
        {"platform/host", {"platform/geometry"}, {"Qt"}},
        {"platform/dwgx", {"platform/geometry"}, {"Qt", "Boost"}},
        {"platform/services",
         {"platform/geometry", "platform/host", "platform/dwgx"},
         {"Qt", "Boost", "number text", "libzip"}},
        {"platform/embedded", kPlatform, {"Qt", "Boost", "number text", "libzip", "SQLite", "system"}},
        {"foundation", {"platform/geometry"}, {"Qt"}},
        {"encoding", kPlatform, {"Qt", "number text"}},
        {"drawing", {"encoding", "platform/services"}, {"Qt"}},
        {"beam", record, {"Qt"}},
        {"slab", record + Names{"foundation"}, {"Qt"}},
        {"column", record, {"Qt"}},
        {"IdentifyInputModel/Wall", record, {"Qt"}},
        {"doorwindow", record, {"Qt"}},
        {"ModelSerialization", record + kElements, {"Qt"}},
        {"cli",
         record + kElements + Names{"platform/embedded", "foundation", "drawing", "ModelSerialization"},
         {"Qt", "CLI11", "RapidJSON", "system"}},
    };
    return rules;
}

const FolderRule *ruleOf(std::string_view path)
{
    const std::vector<FolderRule> &rules = folderRules();
    const auto rule =
        std::find_if(rules.begin(), rules.end(), [path](const FolderRule &one) { return isBelow(path, one.folder); });
    return rule == rules.end() ? nullptr : &*rule;
}

std::string_view libraryOf(std::string_view header)
{
    for (const LibraryPrefix &row : kLibraryPrefixes) {
        if (startsWith(header, row.prefix)) {
            return row.name;
        }
    }
    if (header.size() > 1 && header[0] == 'Q' && (header[1] == 't' || std::isupper(header[1]) != 0)) {
        return "Qt";
    }
    static const std::regex standard("[a-z_0-9]+");
    static const std::regex system("([a-z_0-9]+/)*[a-z_0-9]+\\.h");
    const std::string name(header);
    if (std::regex_match(name, standard)) {
        return "standard";
    }
    return std::regex_match(name, system) ? "system" : std::string_view();
}

std::vector<Violation> includeViolations(const SourceFile &file)
{
    const FolderRule *rule = ruleOf(file.path);
    if (rule == nullptr) {
        return {{file.path, 0, "stands in no folder of the table"}};
    }
    std::vector<Violation> violations;
    const std::vector<Include> includes = includesOf(file.text);
    for (const Include &include : includes) {
        const std::string problem = includeProblem(*rule, file.path, include);
        if (!problem.empty()) {
            violations.push_back({file.path, include.line, problem});
        }
    }
    const std::string problem = secondElementProblem(file.path, includes);
    if (!problem.empty()) {
        violations.push_back({file.path, 0, problem});
    }
    return violations;
}

} // namespace architecture

#include "architecture/PairRules.h"

#include <regex>
#include <set>
#include <sstream>

namespace architecture {

namespace {

/** The program, and its groups of verbs, each of which is one function declared in cli/Command.h. */
bool standsAlone(const std::string &path)
{
    static const std::regex pattern("cli/(main|[A-Z][A-Za-z]*Commands?)\\.cpp");
    return std::regex_match(path, pattern);
}

// The services are declared for every platform; the embedded host brings the bodies that depend on the host.
const std::string kServices = "platform/services/";
const std::string kBodies = "platform/embedded/";

/** The path in another folder, for one that stands in the folder told; else the path itself. */
std::string moved(const std::string &path, const std::string &from, const std::string &to)
{
    return path.compare(0, from.size(), from) == 0 ? to + path.substr(from.size()) : path;
}

/** Path of a source's header, empty where there is none. */
std::string headerOf(const SourceFile &source, const std::set<std::string> &paths)
{
    const std::string beside = stemOf(source.path) + ".h";
    for (const std::string &header : {beside, moved(beside, kBodies, kServices)}) {
        if (paths.count(header) != 0) {
            return header;
        }
    }
    return {};
}

std::string sourceProblem(const SourceFile &source, const std::set<std::string> &paths)
{
    const std::string header = headerOf(source, paths);
    if (header.empty()) {
        return "has no header of its name beside it";
    }
    const std::vector<Include> includes = includesOf(source.text);
    return includes.empty() || includes.front().target != header ? "does not include its own header first" : "";
}

/** Whether a line of a header exports something that has to be defined in a source. */
bool exportsDefinition(const std::string &line)
{
    static const std::regex exported("\\bORVCAD(PLATFORM|MODELDATA)_EXPORT\\b");
    static const std::regex interface("\\b(class|struct) +ORVCAD(PLATFORM|MODELDATA)_EXPORT +I[A-Z]");
    return std::regex_search(line, exported) && !std::regex_search(line, interface);
}

std::string headerProblem(const SourceFile &header, const std::set<std::string> &paths)
{
    const std::string beside = stemOf(header.path) + ".cpp";
    if (paths.count(beside) != 0 || paths.count(moved(beside, kServices, kBodies)) != 0) {
        return {};
    }
    std::istringstream lines(header.text);
    for (std::string line; std::getline(lines, line);) {
        if (exportsDefinition(line)) {
            return "exports something and has no source of its name beside it";
        }
    }
    return {};
}

} // namespace

std::vector<Violation> pairViolations(const std::vector<SourceFile> &tree)
{
    std::set<std::string> paths;
    for (const SourceFile &file : tree) {
        paths.insert(file.path);
    }
    std::vector<Violation> violations;
    for (const SourceFile &file : tree) {
        const bool header = hasEnding(file.path, ".h");
        const std::string problem = header ? headerProblem(file, paths) : sourceProblem(file, paths);
        if (!problem.empty() && !standsAlone(file.path)) {
            violations.push_back({file.path, 0, problem});
        }
    }
    return violations;
}

} // namespace architecture

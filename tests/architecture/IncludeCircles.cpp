#include "architecture/IncludeCircles.h"

#include <map>
#include <set>

namespace architecture {

namespace {

using Graph = std::map<std::string, std::vector<Include>>;

Graph graphOf(const std::vector<SourceFile> &tree)
{
    Graph graph;
    for (const SourceFile &file : tree) {
        graph[file.path] = includesOf(file.text);
    }
    return graph;
}

/** Whether a file, or what it includes, includes the goal. Files that were seen before are not looked at again. */
bool leadsTo(const Graph &graph, const std::string &path, const std::string &goal, std::set<std::string> &seen)
{
    if (path == goal) {
        return true;
    }
    const auto found = graph.find(path);
    if (found == graph.end() || !seen.insert(path).second) {
        return false;
    }
    for (const Include &include : found->second) {
        if (leadsTo(graph, include.target, goal, seen)) {
            return true;
        }
    }
    return false;
}

} // namespace

std::vector<Violation> circleViolations(const std::vector<SourceFile> &tree)
{
    const Graph graph = graphOf(tree);
    std::vector<Violation> violations;
    for (const auto &[path, includes] : graph) {
        std::set<std::string> seen;
        for (const Include &include : includes) {
            if (leadsTo(graph, include.target, path, seen)) {
                violations.push_back({path, include.line, "includes itself by way of " + include.target});
            }
        }
    }
    return violations;
}

} // namespace architecture

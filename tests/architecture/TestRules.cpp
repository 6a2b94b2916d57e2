#include "architecture/TestRules.h"

#include <set>

namespace architecture {

namespace {

const std::string kPlatform = "platform/";
const std::string kEmbedded = "embedded/";
const std::string kServices = "services/";
const std::string kProgram = "cli/main.cpp";

bool startsWith(const std::string &text, const std::string &start) { return text.compare(0, start.size(), start) == 0; }

bool isTested(const std::string &source, const std::set<std::string> &tests)
{
    const std::string below = startsWith(source, kPlatform) ? source.substr(kPlatform.size()) : source;
    const std::string test = stemOf(below) + "Test.cpp";
    return tests.count(test) != 0 ||
           (startsWith(test, kEmbedded) && tests.count(kServices + test.substr(kEmbedded.size())) != 0);
}

} // namespace

std::vector<Violation> testViolations(const std::vector<SourceFile> &sources, const std::vector<SourceFile> &tests)
{
    std::set<std::string> paths;
    for (const SourceFile &test : tests) {
        paths.insert(test.path);
    }
    std::vector<Violation> violations;
    for (const SourceFile &source : sources) {
        if (hasEnding(source.path, ".cpp") && source.path != kProgram && !isTested(source.path, paths)) {
            violations.push_back({source.path, 0, "has no test file of its name"});
        }
    }
    return violations;
}

} // namespace architecture

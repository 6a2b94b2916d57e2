#include "architecture/DocumentRules.h"

#include <filesystem>
#include <regex>
#include <set>
#include <sstream>

namespace architecture {

namespace {

using Names = std::set<std::string>;

/** Adds every word of a text that could be a name. */
void addWords(const std::string &text, Names &words)
{
    static const std::regex word("[A-Za-z_][A-Za-z0-9_]*");
    for (std::sregex_iterator match(text.begin(), text.end(), word), end; match != end; ++match) {
        words.insert(match->str());
    }
}

/** All first groups of a pattern in a line. */
std::vector<std::string> matches(const std::string &line, const std::regex &pattern)
{
    std::vector<std::string> found;
    for (std::sregex_iterator match(line.begin(), line.end(), pattern), end; match != end; ++match) {
        found.push_back(match->str(1));
    }
    return found;
}

/** Classes and files are called so: two capitalised syllables at least, or capitals before one. */
bool looksLikeName(const std::string &word)
{
    static const std::regex name("[A-Z][A-Za-z0-9]*[a-z0-9][A-Z][A-Za-z0-9_]*|[A-Z]{2,}[a-z][A-Za-z0-9_]*");
    return std::regex_match(word, name);
}

bool isThere(const std::string &document, const std::string &link, const Names &paths)
{
    namespace fs = std::filesystem;
    const std::string file = link.substr(0, link.find('#'));
    const std::string path = (fs::path(document).parent_path() / file).lexically_normal().generic_string();
    return file.empty() || file.find("://") != std::string::npos || paths.count(path) != 0;
}

/** What is wrong with one line. */
std::vector<std::string> problems(const std::string &document, const std::string &line, const Names &words,
                                  const Names &paths)
{
    static const std::regex link("\\]\\(([^) ]*)\\)");
    static const std::regex code("`([A-Za-z_][A-Za-z0-9_]*)(?:\\.h|\\.cpp)?`");
    std::vector<std::string> found;
    for (const std::string &target : matches(line, link)) {
        if (!isThere(document, target, paths)) {
            found.push_back("links to " + target + ", which is not there");
        }
    }
    for (const std::string &name : matches(line, code)) {
        if (looksLikeName(name) && words.count(name) == 0) {
            found.push_back("names " + name + ", which no source has");
        }
    }
    return found;
}

} // namespace

std::vector<Violation> documentViolations(const std::vector<SourceFile> &documents,
                                          const std::vector<SourceFile> &sources, const std::vector<std::string> &paths)
{
    Names words;
    for (const SourceFile &source : sources) {
        addWords(source.path, words);
        addWords(source.text, words);
    }
    const Names known(paths.begin(), paths.end());
    std::vector<Violation> violations;
    for (const SourceFile &document : documents) {
        std::istringstream lines(document.text);
        int number = 0;
        for (std::string line; std::getline(lines, line);) {
            ++number;
            for (const std::string &problem : problems(document.path, line, words, known)) {
                violations.push_back({document.path, number, problem});
            }
        }
    }
    return violations;
}

} // namespace architecture

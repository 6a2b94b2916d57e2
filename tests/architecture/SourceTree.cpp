#include "architecture/SourceTree.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <regex>
#include <sstream>

namespace architecture {

namespace {

std::string readFile(const std::filesystem::path &path)
{
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

} // namespace

bool operator==(const Include &left, const Include &right)
{
    return left.line == right.line && left.quoted == right.quoted && left.target == right.target;
}

bool operator==(const Violation &left, const Violation &right)
{
    return left.path == right.path && left.line == right.line && left.reason == right.reason;
}

void PrintTo(const Include &include, std::ostream *out)
{
    *out << include.line << ": " << (include.quoted ? '"' : '<') << include.target;
}

void PrintTo(const Violation &violation, std::ostream *out)
{
    *out << violation.path << ':' << violation.line << ": " << violation.reason;
}

std::vector<SourceFile> readTree(const std::string &directory, const std::vector<std::string> &endings)
{
    namespace fs = std::filesystem;
    std::vector<SourceFile> files;
    std::error_code missing;
    for (const fs::directory_entry &entry : fs::recursive_directory_iterator(directory, missing)) {
        if (std::count(endings.begin(), endings.end(), entry.path().extension().string()) != 0) {
            files.push_back({fs::relative(entry.path(), directory).generic_string(), readFile(entry.path())});
        }
    }
    std::sort(files.begin(), files.end(), [](const auto &a, const auto &b) { return a.path < b.path; });
    return files;
}

std::vector<Include> includesOf(const std::string &text)
{
    static const std::regex pattern("^\\s*#\\s*include\\s*([<\"])([^>\"]+)[>\"]");
    std::vector<Include> includes;
    std::istringstream lines(text);
    std::smatch match;
    int number = 0;
    for (std::string line; std::getline(lines, line);) {
        ++number;
        if (std::regex_search(line, match, pattern)) {
            includes.push_back({number, match.str(1) == "\"", match.str(2)});
        }
    }
    return includes;
}

std::string stemOf(const std::string &path) { return path.substr(0, path.rfind('.')); }

bool hasEnding(const std::string &path, const std::string &ending)
{
    return path.size() >= ending.size() && path.compare(path.size() - ending.size(), ending.size(), ending) == 0;
}

} // namespace architecture

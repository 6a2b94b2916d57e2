#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace architecture {

/** A header or source of the tree. */
struct SourceFile
{
    std::string path; ///< below src, with forward slashes: "drawing/ORVCADFloors.h"
    std::string text;
};

/** An include line. */
struct Include
{
    int line = 0; ///< counted from 1
    bool quoted = false;
    std::string target; ///< what stands between the quotes or brackets
};

/** One breach of a rule. */
struct Violation
{
    std::string path;
    int line = 0; ///< 0 for the file as a whole
    std::string reason;
};

bool operator==(const Include &left, const Include &right);
bool operator==(const Violation &left, const Violation &right);
void PrintTo(const Include &include, std::ostream *out);
void PrintTo(const Violation &violation, std::ostream *out);

/** Every file below a directory with one of the endings, headers and sources if none are told, sorted by path; empty
 *  where there is no such directory. */
std::vector<SourceFile> readTree(const std::string &directory,
                                 const std::vector<std::string> &endings = {".h", ".cpp"});

/** The include lines of a text, in order. */
std::vector<Include> includesOf(const std::string &text);

/** Path without its ending: "drawing/ORVCADFloors". */
std::string stemOf(const std::string &path);

/** Whether a path ends with ".h" or the like. */
bool hasEnding(const std::string &path, const std::string &ending);

} // namespace architecture

#pragma once

#include <QString>

#include <string>
#include <vector>

namespace orvcad {

/** The values that verbs are given, as they were typed; a verb reads those that it takes, see Verb. */
struct Arguments
{
    std::string project;
    std::string region;
    std::string floor;
    std::string input;
    std::vector<std::string> inputs;
    std::string output;
    std::string kind;
    std::string format;
    std::string drawing;
    std::string ids;
    std::string toProject; ///< where a floor is copied to
    std::string toRegion;
    std::string toFloor;
    std::vector<std::string> roads;
    std::vector<std::string> words; ///< of a line that is completed
    std::string against;
    int parts = 0;
    int width = 0; ///< pixels
    bool strict = false;
    bool asNew = false;

    static QString text(const std::string &value) { return QString::fromStdString(value); }
};

} // namespace orvcad

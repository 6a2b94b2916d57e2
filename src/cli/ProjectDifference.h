#pragma once

#include "cli/JsonDifference.h"

#include <QString>

#include <utility>
#include <vector>

namespace hbx::embedded {
class HBXProject;
}

namespace orvcad {

/** What became of the things of one project in another one. */
struct ProjectDifference
{
    enum class State { Same, Added, Gone, Changed };
    using Changes = std::vector<JsonDifference>;

    struct Object
    {
        State state = State::Same;
        qint64 idBefore = 0; ///< 0 where it was not
        qint64 idAfter = 0;  ///< 0 where it is not
        Changes changes;
    };
    struct Element
    {
        State state = State::Same; ///< of the element itself
        qint64 idBefore = 0;       ///< 0 where it was not
        qint64 idAfter = 0;        ///< 0 where it is not
        qint64 type = 0;
        QString name; ///< the later one
        Changes changes;
        std::vector<Object> objects; ///< those that are not the same

        bool isSame() const { return state == State::Same && objects.empty(); }
    };
    struct Floor
    {
        State state = State::Same; ///< of the floor itself
        int idBefore = 0;          ///< 0 where it was not
        int idAfter = 0;           ///< 0 where it is not
        QString name;
        Changes changes;
        std::vector<Element> elements; ///< those that are not the same, or have an object that is not

        bool isSame() const { return state == State::Same && elements.empty(); }
    };
    struct Region
    {
        State state = State::Same;
        QString name;
        std::vector<Floor> floors; ///< those that are not the same, from the lowest up

        bool isSame() const { return state == State::Same && floors.empty(); }
    };
    struct Counts
    {
        int added = 0;
        int gone = 0;
        int changed = 0;

        void add(State state);
    };

    bool isById = false;                     ///< the projects come from one, see ProjectPairs
    int compared = 0;                        ///< draw objects of the second project
    Changes changes;                         ///< of what the project says of itself: name, source, options, materials
    std::vector<Region> regions;             ///< those that are not the same
    std::vector<std::pair<int, int>> floors; ///< ids of all floors, earlier and later, by region from the lowest up
    Counts floorCounts;
    Counts elementCounts;
    Counts objectCounts;

    bool isSame() const { return changes.empty() && regions.empty(); }
};

ProjectDifference differenceBetween(const hbx::embedded::HBXProject &before, const hbx::embedded::HBXProject &after);

} // namespace orvcad

#pragma once

#include "platform/embedded/HBXProjectRecords.h"

#include <QHash>

#include <vector>

namespace orvcad {

/** A record of one project and the record of another one that stands for the same thing; one of them is null for what
 *  only the other project has. */
template <typename Record> struct RecordPair
{
    const Record *before = nullptr;
    const Record *after = nullptr;

    bool isWhole() const { return before && after; }
    /** The later one where there are both. */
    const Record &either() const { return after ? *after : *before; }
};

/** Which things of two projects are the same one.
 *
 *  Regions belong together by name; floors of these by name, else by code; elements of these by type and name. Where at
 *  least half of such elements have the same id in both projects, the two come from one, and ids then tell what else
 *  belongs together: elements that were renamed and objects that were changed.
 *
 *  Objects belong together that are alike in all they hold and of the same element; else, of projects that come from one,
 *  by id; else those of the same element and the same shape. All of it takes a time of n log n. */
struct ProjectPairs
{
    struct Object : RecordPair<hbx::embedded::DrawObjRecord>
    {
        bool isAlike = false; ///< in all that they hold, but for the objects that they name and are linked with
    };
    struct Element : RecordPair<hbx::embedded::ElementRecord>
    {
        std::vector<Object> objects; ///< by id; an object that came to another element stands with that
    };
    struct Floor : RecordPair<hbx::embedded::FloorRecord>
    {
        std::vector<Element> elements; ///< by type and name, units behind the element that owns them
    };
    struct Region : RecordPair<hbx::embedded::RegionRecord>
    {
        std::vector<Floor> floors; ///< from the lowest up
    };

    std::vector<Region> regions;      ///< in the order of the first project, then of the second
    bool isById = false;              ///< the projects come from one
    QHash<qint64, qint64> laterIds;   ///< of draw objects, by the earlier id
    QHash<qint64, qint64> earlierIds; ///< the other way round
};

/** The projects must outlive what is given. */
ProjectPairs pairsOf(const hbx::embedded::ProjectRecord &before, const hbx::embedded::ProjectRecord &after);

} // namespace orvcad

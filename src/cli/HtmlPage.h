#pragma once

#include <QByteArray>

#include <utility>
#include <vector>

class IHBXFloor;

namespace hbx::embedded {
class HBXProject;
}

namespace orvcad {

struct ProjectDifference;

/** A page for a browser that stands for itself: plans of floors, chosen one at a time, with layers, properties and a search;
 *  nothing in it is fetched from anywhere, and nothing runs in it but its own script. The same project gives the same page. */
struct HtmlPage
{
    QByteArray document;
    int floors = 0;
    int drawn = 0;           ///< placed objects on the plans, of two projects those of the later one
    int withoutGeometry = 0; ///< placed objects that no plan shows
};

/** @param floors  those that the page shows: by region, from the lowest up */
HtmlPage htmlPageOf(const hbx::embedded::HBXProject &project, std::vector<IHBXFloor *> floors);

/** What became of a project in another one: all floors of both, with what is added, gone and changed. */
HtmlPage htmlPageOf(const hbx::embedded::HBXProject &before, const hbx::embedded::HBXProject &after,
                    const ProjectDifference &difference);

} // namespace orvcad

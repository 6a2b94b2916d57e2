#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/geometry/CBox2.h"

#include <memory>
#include <vector>

namespace dwgx {

class BoxIndex;

/** Boxes (mm) with a user pointer, asked by intersection. The tree never looks at what the pointers name. A query may
 *  rearrange the tree, so one tree serves one thread. */
class ORVCADPLATFORM_EXPORT DWGXBaseBoxTree
{
public:
    /** A new, empty tree, which the caller deletes. */
    static DWGXBaseBoxTree *createObject();
    ~DWGXBaseBoxTree();
    DWGXBaseBoxTree(const DWGXBaseBoxTree &) = delete;
    DWGXBaseBoxTree &operator=(const DWGXBaseBoxTree &) = delete;

    /** An empty box, such as that of null geometry, and one with a NaN are left out. */
    void add(const vks::CBox2<double> &box, void *data);
    /** Replaces the content of out by the pointers of all boxes that share a point with the given one, in order of
     *  insertion; touching counts. An empty box finds nothing. */
    void getIntersectantData(const vks::CBox2<double> &box, std::vector<void *> &out) const;

private:
    DWGXBaseBoxTree();

    std::unique_ptr<BoxIndex> m_index;
};

} // namespace dwgx

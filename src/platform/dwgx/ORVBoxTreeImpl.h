#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/geometry/CBox2.h"

#include <functional>
#include <memory>
#include <vector>

namespace dwgx {
class BoxIndex;
}

/** Boxes with a user pointer, asked by intersection within a tolerance. The tree never looks at what the pointers name.
 *  A query may rearrange the tree, so one tree serves one thread. */
class ORVCADPLATFORM_EXPORT ORVBoxTreeImpl
{
public:
    /** Negative when the first item comes before the second, positive when behind it, 0 when they are the same. */
    using Comparison = std::function<int(void *, void *)>;

    /** @param tolerance  boxes no farther apart than this, mm, count as touching; 0 for a negative or NaN one */
    explicit ORVBoxTreeImpl(double tolerance);
    ~ORVBoxTreeImpl();
    ORVBoxTreeImpl(const ORVBoxTreeImpl &) = delete;
    ORVBoxTreeImpl &operator=(const ORVBoxTreeImpl &) = delete;

    /** An empty box, such as that of null geometry, and one with a NaN are left out. */
    void add(const vks::CBox2<double> &box, void *data);
    /** The pointers of all boxes that touch the given one; none for an empty box.
     *  @param comparison  empty: all of them, in order of insertion; else they are ordered by it, and of items that are
     *                     the same the one added first stands for all */
    std::vector<void *> getIntersectantData(const vks::CBox2<double> &box, const Comparison &comparison) const;

private:
    std::unique_ptr<dwgx::BoxIndex> m_index;
    double m_tolerance = 0.0; // mm
};

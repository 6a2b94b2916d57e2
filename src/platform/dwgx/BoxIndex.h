#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/geometry/CBox2.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace dwgx {

/** Boxes with a user pointer, asked by intersection: what both box trees stand on.
 *
 *  Few boxes are looked through one by one. Many go into an R-tree at the first query, packed; boxes that come later are
 *  put into it before the next query. A query brings the index up to date, so one index serves one thread. */
class ORVCADPLATFORM_EXPORT BoxIndex
{
public:
    /** In plan, mm. */
    using Box = vks::CBox2<double>;

    BoxIndex();
    ~BoxIndex();
    BoxIndex(const BoxIndex &) = delete;
    BoxIndex &operator=(const BoxIndex &) = delete;

    /** A box that is empty or has a NaN is left out. The pointer is handed back as it is; null is as good as any. */
    void add(const Box &box, void *data);
    /** Replaces the content of out by the pointers of all boxes that share a point with the query box, in order of
     *  insertion; touching counts. An empty query box, or one with a NaN, finds nothing. */
    void query(const Box &box, std::vector<void *> &out);

    /** Boxes in the index. */
    std::size_t count() const { return m_boxes.size(); }

private:
    struct Tree;

    void bringTreeUpToDate();
    void findInTree(const Box &box);
    void findOneByOne(const Box &box);

    std::vector<Box> m_boxes;
    std::vector<void *> m_data;
    std::vector<std::size_t> m_far;  // boxes too large or too far for the tree's arithmetic
    std::vector<std::size_t> m_hits; // of the query under way; kept for its memory
    std::size_t m_inTree = 0;        // so many of the first boxes are in the tree, or far
    std::unique_ptr<Tree> m_tree;    // null until there are enough boxes
};

} // namespace dwgx

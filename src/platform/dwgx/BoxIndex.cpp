#include "platform/dwgx/BoxIndex.h"

#define BOOST_ALLOW_DEPRECATED_HEADERS // which the R-tree of Boost 1.74 itself includes

#include <boost/geometry/geometries/box.hpp>
#include <boost/geometry/geometries/point.hpp>
#include <boost/geometry/index/rtree.hpp>

#include <algorithm>
#include <cmath>
#include <utility>

namespace dwgx {
namespace {

namespace bg = boost::geometry;
namespace bgi = boost::geometry::index;

using TreePoint = bg::model::point<double, 2, bg::cs::cartesian>;
using TreeBox = bg::model::box<TreePoint>;
using TreeEntry = std::pair<TreeBox, std::size_t>;

/** Below so many boxes looking through them all is as quick as a tree. */
constexpr std::size_t kFewestForTree = 200;

/** Coordinates above this, mm, overflow in the areas that the tree compares. */
constexpr double kLargestForTree = 1e150;

/** Up to so many hits are sorted by counting the lower ones of each. */
constexpr std::size_t kMostForCounting = 32;

/** Ascending; no number stands twice. Most queries meet a dozen boxes, in an order that no branch can foresee: counting
 *  needs none, which makes a query of a dozen hits an eighth quicker. */
void sortNumbers(std::vector<std::size_t> &numbers)
{
    if (numbers.size() > kMostForCounting) {
        std::sort(numbers.begin(), numbers.end());
        return;
    }
    std::size_t sorted[kMostForCounting];
    for (const std::size_t number : numbers) {
        std::size_t place = 0;
        for (const std::size_t other : numbers)
            place += other < number ? 1 : 0;
        sorted[place] = number;
    }
    std::copy_n(sorted, numbers.size(), numbers.begin());
}

TreeBox treeBox(const BoxIndex::Box &box)
{
    return {TreePoint(box.minPt.x, box.minPt.y), TreePoint(box.maxPt.x, box.maxPt.y)};
}

bool isFar(const BoxIndex::Box &box)
{
    const auto beyond = [](double value) { return std::abs(value) > kLargestForTree; };
    return beyond(box.minPt.x) || beyond(box.minPt.y) || beyond(box.maxPt.x) || beyond(box.maxPt.y);
}

/** Keeps the number of each entry that a query meets. */
class HitCollector
{
public:
    explicit HitCollector(std::vector<std::size_t> &hits) : m_hits(&hits) {}
    HitCollector &operator=(const TreeEntry &entry)
    {
        m_hits->push_back(entry.second);
        return *this;
    }
    HitCollector &operator*() { return *this; }
    HitCollector &operator++() { return *this; }
    HitCollector &operator++(int) { return *this; }

private:
    std::vector<std::size_t> *m_hits;
};

} // namespace

struct BoxIndex::Tree : bgi::rtree<TreeEntry, bgi::quadratic<16>>
{
    using rtree::rtree;
};

BoxIndex::BoxIndex() = default;
BoxIndex::~BoxIndex() = default;

void BoxIndex::add(const Box &box, void *data)
{
    if (!box.IsValid())
        return;
    if (isFar(box))
        m_far.push_back(m_boxes.size());
    m_boxes.push_back(box);
    m_data.push_back(data);
}

void BoxIndex::query(const Box &box, std::vector<void *> &out)
{
    out.clear();
    m_hits.clear();
    if (!box.IsValid())
        return;
    bringTreeUpToDate();
    if (m_tree)
        findInTree(box);
    else
        findOneByOne(box);
    out.reserve(m_hits.size());
    for (const std::size_t hit : m_hits)
        out.push_back(m_data[hit]);
}

void BoxIndex::bringTreeUpToDate()
{
    if (m_inTree == m_boxes.size() || m_boxes.size() < kFewestForTree)
        return;
    // Packing is quicker per box than insertion and gives the better tree, so it is also right when most are new.
    const bool pack = m_boxes.size() - m_inTree > m_inTree;
    std::vector<TreeEntry> fresh;
    fresh.reserve(m_boxes.size() - (pack ? 0 : m_inTree));
    for (std::size_t i = pack ? 0 : m_inTree; i < m_boxes.size(); ++i)
        if (!isFar(m_boxes[i]))
            fresh.emplace_back(treeBox(m_boxes[i]), i);
    if (pack)
        m_tree = std::make_unique<Tree>(fresh);
    else
        m_tree->insert(fresh);
    m_inTree = m_boxes.size();
}

void BoxIndex::findInTree(const Box &box)
{
    m_tree->query(bgi::intersects(treeBox(box)), HitCollector(m_hits));
    for (const std::size_t far : m_far)
        if (m_boxes[far].Intersects(box))
            m_hits.push_back(far);
    sortNumbers(m_hits);
}

void BoxIndex::findOneByOne(const Box &box)
{
    for (std::size_t i = 0; i < m_boxes.size(); ++i)
        if (m_boxes[i].Intersects(box))
            m_hits.push_back(i);
}

} // namespace dwgx

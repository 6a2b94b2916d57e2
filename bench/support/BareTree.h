#pragma once

#define BOOST_ALLOW_DEPRECATED_HEADERS // which the R-tree of Boost 1.74 itself includes

#include "platform/geometry/CBox2.h"

#include <boost/geometry/geometries/box.hpp>
#include <boost/geometry/geometries/point.hpp>
#include <boost/geometry/index/rtree.hpp>

#include <utility>

/** The floor under a search by boxes: a packed R-tree that keeps no order. */
namespace bench {

using TreePoint = boost::geometry::model::point<double, 2, boost::geometry::cs::cartesian>;
using TreeBox = boost::geometry::model::box<TreePoint>;
template <typename Value> using TreeEntry = std::pair<TreeBox, Value>;
template <typename Value>
using BareTree = boost::geometry::index::rtree<TreeEntry<Value>, boost::geometry::index::quadratic<16>>;

inline TreeBox treeBox(const vks::CBox2<double> &box)
{
    return {TreePoint(box.minPt.x, box.minPt.y), TreePoint(box.maxPt.x, box.maxPt.y)};
}

} // namespace bench

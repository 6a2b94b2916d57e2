#include "platform/dwgx/ORVBoxTreeImpl.h"

#include "platform/dwgx/BoxIndex.h"

#include <algorithm>

ORVBoxTreeImpl::ORVBoxTreeImpl(double tolerance)
    : m_index(std::make_unique<dwgx::BoxIndex>()), m_tolerance(tolerance > 0.0 ? tolerance : 0.0)
{}

ORVBoxTreeImpl::~ORVBoxTreeImpl() = default;

void ORVBoxTreeImpl::add(const vks::CBox2<double> &box, void *data) { m_index->add(box, data); }

std::vector<void *> ORVBoxTreeImpl::getIntersectantData(const vks::CBox2<double> &box,
                                                        const Comparison &comparison) const
{
    std::vector<void *> hits;
    m_index->query(box.Grown(m_tolerance), hits);
    if (!comparison)
        return hits;
    std::stable_sort(hits.begin(), hits.end(), [&](void *a, void *b) { return comparison(a, b) < 0; });
    const auto same = [&](void *a, void *b) { return comparison(a, b) == 0; };
    hits.erase(std::unique(hits.begin(), hits.end(), same), hits.end());
    return hits;
}

#pragma once

#include "slab/ORVCADBoardLocalModel_Sample.h"

#include <vector>

/** The search told in the plainest way, by looking at every element and keeping nothing: what the service is compared
 *  with. */
class PlainSlabSearch
{
public:
    using Model = ORVCADBoardLocalModel_Sample;
    using Object = Model::Object;
    using Objects = std::vector<Object *>;

    PlainSlabSearch(const Model &model, int indexed) : m_model(model), m_indexed(indexed) {}

    Objects byBox(const vks::CBox2<double> &box, int mask) const;
    Objects byPolygon(const vks::CPolygon &polygon, int mask) const;
    Objects byCurve(const vks::CCurve2d &curve, int mask) const;
    Objects byElement(const Object &query, int mask) const;

private:
    using Polygon = vks::CRefPtr<vks::CPolygon>;

    bool isSame(const Object &hit, const Object &query) const;
    bool isSameBoard(const Model::Board &h, const Model::Board &q) const;
    Polygon netArea(const vks::CPolygon &outline) const;

    const Model &m_model;
    int m_indexed;
};

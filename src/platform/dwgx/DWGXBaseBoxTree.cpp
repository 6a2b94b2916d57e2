#include "platform/dwgx/DWGXBaseBoxTree.h"

#include "platform/dwgx/BoxIndex.h"

namespace dwgx {

DWGXBaseBoxTree::DWGXBaseBoxTree() : m_index(std::make_unique<BoxIndex>()) {}

DWGXBaseBoxTree::~DWGXBaseBoxTree() = default;

DWGXBaseBoxTree *DWGXBaseBoxTree::createObject() { return new DWGXBaseBoxTree; }

void DWGXBaseBoxTree::add(const vks::CBox2<double> &box, void *data) { m_index->add(box, data); }

void DWGXBaseBoxTree::getIntersectantData(const vks::CBox2<double> &box, std::vector<void *> &out) const
{
    m_index->query(box, out);
}

} // namespace dwgx

#include "cli/FaultyValues.h"

namespace orvcad {

FaultyValues::FaultyValues(const JsonTree &document, const std::vector<CheckFinding> &findings) : m_document(document)
{
    for (const CheckFinding &finding : findings) {
        if (finding.weight != CheckFinding::Weight::Fault)
            continue;
        // An object that lacks a key is as sound as it was in what it has.
        if (finding.missingKey.isNull())
            m_faulty.insert(finding.node);
        JsonTree::Index holder = finding.node;
        while (holder != JsonTree::kNone && m_holders.insert(holder).second)
            holder = document.node(holder).parent;
    }
}

bool FaultyValues::touch(JsonTree::Index value) const
{
    if (m_holders.count(value) > 0)
        return true;
    while (value != JsonTree::kNone && m_faulty.count(value) == 0)
        value = m_document.node(value).parent;
    return value != JsonTree::kNone;
}

} // namespace orvcad

#pragma once

#include "cli/CheckFinding.h"

#include <unordered_set>
#include <vector>

namespace orvcad {

/** Where the faults of a document lie, for readers that take one member of it after the other: what is said of a member
 *  that has a fault anyway follows from it, or says it once more. */
class FaultyValues
{
public:
    /** Of findings, the faults count. */
    FaultyValues(const JsonTree &document, const std::vector<CheckFinding> &findings);

    bool isEmpty() const { return m_faulty.empty() && m_holders.empty(); }
    /** Whether a fault lies in the value, or what it stands in is one. */
    bool touch(JsonTree::Index value) const;

private:
    const JsonTree &m_document;
    std::unordered_set<JsonTree::Index> m_holders; // of faults, up to the top
    std::unordered_set<JsonTree::Index> m_faulty;  // as a whole
};

} // namespace orvcad

#pragma once

#include <QList>

/** The recognised beams of a run, in both families of identify records, which differ in the record of a beam label.
 *
 *  The model deletes its labels. A copy shares them and would delete them again: only one of the two may be destroyed
 *  while it holds them. A moved-from model is empty. */
template <typename ElementInfo> class BeamResultFields
{
public:
    BeamResultFields() = default;
    BeamResultFields(const BeamResultFields &) = default;
    BeamResultFields(BeamResultFields &&) noexcept = default;
    BeamResultFields &operator=(const BeamResultFields &) = default;
    BeamResultFields &operator=(BeamResultFields &&) noexcept = default;
    ~BeamResultFields() { qDeleteAll(m_elementInfos); }

    /** The labels themselves; they go on belonging to the model. */
    QList<ElementInfo *> getElementInfo() const { return m_elementInfos; }
    /** Takes the labels over. Those that were there are given up, not deleted: a caller or a copy may hold them. */
    void setElementInfo(const QList<ElementInfo *> &elementInfos) { m_elementInfos = elementInfos; }

private:
    QList<ElementInfo *> m_elementInfos;
};

#pragma once

#include "beam/ORVCADBeamEDOInfo.h"

#include <QList>

/** Deletes what a beam label gives up with itself: its runs with their segments, and its seats. */
template <typename ElementInfo> void deleteContent(ElementInfo &label)
{
    for (const ORVCADBeamEDOInfo *run : qAsConst(label.edoInfos))
        qDeleteAll(run->vecSegmentInfo);
    qDeleteAll(label.edoInfos);
    qDeleteAll(label.seatEdoIDList);
    label.edoInfos.clear();
    label.seatEdoIDList.clear();
}

template <typename ElementInfo> void deleteContent(const QList<ElementInfo *> &labels)
{
    for (ElementInfo *label : labels)
        deleteContent(*label);
}

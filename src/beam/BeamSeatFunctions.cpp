#include "beam/BeamSeatFunctions.h"

#include <algorithm>

template <typename SeatInfo> SeatInfo *createBeamSeatInfo(ORVCADBeamSeatIDType type, qint64 id, const QUuid &segmentId)
{
    auto *seat = new SeatInfo;
    seat->eSeatIDType = type;
    if (type == kSeatIsDrawObj)
        seat->nSeatID = id;
    else
        seat->nBeamSegmentInfoID = segmentId;
    return seat;
}

namespace {

template <typename SeatInfo> void removeFirst(QList<SeatInfo *> &seats, qint64 id)
{
    const auto found =
        std::find_if(seats.begin(), seats.end(), [id](const SeatInfo *seat) { return seat && seat->nSeatID == id; });
    if (found == seats.end())
        return;
    delete *found;
    seats.erase(found);
}

template <typename SeatInfo> void replaceInSeats(const QList<SeatInfo *> &seats, qint64 id, const QUuid &segmentId)
{
    for (SeatInfo *seat : seats) {
        if (!seat || seat->nBeamSegmentInfoID != segmentId)
            continue;
        seat->eSeatIDType = kSeatIsDrawObj;
        seat->nSeatID = id;
    }
}

template <typename ElementInfo>
void replaceInElements(const QList<ElementInfo *> &elementInfos, qint64 id, const QUuid &segmentId)
{
    for (const ElementInfo *elementInfo : elementInfos)
        if (elementInfo)
            replaceInSeats(elementInfo->seatEdoIDList, id, segmentId);
}

} // namespace

template ORVCADMODELDATA_EXPORT ORVCADBeamSeatInfo *createBeamSeatInfo<ORVCADBeamSeatInfo>(ORVCADBeamSeatIDType type,
                                                                                           qint64 id,
                                                                                           const QUuid &segmentId);
template ORVCADMODELDATA_EXPORT ORVCADBeamSDCSeatInfo *createBeamSeatInfo<ORVCADBeamSDCSeatInfo>(
    ORVCADBeamSeatIDType type, qint64 id, const QUuid &segmentId);

void removeSeatInfo(QList<ORVCADBeamSeatInfo *> &seats, qint64 id) { removeFirst(seats, id); }

void removeSeatInfo(QList<ORVCADBeamSDCSeatInfo *> &seats, qint64 id) { removeFirst(seats, id); }

void replaceSegmentIDwithEdoID(QList<ORVCADBeamSeatInfo *> &seats, qint64 id, const QUuid &segmentId)
{
    replaceInSeats(seats, id, segmentId);
}

void replaceSegmentIDwithEdoID(QList<ORVCADBeamSDCSeatInfo *> &seats, qint64 id, const QUuid &segmentId)
{
    replaceInSeats(seats, id, segmentId);
}

void replaceSegmentIDwithEdoID(QList<ORVCADBeamEdoInfoTmp *> &elementInfos, qint64 id, const QUuid &segmentId)
{
    replaceInElements(elementInfos, id, segmentId);
}

void replaceSegmentIDwithEdoID(QList<ORVCADBeamElementInfo *> &elementInfos, qint64 id, const QUuid &segmentId)
{
    replaceInElements(elementInfos, id, segmentId);
}

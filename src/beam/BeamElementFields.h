#pragma once

#include "beam/ORVCADBeamSeatIDType.h"

#include <QList>
#include <QString>
#include <QUuid>

class ORVCADBeamEDOInfo;

/** What a recognised beam label is in both families of identify records, which differ in the record of a seat.
 *
 *  The placed runs and the seats are given up with the record and not deleted: a caller may hold them. */
template <typename SeatInfo> class BeamElementFields
{
public:
    /** Ids of the seats that are draw objects, in list order. */
    QList<qint64> getSeatEdoIDList() const
    {
        QList<qint64> ids;
        for (const SeatInfo *seat : seatEdoIDList)
            if (seat && seat->eSeatIDType == kSeatIsDrawObj)
                ids.append(seat->nSeatID);
        return ids;
    }
    /** The first seat that is still named by that segment; null when there is none. It stays in the list. */
    SeatInfo *getSeatInfo(const QUuid &segmentId) const
    {
        for (SeatInfo *seat : seatEdoIDList)
            if (seat && seat->eSeatIDType == kSeatIsSegment && seat->nBeamSegmentInfoID == segmentId)
                return seat;
        return nullptr;
    }

    QString strName;                     ///< of the beam
    int nElementType = 0;                ///< of the host
    int nBeamType = 0;                   ///< a number of the recognition side
    QString strSpanDesc;                 ///< number of spans, such as 3A
    QString strSection;                  ///< as the label tells it
    QString strHoopBar;                  ///< bar text of the hoops
    QString strTopThroughBar;            ///< bar text, through at the top
    QString strBottomThroughBar;         ///< bar text, through at the bottom
    QString strSideBar;                  ///< bar text, at the sides
    int eCantileverType = 0;             ///< a number of the recognition side
    QList<ORVCADBeamEDOInfo *> edoInfos; ///< placed runs
    QList<SeatInfo *> seatEdoIDList;     ///< what it rests on
};

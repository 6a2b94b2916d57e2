#pragma once

#include "beam/ORVCADBeamSegmentInfo.h"

#include <QString>

#include <vector>

/** One placed run of a recognised beam; serves both families of identify records.
 *  The segments are given up with the record and not deleted: a caller may hold them. */
class ORVCADMODELDATA_EXPORT ORVCADBeamEDOInfo
{
public:
    /** Null segments are left out. */
    QJsonObject toJson() const;
    /** Fills the target and adds to its segments; null does nothing. A missing or mistyped key gives 0, the empty text or
     *  no segment. */
    static void fromJson(ORVCADBeamEDOInfo *target, const QJsonObject &json);

    QString nSpanNum;                                    ///< as the label tells it
    int nWidth = 0;                                      ///< mm
    QString strStartElev;                                ///< elevation of the start
    QString strEndElev;                                  ///< elevation of the end
    int enStartElevType = 0;                             ///< a number of the recognition side
    int enEndElevType = 0;                               ///< likewise
    std::vector<ORVCADBeamSegmentInfo *> vecSegmentInfo; ///< its pieces; null ones are not written

private:
    struct Fields; // the one list, in the source
};

#pragma once

#include "ORVCADModelDataExport.h"
#include "beam/ORVCADBeamEdoInfoTmp.h"
#include "beam/ORVCADBeamElementInfo.h"

#include <QList>
#include <QUuid>

/** @file
 *  Work on the seats of recognised beams.
 *
 *  A seat that is a beam found in the same run has no draw object yet and is named by its segment. Once the caller has made
 *  the draw object of a segment, replaceSegmentIDwithEdoID gives its id to every seat that the segment is. Null entries
 *  of the lists are passed over. */

/** A new seat, which belongs to the caller. Of the type kSeatIsDrawObj it keeps the id alone, of any other type the segment
 *  alone; the type is kept as given. The same for the other family: createBeamSeatInfo<ORVCADBeamSDCSeatInfo>. */
template <typename SeatInfo = ORVCADBeamSeatInfo>
SeatInfo *createBeamSeatInfo(ORVCADBeamSeatIDType type, qint64 id, const QUuid &segmentId);
/** Compiled once, with the library. */
extern template ORVCADMODELDATA_EXPORT ORVCADBeamSeatInfo *createBeamSeatInfo<ORVCADBeamSeatInfo>(
    ORVCADBeamSeatIDType type, qint64 id, const QUuid &segmentId);

/** Takes the first seat of that id, of whichever type, from the list and deletes it; further ones stay. */
ORVCADMODELDATA_EXPORT void removeSeatInfo(QList<ORVCADBeamSeatInfo *> &seats, qint64 id);
/** The same in a list of the other family. */
ORVCADMODELDATA_EXPORT void removeSeatInfo(QList<ORVCADBeamSDCSeatInfo *> &seats, qint64 id);

/** Makes every seat of that segment, of whichever type, one of the draw object. It keeps its segment. */
ORVCADMODELDATA_EXPORT void replaceSegmentIDwithEdoID(QList<ORVCADBeamSeatInfo *> &seats, qint64 id,
                                                      const QUuid &segmentId);
/** The same in a list of the other family. */
ORVCADMODELDATA_EXPORT void replaceSegmentIDwithEdoID(QList<ORVCADBeamSDCSeatInfo *> &seats, qint64 id,
                                                      const QUuid &segmentId);
/** The same in the seat lists of all beam labels. */
ORVCADMODELDATA_EXPORT void replaceSegmentIDwithEdoID(QList<ORVCADBeamEdoInfoTmp *> &elementInfos, qint64 id,
                                                      const QUuid &segmentId);
/** The same in those of sample collection. */
ORVCADMODELDATA_EXPORT void replaceSegmentIDwithEdoID(QList<ORVCADBeamElementInfo *> &elementInfos, qint64 id,
                                                      const QUuid &segmentId);

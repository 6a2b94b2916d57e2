#pragma once

#include "ModelSerialization/PropertyText.h"
#include "ORVCADModelDataExport.h"

#include <QtGlobal>

#include <vector>

class BaseBeamEntInfo;
class IHBXProperties;
class BeamSegmentInfo;

/** Which properties of the host hold a beam and which field of the local model belongs to each: one table for elements and
 *  one for draw objects, in the source. Reading walks a table from its first row to its last, writing takes the rows of
 *  one step after the other. */
namespace beam {

/** The steps in which a beam is written. */
enum class WriteStep {
    Never, ///< read only
    Width,
    AxisOffset,
    Type,
    SpanCount,
    Section,
    BarsOfKind, ///< those that only link beams, or only the others have
    CommonBars,
    Elevations
};

/** Reads an element's properties into its record. A row that the record's class has no field for is passed over. What the
 *  host throws goes on to the caller; the rows before it have been read then. */
ORVCADMODELDATA_EXPORT void readEntProperties(const IHBXProperties &properties, qint64 elementType,
                                              BaseBeamEntInfo &record);
/** The same for the draw object of a segment. */
ORVCADMODELDATA_EXPORT void readSegmentProperties(const IHBXProperties &properties, BeamSegmentInfo &record);

/** What a step writes for a record, in order; empty when it has nothing for the record's element type. */
ORVCADMODELDATA_EXPORT std::vector<PropertyText> entPropertyTexts(const BaseBeamEntInfo &record, WriteStep step);
ORVCADMODELDATA_EXPORT std::vector<PropertyText> segmentPropertyTexts(const BeamSegmentInfo &record, WriteStep step);

} // namespace beam

#pragma once

#include "ORVCADModelDataExport.h"

#include <QString>

#include <memory>

class BeamSpanInfo;
class IWLRBeamSpan;

namespace beam {

/** The record of a span of the host. What the host throws ends the reading there, and the record keeps what was read; null
 *  gives a fresh one. Hoop bars that are not kept as text are left out. */
ORVCADMODELDATA_EXPORT std::shared_ptr<BeamSpanInfo> getBeamSpanInfo(const IWLRBeamSpan *span);

/** The left haunch bars one behind the other, ";" and the right ones. Without right ones the left ones alone; meant: without
 *  left ones nothing, even if there are right ones. */
ORVCADMODELDATA_EXPORT QString getHaunchingBarInfo(const IWLRBeamSpan *span);

} // namespace beam

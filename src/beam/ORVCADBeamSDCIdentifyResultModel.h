#pragma once

#include "beam/BeamResultFields.h"
#include "beam/ORVCADBeamElementInfo.h"

/** What the recognition of beams found, as sample collection keeps it; without JSON. */
class ORVCADBeamSDCIdentifyResultModel : public BeamResultFields<ORVCADBeamElementInfo>
{};

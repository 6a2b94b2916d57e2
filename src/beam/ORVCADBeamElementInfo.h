#pragma once

#include "beam/BeamElementFields.h"
#include "beam/ORVCADBeamSDCSeatInfo.h"

/** One recognised beam label, as sample collection keeps it: the fields of ORVCADBeamEdoInfoTmp, without JSON. */
class ORVCADBeamElementInfo : public BeamElementFields<ORVCADBeamSDCSeatInfo>
{};

#pragma once

#include "beam/BeamSeatFields.h"

/** A seat of a recognised beam, as sample collection keeps it: the fields of ORVCADBeamSeatInfo, without JSON. */
class ORVCADBeamSDCSeatInfo : public BeamSeatFields
{};

#pragma once

#include "beam/BeamSegmentFields.h"

/** A piece of a recognised beam, as sample collection keeps it: the fields of ORVCADBeamSegmentInfo, without JSON. */
class ORVCADBeamSDCSegmentInfo : public BeamSegmentFields
{};

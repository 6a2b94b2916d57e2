#pragma once

#include "support/RecordingHost.h"

class IHBXProperties;

/** The wrapper of a property set; null for null. */
IHBXProperties *recordingProperties(RecordingHost::State &state, IHBXProperties *real);

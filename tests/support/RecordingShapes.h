#pragma once

#include "support/RecordingHost.h"

class IHBXShape;

/** The wrapper of a shape, of the same concrete kind; null for null. */
IHBXShape *recordingShape(RecordingHost::State &state, IHBXShape *real);

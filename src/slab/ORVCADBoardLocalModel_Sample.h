#pragma once

// The slab local model with everything in it: what users of the model include.

#include "slab/BoardLocalModel.h"         // IWYU pragma: export
#include "slab/BoardLocalModelBars.h"     // IWYU pragma: export
#include "slab/BoardLocalModelElements.h" // IWYU pragma: export

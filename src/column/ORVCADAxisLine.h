#pragma once

#include "platform/geometry/CCurve2d.h"

/** One axis line. Its JSON is the text of its curve: docs/formats/geometry-text.md. */
struct ORVCADAxisLine
{
    vks::CRefPtr<vks::CCurve2d> curve; ///< null for a text that could not be read
};

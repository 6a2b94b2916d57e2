// Elevation texts: what is accepted is a finite number.

#include "platform/embedded/HBXElevationText.h"
#include "support/FuzzInput.h"

#include <cmath>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (const auto elevation = hbx::embedded::HBXElevationText::parse(fuzz::textOf(data, size)))
        fuzz::require(std::isfinite(elevation->metres()), "an elevation is finite");
    return 0;
}

// A reply of doors and windows into a host; the project is sound afterwards.

#include "doorwindow/JsonDoorWin2HBX.h"
#include "support/FuzzHost.h"
#include "support/FuzzInput.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto project = fuzz::smallProject();
    jsonDoorWin2HBX(project->service(), fuzz::objectOf(data, size));
    fuzz::requireSound(*project);
    return 0;
}

// The hbx-project form: a building that is accepted is written, accepted again and written the same.

#include "platform/embedded/HBXProject.h"
#include "support/FuzzHost.h"
#include "support/FuzzInput.h"
#include "support/QtJsonLeaks.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const fuzz::QtJsonLeaks leaks(fuzz::bytesOf(data, size));
    hbx::embedded::ProjectError error;
    const auto project =
        hbx::embedded::HBXProject::fromJson(fuzz::bytesOf(data, size), QStringLiteral("b.json"), error);
    fuzz::require((project != nullptr) == error.isEmpty(), "what is refused has a reason");
    if (project)
        fuzz::requireSound(*project);
    return 0;
}

// Project files: opened soundly or refused with a reason. A damaged one may hold outlines that cross themselves, which
// the exchange form refuses; it must open again all the same.

#include "platform/embedded/HBXProject.h"
#include "support/FuzzFile.h"
#include "support/FuzzHost.h"
#include "support/FuzzInput.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const fuzz::FuzzFile file(QStringLiteral("fuzzed.hbxdb"), fuzz::bytesOf(data, size));
    hbx::embedded::ProjectError error;
    const auto project = hbx::embedded::HBXProject::open(file.path(), error);
    fuzz::require((project != nullptr) == error.isEmpty(), "what is refused has a reason");
    if (project)
        fuzz::requireKept(*project);
    return 0;
}

// A reply of brick and of force walls into a host; the project is sound afterwards.

#include "IdentifyInputModel/Wall/JsonWall2HBX.h"
#include "platform/embedded/HBXModelStore.h"
#include "support/FuzzHost.h"
#include "support/FuzzInput.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QJsonObject reply = fuzz::objectOf(data, size);
    const auto project = fuzz::smallProject();
    jsonBrickWall2HBX(project->service(), reply);
    jsonForceWall2HBX(project->service(), reply);
    fuzz::require(project->store().openBatches().empty(), "every bracket is closed");
    fuzz::requireSound(*project);
    return 0;
}

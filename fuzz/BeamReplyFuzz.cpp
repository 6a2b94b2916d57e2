// A reply of beams into a host, and what they rest on; the project is sound afterwards.

#include "ModelSerialization/ORVCADBeamLocalModel2HBXService.h"
#include "beam/BeamModelDataInfo.h"
#include "beam/ORVBeamSDCSeatInfoModel.h"
#include "platform/embedded/HBXModelStore.h"
#include "support/FuzzHost.h"
#include "support/FuzzInput.h"

#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QJsonObject json = fuzz::objectOf(data, size);
    const auto project = fuzz::smallProject();
    ORVCADBeamLocalModel2HBXService service(project->service());
    const auto beam = std::make_shared<BeamModelDataInfo>();
    beam->fromJson(json);
    service.reconstructBeam(beam);
    for (const auto reconstruct :
         {&ORVCADBeamLocalModel2HBXService::reconstructFoundation, &ORVCADBeamLocalModel2HBXService::reconstructPile,
          &ORVCADBeamLocalModel2HBXService::reconstructTieBeam}) {
        const auto seat = std::make_shared<ORVBeamSDCSeatInfoModel>();
        seat->fromJson(json);
        (service.*reconstruct)(seat);
    }
    fuzz::require(project->store().openBatches().empty(), "every bracket is closed");
    fuzz::requireSound(*project);
    return 0;
}

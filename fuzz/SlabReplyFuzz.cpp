// A slab model document into a host; the project is sound afterwards.

#include "ModelSerialization/ORVCADBoardLocalModelPersistenceService_Sample.h"
#include "ModelSerialization/ORVCADBoardLocalModelTransformHBXService_Sample.h"
#include "slab/ORVCADBoardLocalModel_Sample.h"
#include "support/FuzzHost.h"
#include "support/FuzzInput.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using Reader = ORVCADBoardLocalModelPersistenceService_Sample;
    ORVCADBoardLocalModel_Sample model;
    Reader::json2model(fuzz::objectOf(data, size), &model, Reader::Everything);
    const auto project = fuzz::smallProject();
    ORVCADBoardLocalModelTransformHBXService_Sample::local2hbx(&model, project->service(), nullptr,
                                                               QStringLiteral("House"), QStringLiteral("Level 1"));
    fuzz::requireSound(*project);
    return 0;
}

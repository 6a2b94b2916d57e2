// The slab model document: read, written, read again, with as many elements.

#include "ModelSerialization/ORVCADBoardLocalModelPersistenceService_Sample.h"
#include "slab/ORVCADBoardLocalModel_Sample.h"
#include "support/FuzzInput.h"

namespace {

using Service = ORVCADBoardLocalModelPersistenceService_Sample;

constexpr int kEverything = Service::Everything | Service::AxisNets;

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    ORVCADBoardLocalModel_Sample model;
    Service::json2model(fuzz::objectOf(data, size), &model, kEverything);
    const QJsonObject written = Service::model2json(&model, Service::Everything);
    ORVCADBoardLocalModel_Sample again;
    Service::json2model(written, &again, kEverything);
    fuzz::require(again.objects().size() == model.objects().size(), "as many elements come back");
    return 0;
}

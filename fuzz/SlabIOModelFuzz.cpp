// The slab IO document with its packed drawing.

#include "ModelSerialization/ORVCADBoardLocalIOModelPersistenceService_Sample.h"
#include "slab/ORVCADBoardLocalIOModel_Sample.h"
#include "support/FuzzInput.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    constexpr int everything = 2 | 4 | 8 | 32 | 64 | 128;
    ORVCADBoardLocalIOModel_Sample model;
    if (ORVCADBoardLocalIOModelPersistenceService_Sample::json2model(fuzz::objectOf(data, size), &model, everything))
        ORVCADBoardLocalIOModelPersistenceService_Sample::model2json(&model, everything);
    return 0;
}

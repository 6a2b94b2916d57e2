#include "platform/services/ORVRegionRuleManager.h"

#include "platform/embedded/HBXModelStore.h"
#include "platform/embedded/HBXProject.h"

ORVRegionRuleManager *ORVRegionRuleManager::getInstance()
{
    static ORVRegionRuleManager manager;
    return &manager;
}

const HBXMaterial *ORVRegionRuleManager::findMaterial(int number) const
{
    const hbx::embedded::HBXProject *project = hbx::embedded::HBXProject::current();
    if (!project)
        return nullptr;
    for (const HBXMaterial &material : project->store().materials())
        if (material.number == number)
            return &material;
    return nullptr;
}

#include "platform/services/ORVplaneRule.h"

#include "platform/embedded/HBXModelStore.h"
#include "platform/embedded/HBXProject.h"

ORVplaneRule *ORVplaneRule::getInstance()
{
    static ORVplaneRule rule;
    return &rule;
}

bool ORVplaneRule::is11gor16gPlaneRule() const
{
    const hbx::embedded::HBXProject *project = hbx::embedded::HBXProject::current();
    const QString rule = project ? project->store().planeRule() : QString();
    return rule == QLatin1String("11G") || rule == QLatin1String("16G");
}

#include "platform/services/HBXCADLayerBuilder.h"

#include "platform/embedded/HBXDrawingLayers.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/IHBXService.h"

std::wstring HBXCADLayerBuilder::getCustomLayerStoredName(const std::wstring &title)
{
    const hbx::embedded::HBXProject *project = hbx::embedded::HBXProject::current();
    const hbx::embedded::HBXDrawingLayers layers(project ? project->service()->model() : nullptr);
    return layers.storedName(QString::fromStdWString(title)).toStdWString();
}

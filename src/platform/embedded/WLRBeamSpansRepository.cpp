#include "platform/services/WLRBeamSpansRepository.h"

#include "platform/embedded/HBXBeamSpans.h"
#include "platform/embedded/HBXModelStore.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXService.h"

WLRBeamSpansRepository *WLRBeamSpansRepository::getInstance()
{
    static WLRBeamSpansRepository repository;
    return &repository;
}

WLRBeamSpans *WLRBeamSpansRepository::getBeamSpans(qint64 drawObjId) const
{
    const hbx::embedded::HBXProject *project = hbx::embedded::HBXProject::current();
    if (!project)
        return nullptr;
    IHBXElementDrawObj *drawObj = project->service()->model()->drawObjects()->drawObjById(drawObjId);
    return hbx::embedded::HBXBeamSpans::make(project->store().spans(drawObj)).release();
}

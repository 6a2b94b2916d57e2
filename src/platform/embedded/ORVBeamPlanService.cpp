#include "platform/services/ORVBeamPlanService.h"

#include "platform/embedded/HBXBeamSpans.h"
#include "platform/embedded/HBXSpanCut.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/services/WLRBeamSpansRepository.h"

WLRBeamSpans *ORVBeamPlanService::createBeamSpans(IHBXElementDrawObj *beam, LoadBeamSpansSytle style) const
{
    IHBXElementDrawObj *head = beam ? beam->chainHead() : nullptr;
    const bool isStored = style == kLoadStoredBeamSpans || style == kLoadStoredOrCutBeamSpans;
    const bool isCut = style == kCutBeamSpans || style == kLoadStoredOrCutBeamSpans;
    WLRBeamSpans *spans = head && isStored ? WLRBeamSpansRepository::getInstance()->getBeamSpans(head->id()) : nullptr;
    if (!spans && head && isCut)
        spans = hbx::embedded::HBXBeamSpans::make(hbx::embedded::HBXSpanCut(*head).spans()).release();
    return spans;
}

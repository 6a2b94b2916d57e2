#include "platform/embedded/HBXAttachment.h"

#include "platform/dwgx/Reason.h"
#include "platform/services/HBXElementTypes.h"

#include <algorithm>
#include <iterator>

namespace hbx::embedded {
namespace {

const AttachmentRule kRules[] = {
    {{type::door, type::window, type::doorWithWindow, type::wallOpening},
     {type::forceWall, type::partitionWall, type::retainingWall, type::curtainWall, type::brickWall},
     QT_TRANSLATE_NOOP("host", "names no wall")},
    {{type::slabHole}, {type::slab, type::raft}, QT_TRANSLATE_NOOP("host", "names no slab or raft")},
};

} // namespace

const AttachmentRule *attachmentRuleOf(qint64 type)
{
    const auto *rule = std::find_if(std::begin(kRules), std::end(kRules),
                                    [type](const AttachmentRule &each) { return isOneOf(type, each.attached); });
    return rule == std::end(kRules) ? nullptr : rule;
}

} // namespace hbx::embedded

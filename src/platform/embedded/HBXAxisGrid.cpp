#include "platform/embedded/HBXAxisGrid.h"

#include "platform/embedded/HBXGridShape.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/services/HBXElementTypes.h"

namespace hbx::embedded {

void HBXAxisGrid::axes(std::vector<HBXAxis> &out, int group) const
{
    if (group >= 0 && group < kGroupCount)
        out = m_axes[static_cast<std::size_t>(group)];
    else
        out.clear();
}

} // namespace hbx::embedded

IHBXAxisGrid *IHBXAxisGrid::createFromObj(IHBXElementDrawObj *object)
{
    using namespace hbx::embedded;
    const bool isGrid = object && object->type() == hbx::type::axisGrid;
    const auto *shape = isGrid ? dynamic_cast<HBXGridShape *>(object->shape()) : nullptr;
    return shape ? new HBXAxisGrid(shape->axes()) : nullptr;
}

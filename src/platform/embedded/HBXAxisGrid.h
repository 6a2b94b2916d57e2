#pragma once

#include "platform/embedded/HBXGridShape.h"
#include "platform/host/IHBXAxisGrid.h"

namespace hbx::embedded {

/** Copy of the axes of a grid object. */
class HBXAxisGrid final : public IHBXAxisGrid
{
public:
    explicit HBXAxisGrid(const HBXGridShape::Axes &axes) : m_axes(axes) {}

    void axes(std::vector<HBXAxis> &out, int group) const override;
    /** Nothing to do: the copy was made of the grid as it stands. */
    void prepare() override {}

private:
    HBXGridShape::Axes m_axes;
};

} // namespace hbx::embedded

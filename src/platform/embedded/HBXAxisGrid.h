#pragma once

#include "platform/host/IHBXAxisGrid.h"

#include <array>

namespace hbx::embedded {

/** Copy of the axes of a grid object. */
class HBXAxisGrid final : public IHBXAxisGrid
{
public:
    using Axes = std::array<std::vector<HBXAxis>, kGroupCount>;

    explicit HBXAxisGrid(const Axes &axes) : m_axes(axes) {}

    void axes(std::vector<HBXAxis> &out, int group) const override;
    /** Nothing to do: the copy was made of the grid as it stands. */
    void prepare() override {}

private:
    Axes m_axes;
};

} // namespace hbx::embedded

#pragma once

#include "platform/embedded/HBXOutlineShape.h"
#include "platform/host/IHBXSectionPointSolidShape.h"

namespace hbx::embedded {

struct OpeningSeat;

/** Solid at a point: column, foundation, pile, door, window, and as a section solid the slab hole. Its outline, about the
 *  insertion point, follows the section properties or the width of an opening. The angle and depth of an opening that
 *  stands in a wall are the wall's, worked out when asked for; its own come back when it is detached. */
template <typename Interface, IHBXShape::Kind kKind>
class HBXPointShapeOf final : public HBXOutlineShapeOf<Interface, kKind>
{
public:
    using HBXOutlineShapeOf<Interface, kKind>::HBXOutlineShapeOf;

    vks::CVec2<double> &insertPoint(vks::CVec2<double> &out) const override { return out = m_insertPoint; }
    void setInsertPoint(const vks::CVec2<double> *point) override;
    double angle() const override;
    bool mirror() const override { return m_mirror; }
    vks::CRefPtr<vks::CPolygon> &polygon(vks::CRefPtr<vks::CPolygon> &out, bool autoCalc) const override;
    void setAngle(double angle) override;
    void setMirror(bool mirror) override;

    ShapeRecord record() const override;
    void restore(const ShapeRecord &record) override;
    void followProperties(const PropertyEntry *written) override;
    void takePlaceOf(const HBXPlacedShape &other) override;

protected:
    vks::CRefPtr<vks::CPolygon> ownOutline() const override;

private:
    std::optional<OpeningSeat> seat() const;
    vks::CRefPtr<vks::CPolygon> outlineOfProperties() const;

    vks::CVec2<double> m_insertPoint; // in the frame
    double m_angle = 0.0;             // rad
    bool m_mirror = false;
};

using HBXPointShape = HBXPointShapeOf<IHBXCustomPointSolidShape, IHBXShape::kPoint>;
using HBXSectionShape = HBXPointShapeOf<IHBXSectionPointSolidShape, IHBXShape::kSection>;
extern template class HBXPointShapeOf<IHBXCustomPointSolidShape, IHBXShape::kPoint>;
extern template class HBXPointShapeOf<IHBXSectionPointSolidShape, IHBXShape::kSection>;

} // namespace hbx::embedded

#pragma once

#include "platform/embedded/HBXPlacedShape.h"
#include "platform/host/IHBXCustomLineSolidShape.h"

namespace hbx::embedded {

/** Wall ("Thickness" wide), beam or tie beam ("SectionWidth" wide), beside its axis by "AxisOffset". */
class HBXLineSolidShape final : public HBXShapeOf<IHBXCustomLineSolidShape, IHBXShape::kLine>
{
public:
    using HBXShapeOf::HBXShapeOf;

    vks::CRefPtr<vks::CCurve2d> &curve(vks::CRefPtr<vks::CCurve2d> &out, bool autoCalc) const override;
    void setLine(const vks::CCurve2d *axis) override;
    vks::CRefPtr<vks::CCurve2d> &localLine(vks::CRefPtr<vks::CCurve2d> &out, bool autoCalc) const override;
    vks::CRefPtr<vks::CCurve2d> &worldLine(vks::CRefPtr<vks::CCurve2d> &out, bool autoCalc) const override;
    double width(bool) const override { return m_width; }
    double distanceToLeft() const override { return m_distanceToLeft.value_or(m_width / 2); }

    double width() const { return m_width; }
    ShapeRecord record() const override;
    void restore(const ShapeRecord &record) override;
    void followProperties(const PropertyEntry *written) override;
    bool hasGeometry() const override { return m_axis != nullptr; }
    vks::CRefPtr<vks::CCurve2d> worldCurve() const override { return toWorld(m_axis.get()); }

protected:
    vks::CRefPtr<vks::CPolygon> ownOutline() const override;

private:
    vks::CRefPtr<vks::CCurve2d> m_axis;
    double m_width = 0.0;                   // mm
    std::optional<double> m_distanceToLeft; // mm; absent: half the width
};

} // namespace hbx::embedded

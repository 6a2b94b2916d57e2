#pragma once

#include "platform/embedded/HBXCurveShape.h"
#include "platform/host/IHBXCustomLineSolidShape.h"

namespace hbx::embedded {

/** Wall ("Thickness" wide), beam or tie beam ("SectionWidth" wide), beside its axis by "AxisOffset". */
class HBXLineSolidShape final : public HBXCurveShapeOf<IHBXCustomLineSolidShape, IHBXShape::kLine>
{
public:
    using HBXCurveShapeOf::HBXCurveShapeOf;
    using CurvePtr = vks::CRefPtr<vks::CCurve2d>;

    CurvePtr &curve(CurvePtr &out, bool) const override { return out = ownCurve(); }
    CurvePtr &localLine(CurvePtr &out, bool) const override { return out = ownCurve(); }
    CurvePtr &worldLine(CurvePtr &out, bool) const override { return out = worldCurve(); }
    double width(bool) const override { return m_width; }
    double distanceToLeft() const override { return m_distanceToLeft.value_or(m_width / 2); }

    double width() const { return m_width; }
    ShapeRecord record() const override;
    void restore(const ShapeRecord &record) override;
    void followProperties(const PropertyEntry *written) override;

protected:
    vks::CRefPtr<vks::CPolygon> ownOutline() const override;

private:
    double m_width = 0.0;                   // mm
    std::optional<double> m_distanceToLeft; // mm; absent: half the width
};

} // namespace hbx::embedded

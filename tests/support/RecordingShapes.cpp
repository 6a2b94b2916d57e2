#include "support/RecordingShapes.h"

#include "support/RecordingState.h"

#include "platform/host/IHBXCustomLineSolidShape.h"
#include "platform/host/IHBXFaceShape2D.h"
#include "platform/host/IHBXFaceSolidShape.h"
#include "platform/host/IHBXGridShape.h"
#include "platform/host/IHBXLineShape2D.h"
#include "platform/host/IHBXSectionPointSolidShape.h"

namespace {

using vks::CRefPtr;

/** What every kind of shape forwards. */
template <typename Kind> class RecordingShape : public Recording<Kind>
{
public:
    using Recording<Kind>::Recording;
    int kind() const override { return this->asked("kind").kind(); }
    vks::CCoord3<double> &coordinates(vks::CCoord3<double> &out, bool autoCalc) const override
    {
        return this->asked("coordinates").coordinates(out, autoCalc);
    }
    vks::CBox2<double> &box(vks::CBox2<double> &out, bool autoCalc) const override
    {
        return this->asked("box").box(out, autoCalc);
    }
    CRefPtr<vks::CPolygon> &worldPoly(CRefPtr<vks::CPolygon> &out, bool autoCalc) const override
    {
        return this->givesNull("worldPoly") ? (out = nullptr) : this->m_real.worldPoly(out, autoCalc);
    }
    void setCoordinates(const vks::CCoord3<double> &frame) override
    {
        this->called("setCoordinates");
        this->m_real.setCoordinates(frame);
    }
};

class RecordingLineSolid : public RecordingShape<IHBXCustomLineSolidShape>
{
public:
    using RecordingShape::RecordingShape;
    CRefPtr<vks::CCurve2d> &curve(CRefPtr<vks::CCurve2d> &out, bool autoCalc) const override
    {
        return givesNull("curve") ? (out = nullptr) : m_real.curve(out, autoCalc);
    }
    void setLine(const vks::CCurve2d *axis) override
    {
        called("setLine", textOf(axis));
        m_real.setLine(axis);
    }
    CRefPtr<vks::CCurve2d> &localLine(CRefPtr<vks::CCurve2d> &out, bool autoCalc) const override
    {
        return givesNull("localLine") ? (out = nullptr) : m_real.localLine(out, autoCalc);
    }
    CRefPtr<vks::CCurve2d> &worldLine(CRefPtr<vks::CCurve2d> &out, bool autoCalc) const override
    {
        return givesNull("worldLine") ? (out = nullptr) : m_real.worldLine(out, autoCalc);
    }
    double width(bool autoCalc) const override { return asked("width").width(autoCalc); }
    double distanceToLeft() const override { return asked("distanceToLeft").distanceToLeft(); }
};

template <typename Kind> class RecordingPointSolid : public RecordingShape<Kind>
{
public:
    using RecordingShape<Kind>::RecordingShape;
    vks::CVec2<double> &insertPoint(vks::CVec2<double> &out) const override
    {
        return this->asked("insertPoint").insertPoint(out);
    }
    void setInsertPoint(const vks::CVec2<double> *point) override
    {
        this->called("setInsertPoint", textOf(point));
        this->m_real.setInsertPoint(point);
    }
    double angle() const override { return this->asked("angle").angle(); }
    bool mirror() const override { return !this->givesFalse("mirror") && this->m_real.mirror(); }
    CRefPtr<vks::CPolygon> &polygon(CRefPtr<vks::CPolygon> &out, bool autoCalc) const override
    {
        return this->givesNull("polygon") ? (out = nullptr) : this->m_real.polygon(out, autoCalc);
    }
    void setAngle(double angle) override
    {
        this->called("setAngle", angle);
        this->m_real.setAngle(angle);
    }
    void setMirror(bool mirror) override
    {
        this->called("setMirror", mirror);
        this->m_real.setMirror(mirror);
    }
};

template <typename Kind> class RecordingOutlined : public RecordingShape<Kind>
{
public:
    using RecordingShape<Kind>::RecordingShape;
    CRefPtr<vks::CPolygon> &polygon(CRefPtr<vks::CPolygon> &out, bool autoCalc) const override
    {
        return this->givesNull("polygon") ? (out = nullptr) : this->m_real.polygon(out, autoCalc);
    }
};

template <typename Kind> class RecordingFace : public RecordingOutlined<Kind>
{
public:
    using RecordingOutlined<Kind>::RecordingOutlined;
    void setPolygon(const vks::CPolygon *outline) override
    {
        this->called("setPolygon", textOf(outline));
        this->m_real.setPolygon(outline);
    }
};

class RecordingFaceSolid : public RecordingFace<IHBXFaceSolidShape>
{
public:
    using RecordingFace::RecordingFace;
    double height() const override { return asked("height").height(); }
};

class RecordingPlanLine : public RecordingShape<IHBXLineShape2D>
{
public:
    using RecordingShape::RecordingShape;
    CRefPtr<vks::CCurve2d> &curve(CRefPtr<vks::CCurve2d> &out) const override
    {
        return givesNull("curve") ? (out = nullptr) : m_real.curve(out);
    }
    void setLine(const vks::CCurve2d *curve) override
    {
        called("setLine", textOf(curve));
        m_real.setLine(curve);
    }
};

/** The wrapper if the shape is of that kind, else null. */
template <typename Wrapper, typename Kind> IHBXShape *asKind(RecordingHost::State &state, IHBXShape *real)
{
    return state.wrapped<Wrapper>(dynamic_cast<Kind *>(real));
}

using Wrap = IHBXShape *(*)(RecordingHost::State &, IHBXShape *);
constexpr Wrap kKinds[] = {
    // A section solid is a point solid too, so it is asked for first.
    &asKind<RecordingPointSolid<IHBXSectionPointSolidShape>, IHBXSectionPointSolidShape>,
    &asKind<RecordingPointSolid<IHBXCustomPointSolidShape>, IHBXCustomPointSolidShape>,
    &asKind<RecordingLineSolid, IHBXCustomLineSolidShape>,
    &asKind<RecordingFaceSolid, IHBXFaceSolidShape>,
    &asKind<RecordingFace<IHBXFaceShape2D>, IHBXFaceShape2D>,
    &asKind<RecordingPlanLine, IHBXLineShape2D>,
    &asKind<RecordingOutlined<IHBXGridShape>, IHBXGridShape>,
};

} // namespace

IHBXShape *recordingShape(RecordingHost::State &state, IHBXShape *real)
{
    for (const Wrap wrap : kKinds)
        if (IHBXShape *shape = wrap(state, real))
            return shape;
    return nullptr;
}

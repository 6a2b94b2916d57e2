#pragma once

#include "platform/embedded/HBXProjectRecords.h"

#include <memory>

namespace hbx::embedded {

class HBXElementDrawObj;
struct PropertyEntry;

/** What the model needs of a shape of any kind, and what all kinds have in common: the frame, and the world geometry that
 *  is worked out once after each change. */
class HBXPlacedShape
{
public:
    explicit HBXPlacedShape(HBXElementDrawObj &owner);
    virtual ~HBXPlacedShape();
    HBXPlacedShape(const HBXPlacedShape &) = delete;
    HBXPlacedShape &operator=(const HBXPlacedShape &) = delete;

    /** A new shape of a kind, without geometry. */
    static std::unique_ptr<HBXPlacedShape> make(IHBXShape::Kind kind, HBXElementDrawObj &owner);

    /** The same shape as callers see it. */
    virtual IHBXShape *asShape() = 0;
    virtual IHBXShape::Kind shapeKind() const = 0;

    /** The shape as it was set: what follows from other objects when asked for is not in it. */
    virtual ShapeRecord record() const;
    /** Takes the shape from a record and tells nobody. */
    virtual void restore(const ShapeRecord &record);

    /** Takes the size from the object's properties; those without a value leave the shape as it is.
     *  @param written  the one that was written, null for a new object */
    virtual void followProperties(const PropertyEntry *written);
    /** Stands where another shape stands: a child follows its owner. */
    virtual void takePlaceOf(const HBXPlacedShape &other);

    /** False for a shape that nobody gave any geometry. */
    virtual bool hasGeometry() const;
    /** Axis or plan curve in the world; null for other kinds and without geometry. */
    virtual vks::CRefPtr<vks::CCurve2d> worldCurve() const;

    const vks::CRefPtr<vks::CPolygon> &worldPolygon() const;
    const vks::CBox2<double> &worldBox() const;
    void dropWorld();

    const vks::CCoord3<double> &frame() const { return m_frame; }
    /** An absent frame, and one that is not finite, counts as the world's. */
    void setFrame(const vks::CCoord3<double> &frame);

protected:
    const HBXElementDrawObj &owner() const { return m_owner; }
    /** The outline in plan, in the shape's own coordinates; null without geometry. */
    virtual vks::CRefPtr<vks::CPolygon> ownOutline() const = 0;
    /** To be called after each change, by a caller or by a property. */
    void changed();
    /** Likewise after one that moves what stands where the shape stands. */
    void moved();
    vks::CRefPtr<vks::CCurve2d> toWorld(const vks::CCurve2d *curve) const;
    vks::CRefPtr<vks::CPolygon> toWorld(const vks::CPolygon *polygon) const;

private:
    void workOutWorld() const;

    HBXElementDrawObj &m_owner;
    vks::CCoord3<double> m_frame;
    mutable bool m_isWorldKnown = false;
    mutable vks::CRefPtr<vks::CPolygon> m_worldPolygon;
    mutable vks::CBox2<double> m_worldBox;
};

/** A shape of one kind: what every kind answers in the same way. */
template <typename Interface, IHBXShape::Kind kKind> class HBXShapeOf : public Interface, public HBXPlacedShape
{
public:
    using HBXPlacedShape::HBXPlacedShape;

    IHBXShape *asShape() override { return this; }
    int kind() const override { return kKind; }
    IHBXShape::Kind shapeKind() const override { return kKind; }
    vks::CCoord3<double> &coordinates(vks::CCoord3<double> &out, bool) const override { return out = frame(); }
    vks::CBox2<double> &box(vks::CBox2<double> &out, bool) const override { return out = worldBox(); }
    vks::CRefPtr<vks::CPolygon> &worldPoly(vks::CRefPtr<vks::CPolygon> &out, bool) const override
    {
        return out = worldPolygon();
    }
    void setCoordinates(const vks::CCoord3<double> &frame) override { setFrame(frame); }

    ShapeRecord record() const override
    {
        ShapeRecord record = HBXPlacedShape::record();
        record.kind = kKind;
        return record;
    }
};

} // namespace hbx::embedded

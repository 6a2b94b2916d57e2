#pragma once

#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXShape.h"

/** A shape that has a world box and nothing else. */
class BoxShape : public IHBXShape
{
public:
    explicit BoxShape(const vks::CBox2<double> &worldBox) : m_box(worldBox) {}

    int kind() const override { return kFace; }
    vks::CCoord3<double> &coordinates(vks::CCoord3<double> &out, bool /*autoCalc*/) const override
    {
        return out = vks::CCoord3<double>::Absent();
    }
    vks::CBox2<double> &box(vks::CBox2<double> &out, bool /*autoCalc*/) const override { return out = m_box; }
    vks::CRefPtr<vks::CPolygon> &worldPoly(vks::CRefPtr<vks::CPolygon> &out, bool /*autoCalc*/) const override
    {
        return out = nullptr;
    }
    void setCoordinates(const vks::CCoord3<double> & /*frame*/) override {}

private:
    vks::CBox2<double> m_box;
};

/** A draw object that has an id and, if it likes, a shape, which it does not own. */
class PlainDrawObj : public IHBXElementDrawObj
{
public:
    explicit PlainDrawObj(qint64 id, IHBXShape *shape = nullptr) : m_id(id), m_shape(shape) {}

    int objectKind() const override { return kDrawObj; }
    qint64 id() const override { return m_id; }
    qint64 type() const override { return 0; }
    qint64 subType() const override { return 0; }
    IHBXRegion *region() const override { return nullptr; }
    IHBXFloor *floor() const override { return nullptr; }
    IHBXProperties *properties() override { return nullptr; }
    IHBXElementDrawObj *cloneDrawObj(int /*mode*/, int /*flag*/, int /*depth*/) override { return nullptr; }
    void remove() override {}
    IHBXElement *element() const override { return nullptr; }
    IHBXShape *shape() override { return m_shape; }
    IHBXDrawObjStatus *status() override { return nullptr; }
    int childCount() const override { return 0; }
    IHBXElementDrawObj *child(int /*index*/) const override { return nullptr; }
    void attachTo(IHBXElementDrawObj * /*parent*/) override {}
    IHBXSectionHolder *sectionHolder() override { return nullptr; }
    IHBXElementDrawObj *chainHead() override { return nullptr; }
    IHBXElementDrawObj *nextInChain() override { return nullptr; }
    void linkNext(IHBXElementDrawObj * /*next*/) override {}
    IHBXElementDrawObj *parent() const override { return nullptr; }

private:
    qint64 m_id;
    IHBXShape *m_shape;
};

#pragma once

#include "MemoryShapes.h"
#include "MemoryValues.h"

#include <platform/host/IHBXDrawObjStatus.h>
#include <platform/host/IHBXElement.h>
#include <platform/host/IHBXElementDrawObj.h>
#include <platform/host/IHBXFloor.h>
#include <platform/host/IHBXSection.h>
#include <platform/host/IHBXSectionHolder.h>

#include <memory>
#include <optional>

class MemoryModel;

class MemoryElement final : public IHBXElement
{
public:
    MemoryElement(MemoryModel &model, qint64 id, qint64 type, qint64 subType, IHBXFloor &floor, QString name);

    MemoryValues &values() { return m_values; }
    const QString &nameText() const { return m_name; }

    int objectKind() const override { return kElement; }
    qint64 id() const override { return m_id; }
    qint64 type() const override { return m_type; }
    qint64 subType() const override { return m_subType; }
    IHBXRegion *region() const override { return m_floor.region(); }
    IHBXFloor *floor() const override { return &m_floor; }
    IHBXProperties *properties() override { return &m_values; }
    int orderNumber() const override { return 0; }
    QString &name(QString &out) const override { return out = m_name; }
    void setName(const QString &name) override;
    void remove() override;
    int drawObjCount() const override;
    void drawObjs(QList<IHBXElementDrawObj *> &out, int mode) override;
    IHBXElement *parent() const override { return nullptr; }

private:
    MemoryModel &m_model;
    qint64 m_id;
    qint64 m_type;
    qint64 m_subType;
    IHBXFloor &m_floor;
    QString m_name;
    MemoryValues m_values;
};

class MemoryStatus final : public IHBXDrawObjStatus
{
public:
    void setLayer(int layer) override { m_layer = layer; }
    void setState(int state) override { m_state = state; }
    int layer() const override { return m_layer; }
    int state() const override { return m_state; }

private:
    int m_layer = 0;
    int m_state = 0;
};

class MemorySection final : public IHBXSection, public IHBXSectionHolder
{
public:
    MemorySection(qint64 number, int kind) : m_number(number), m_kind(kind) {}

    qint64 number() const override { return m_number; }
    int kind() const override { return m_kind; }
    IHBXSection *section() override { return this; }

private:
    qint64 m_number;
    int m_kind;
};

class MemoryObject final : public IHBXElementDrawObj
{
public:
    MemoryObject(MemoryModel &model, qint64 id, MemoryElement &element, IHBXFloor &floor);

    MemoryValues &values() { return m_values; }
    bool isEntered() const { return m_isEntered; }
    void enter() { m_isEntered = true; }
    void setSection(qint64 number, int kind) { m_section.emplace(number, kind); }

    int objectKind() const override { return kDrawObj; }
    qint64 id() const override { return m_id; }
    qint64 type() const override { return m_element.type(); }
    qint64 subType() const override { return m_element.subType(); }
    IHBXRegion *region() const override { return m_floor.region(); }
    IHBXFloor *floor() const override { return &m_floor; }
    IHBXProperties *properties() override { return &m_values; }
    IHBXElementDrawObj *cloneDrawObj(int mode, int flag, int depth) override;
    void remove() override;
    IHBXElement *element() const override { return &m_element; }
    IHBXShape *shape() override { return m_shape ? m_shape->asShape() : nullptr; }
    IHBXDrawObjStatus *status() override { return &m_status; }
    int childCount() const override { return 0; }
    IHBXElementDrawObj *child(int) const override { return nullptr; }
    void attachTo(IHBXElementDrawObj *parent) override;
    IHBXSectionHolder *sectionHolder() override { return m_section ? &*m_section : nullptr; }
    IHBXElementDrawObj *chainHead() override;
    IHBXElementDrawObj *nextInChain() override { return m_next; }
    void linkNext(IHBXElementDrawObj *next) override;
    IHBXElementDrawObj *parent() const override { return m_parent; }

private:
    bool isInChains() const;
    void cutBehind();

    MemoryModel &m_model;
    qint64 m_id;
    MemoryElement &m_element;
    IHBXFloor &m_floor;
    MemoryValues m_values;
    std::unique_ptr<MemoryShape> m_shape;
    MemoryStatus m_status;
    std::optional<MemorySection> m_section;
    MemoryObject *m_previous = nullptr;
    MemoryObject *m_next = nullptr;
    IHBXElementDrawObj *m_parent = nullptr;
    bool m_isEntered = false;
};

#pragma once

#include "platform/embedded/HBXIdList.h"
#include "platform/embedded/HBXProperties.h"
#include "platform/host/IHBXElement.h"

#include <vector>

namespace hbx::embedded {

class HBXElementDrawObj;
class HBXFloor;
class HBXModel;

/** The named definition of a building part. HBXElements makes and destroys it. */
class HBXElement final : public IHBXElement, public HBXPropertyHolder
{
public:
    /** Joins the units of its parent, where there is one. */
    HBXElement(HBXModel &model, HBXFloor &floor, HBXElement *parent, const ElementRecord &record);

    int objectKind() const override { return kElement; }
    qint64 id() const override { return m_id; }
    qint64 type() const override { return m_type; }
    qint64 subType() const override { return m_subType; }
    IHBXRegion *region() const override;
    IHBXFloor *floor() const override;
    HBXProperties *properties() override { return &m_properties; }
    int orderNumber() const override { return m_orderNumber; }
    QString &name(QString &out) const override { return out = m_name; }
    void setName(const QString &name) override;
    void remove() override;
    int drawObjCount() const override { return m_enteredCount; }
    void drawObjs(QList<IHBXElementDrawObj *> &out, int mode) override;
    IHBXElement *parent() const override { return m_parent; }

    const IHBXFloor *elevationFloor() const override;
    void propertyWritten(const PropertyEntry &entry) override;
    void propertyRefused(const QString &reason) override;

    // For the objects of this folder.
    HBXModel &model() const { return m_model; }
    HBXFloor &ownFloor() const { return m_floor; }
    const HBXProperties &propertySet() const { return m_properties; }
    const QString &ownName() const { return m_name; }
    /** For HBXElements, which keeps the index of names. */
    void restoreName(const QString &name) { m_name = name; }
    /** Draw objects, entered or not. */
    HBXIdList<HBXElementDrawObj> &allDrawObjs() { return m_drawObjs; }
    /** One more (1) or one fewer (-1) of them is entered. */
    void countEntered(int step) { m_enteredCount += step; }
    const std::vector<HBXElement *> &units() const { return m_units; }
    /** One above the greatest that a unit has. */
    int nextOrderNumber() const;
    /** Leaves the units of its parent, before it is destroyed. */
    void leaveParent();

    ElementRecord record() const;

private:
    HBXModel &m_model;
    HBXFloor &m_floor;
    HBXElement *m_parent;
    qint64 m_id;
    qint64 m_type;
    qint64 m_subType;
    int m_orderNumber;
    QString m_name;
    HBXProperties m_properties;
    HBXIdList<HBXElementDrawObj> m_drawObjs;
    int m_enteredCount = 0;
    std::vector<HBXElement *> m_units;
    int m_greatestOrderNumber = 0; ///< of the units
};

} // namespace hbx::embedded

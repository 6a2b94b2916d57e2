#pragma once

#include "platform/embedded/HBXDrawObjStatus.h"
#include "platform/embedded/HBXPlaceIndex.h"
#include "platform/embedded/HBXProperties.h"
#include "platform/embedded/HBXSectionHolder.h"
#include "platform/host/IHBXElementDrawObj.h"

#include <array>
#include <memory>
#include <optional>
#include <vector>

namespace hbx::embedded {

class HBXElement;
class HBXFloor;
class HBXModel;
class HBXPlacedShape;

/** One placed instance of an element, and its ties to others: the chain that it is a link of, what it is attached to and
 *  what is attached to it, its children. HBXDrawObjs makes and destroys it. */
class HBXElementDrawObj final : public IHBXElementDrawObj, public HBXPropertyHolder
{
public:
    /** @param type, subType  mostly the element's; they decide which properties the object has */
    HBXElementDrawObj(HBXElement &element, qint64 id, qint64 type, qint64 subType, IHBXShape::Kind kind);
    ~HBXElementDrawObj() override;

    int objectKind() const override { return kDrawObj; }
    qint64 id() const override { return m_id; }
    qint64 type() const override { return m_type; }
    qint64 subType() const override { return m_subType; }
    IHBXRegion *region() const override;
    IHBXFloor *floor() const override;
    HBXProperties *properties() override { return &m_properties; }
    /** The copy has neither chain, parent, spans nor key. A child has no copy: it comes and goes with its owner. */
    IHBXElementDrawObj *cloneDrawObj(int mode, int flag, int depth) override;
    void remove() override;
    IHBXElement *element() const override;
    IHBXShape *shape() override;
    IHBXDrawObjStatus *status() override { return &m_status; }
    int childCount() const override { return static_cast<int>(m_children.size()); }
    IHBXElementDrawObj *child(int index) const override;
    /** An object of another building, and one that stands on this one itself, changes nothing. */
    void attachTo(IHBXElementDrawObj *parent) override;
    IHBXSectionHolder *sectionHolder() override { return m_section ? &*m_section : nullptr; }
    IHBXElementDrawObj *chainHead() override;
    IHBXElementDrawObj *nextInChain() override { return m_next; }
    /** Spans that were stored for the chain behind go up to the new head when that has none. */
    void linkNext(IHBXElementDrawObj *next) override;
    IHBXElementDrawObj *parent() const override;

    const IHBXFloor *elevationFloor() const override;
    void propertyWritten(const PropertyEntry &entry) override;
    void propertyRefused(const QString &reason) override;

    // For the objects of this folder.
    HBXElement &ownElement() const { return m_element; }
    HBXFloor &ownFloor() const;
    HBXModel &model() const;
    const HBXProperties &propertySet() const { return m_properties; }
    HBXPlacedShape &placedShape() const { return *m_shape; }
    HBXPlaceFiling &placeFiling(HBXPlaceIndex::Kind kind) { return m_placeFilings[kind]; }
    const std::vector<HBXElementDrawObj *> &children() const { return m_children; }
    HBXElementDrawObj *attachedTo() const { return m_attachedTo; }
    HBXElementDrawObj *owner() const { return m_owner; }
    /** True from addDrawObj on. */
    bool isEntered() const { return m_isEntered; }
    void setEntered();
    /** Makes this a child of another object. */
    void setOwner(HBXElementDrawObj &owner);
    /** Ends all ties, before the object is destroyed. */
    void untie();

    const std::vector<QJsonObject> &spans() const { return m_spans; }
    void setSpans(std::vector<QJsonObject> spans);

    DrawObjRecord record() const;
    /** Takes everything but ids, types and ties from a record and tells nobody. */
    void restore(const DrawObjRecord &record);

    /** To be called when what record() gives has changed. */
    void recordChanged();
    /** Likewise when world geometry has; world geometry that follows from it is dropped, too. */
    void shapeChanged();
    /** When world geometry has changed and record() has not: it follows from other objects. */
    void dropWorld();
    /** The children stand where the object stands. */
    void shapeMoved();

private:
    bool canBeAttachedTo(const HBXElementDrawObj &other) const;
    void setAttachedTo(HBXElementDrawObj *parent);
    bool canBeFollowedBy(const HBXElementDrawObj &next) const;
    bool reaches(const HBXElementDrawObj &other) const;
    void cutBehind();
    void linkBehind(HBXElementDrawObj &next);

    HBXElement &m_element;
    qint64 m_id;
    qint64 m_type;
    qint64 m_subType;
    bool m_isEntered = false;
    HBXProperties m_properties;
    std::unique_ptr<HBXPlacedShape> m_shape;
    std::array<HBXPlaceFiling, 2> m_placeFilings; ///< by HBXPlaceIndex::Kind
    HBXDrawObjStatus m_status;
    std::optional<HBXSectionHolder> m_section;
    HBXElementDrawObj *m_next = nullptr;
    HBXElementDrawObj *m_previous = nullptr;
    HBXElementDrawObj *m_owner = nullptr;
    std::vector<HBXElementDrawObj *> m_children;
    HBXElementDrawObj *m_attachedTo = nullptr;
    std::vector<HBXElementDrawObj *> m_attached; ///< objects that are attached to this one
    std::vector<QJsonObject> m_spans;
    QString m_key;
};

} // namespace hbx::embedded

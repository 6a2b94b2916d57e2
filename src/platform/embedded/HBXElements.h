#pragma once

#include "platform/embedded/HBXElement.h"
#include "platform/embedded/HBXIdList.h"
#include "platform/embedded/HBXObjectsById.h"
#include "platform/host/IHBXElements.h"

namespace hbx::embedded {

/** All elements of a building, by id, by floor and type, and by name. */
class HBXElements final : public IHBXElements
{
public:
    explicit HBXElements(HBXModel &model) : m_model(model) {}

    /** A parent counts for units alone, and a unit cannot have units of its own. */
    IHBXElement *createElement(qint64 type, qint64 subType, IHBXElement *parent, IHBXFloor *floor, int mode,
                               const QString &name, int flag) override;
    IHBXElement *createElement(qint64 type, qint64 subType, IHBXFloor *floor, const QString &name) override;
    HBXElement *elementById(qint64 id) override { return m_byId.find(id); }
    IHBXElement *findElement(const QString &name, int floorId, qint64 type, bool on, int flag) override;
    void queryElements(QList<IHBXElement *> &out, const QSet<qint64> &floorIds, const QSet<qint64> &elementTypes,
                       bool on) override;
    void queryElementsOnFloor(QList<IHBXElement *> &out, qint64 floorId, qint64 type, bool on) override;
    QString &uniqueName(QString &out, qint64 floorId, qint64 type, const QString &name) override;
    int count() const override { return m_inOrder.count(); }
    IHBXElement *at(int position) override { return m_inOrder.at(position); }

    // For the objects of this folder.
    /** The element itself when it is one of this building, null for any other and for null. */
    HBXElement *own(IHBXElement *element) const { return m_byId.own(element); }
    void rename(HBXElement &element, const QString &name);
    /** Destroys an element with its draw objects and units. */
    void remove(HBXElement &element);
    const HBXIdList<HBXElement> &all() const { return m_inOrder; }
    void clear();
    /** Nothing happens to a record without its floor, and to a second one of an id. */
    void load(const ElementRecord &record);

private:
    HBXElement &add(HBXFloor &floor, HBXElement *parent, const ElementRecord &record);
    void indexName(HBXElement &element);
    void forgetName(HBXElement &element);
    bool isTaken(HBXFloor &floor, qint64 type, const QString &name) const;
    QString freeName(HBXFloor &floor, qint64 type, const QString &name) const;
    QString refusalOf(const HBXElement &element, const QString &name) const;

    HBXModel &m_model;
    HBXObjectsById<HBXElement> m_byId;
    HBXIdList<HBXElement> m_inOrder;
};

/** Types of elements that stand below another one: the units of foundations. */
bool isUnitType(qint64 type);

} // namespace hbx::embedded

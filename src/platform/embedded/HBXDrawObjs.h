#pragma once

#include "platform/embedded/HBXElementDrawObj.h"
#include "platform/embedded/HBXIdList.h"
#include "platform/embedded/HBXObjectsById.h"
#include "platform/host/IHBXDrawObjs.h"

namespace hbx::embedded {

/** All draw objects of a building, entered or not; the entered ones in id order, and by floor and type. */
class HBXDrawObjs final : public IHBXDrawObjs
{
public:
    explicit HBXDrawObjs(HBXModel &model) : m_model(model) {}

    /** A draw object stands on its element's floor: null for any other floor. It gets a child for each unit. */
    IHBXElementDrawObj *createDrawObj(IHBXFloor *floor, IHBXElement *element, bool on) override;
    void addDrawObj(IHBXElementDrawObj *drawObj) override;
    HBXElementDrawObj *drawObjById(qint64 id) override { return m_byId.find(id); }
    void queryDrawObjs(QList<IHBXElementDrawObj *> &out, const QSet<qint64> &floorIds, const QSet<qint64> &elementTypes,
                       bool on) override;
    void queryDrawObjsOfFloor(QList<IHBXElementDrawObj *> &out, int floorId, int elementType, int subType,
                              bool on) override;
    int count() const override { return m_inOrder.count(); }
    IHBXElementDrawObj *at(int position) override { return m_inOrder.at(position); }
    void queryDrawObjsInBox(QList<IHBXElementDrawObj *> &out, int floorId, int elementType,
                            const vks::CBox2<double> &box, double tolerance) override;

    // For the objects of this folder.
    /** The object itself when it is one of this building, null for any other and for null. */
    HBXElementDrawObj *own(IHBXElementDrawObj *drawObj) const { return m_byId.own(drawObj); }
    HBXElementDrawObj *cloneOf(HBXElementDrawObj &original);
    /** Destroys an object with its children. */
    void remove(HBXElementDrawObj &object);
    /** Gives each object of the unit's parent a child of the unit. */
    void addChildren(HBXElement &unit);
    const HBXIdList<HBXElementDrawObj> &all() const { return m_inOrder; }
    void clear();
    /** Replaces the content, once the elements stand: objects first, then their ties. Units without a child on an
     *  object of their parent get one, as on a new object. */
    void load(const std::vector<DrawObjRecord> &records);

private:
    HBXElementDrawObj &make(HBXElement &element, IHBXShape::Kind kind, qint64 id, qint64 type, qint64 subType);
    HBXElementDrawObj *makeNew(HBXElement &element, qint64 type, qint64 subType);
    void addChild(HBXElementDrawObj &owner, HBXElement &unit);
    void addMissingChildren(HBXElementDrawObj &owner);
    void enter(HBXElementDrawObj &object);
    void leave(HBXElementDrawObj &object);
    void tie(const DrawObjRecord &record);

    HBXModel &m_model;
    HBXObjectsById<HBXElementDrawObj> m_byId;
    HBXIdList<HBXElementDrawObj> m_inOrder; ///< entered ones
};

} // namespace hbx::embedded

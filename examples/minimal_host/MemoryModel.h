#pragma once

#include "MemoryFloors.h"
#include "MemoryObjects.h"

#include <platform/host/IHBXCheck.h>
#include <platform/host/IHBXCurState.h>
#include <platform/host/IHBXDrawObjs.h>
#include <platform/host/IHBXElements.h>
#include <platform/host/IHBXModel.h>
#include <platform/host/IHBXService.h>

#include <map>

/** Elements by id, which grows, so that the order of the map is the order of ids. */
class MemoryElements final : public IHBXElements
{
public:
    explicit MemoryElements(MemoryModel &model) : m_model(model) {}

    bool isTaken(qint64 floorId, qint64 type, const QString &name) const;
    void erase(qint64 id) { m_elements.erase(id); }

    IHBXElement *createElement(qint64 type, qint64 subType, IHBXElement *parent, IHBXFloor *floor, int mode,
                               const QString &name, int flag) override;
    IHBXElement *createElement(qint64 type, qint64 subType, IHBXFloor *floor, const QString &name) override;
    IHBXElement *elementById(qint64 id) override;
    IHBXElement *findElement(const QString &name, int floorId, qint64 type, bool on, int flag) override;
    void queryElements(QList<IHBXElement *> &out, const QSet<qint64> &floorIds, const QSet<qint64> &elementTypes,
                       bool on) override;
    void queryElementsOnFloor(QList<IHBXElement *> &out, qint64 floorId, qint64 type, bool on) override;
    QString &uniqueName(QString &out, qint64 floorId, qint64 type, const QString &name) override;
    int count() const override { return static_cast<int>(m_elements.size()); }
    IHBXElement *at(int position) override;

private:
    template <typename Test> void query(QList<IHBXElement *> &out, const Test &test) const;

    MemoryModel &m_model;
    std::map<qint64, std::unique_ptr<MemoryElement>> m_elements;
};

/** Draw objects by id, entered or not. */
class MemoryDrawObjs final : public IHBXDrawObjs
{
public:
    explicit MemoryDrawObjs(MemoryModel &model) : m_model(model) {}

    MemoryObject &make(MemoryElement &element, IHBXFloor &floor);
    void erase(qint64 id) { m_objects.erase(id); }
    void eraseOf(const MemoryElement &element);
    /** Lets go of an object that openings or holes are attached to. */
    void detachFrom(const MemoryObject &parent);
    void queryOf(QList<IHBXElementDrawObj *> &out, const IHBXElement &element) const;

    IHBXElementDrawObj *createDrawObj(IHBXFloor *floor, IHBXElement *element, bool on) override;
    void addDrawObj(IHBXElementDrawObj *drawObj) override;
    IHBXElementDrawObj *drawObjById(qint64 id) override;
    void queryDrawObjs(QList<IHBXElementDrawObj *> &out, const QSet<qint64> &floorIds, const QSet<qint64> &elementTypes,
                       bool on) override;
    void queryDrawObjsOfFloor(QList<IHBXElementDrawObj *> &out, int floorId, int elementType, int subType,
                              bool on) override;
    int count() const override;
    IHBXElementDrawObj *at(int position) override;

private:
    template <typename Test> void query(QList<IHBXElementDrawObj *> &out, const Test &test) const;

    MemoryModel &m_model;
    std::map<qint64, std::unique_ptr<MemoryObject>> m_objects;
};

/** Takes every object that has a shape with geometry; a host that people draw in looks for collisions, too. */
class MemoryCheck final : public IHBXCheck
{
public:
    bool checkDrawObj(IHBXElementDrawObj *drawObj, HBXCheckError &error,
                      std::map<qint64, QString> &collisions) override;
};

class MemoryModel final : public IHBXModel
{
public:
    MemoryElements &memoryElements() { return m_elements; }
    MemoryDrawObjs &memoryDrawObjs() { return m_drawObjs; }
    MemoryRegion &addRegion(const QString &name) { return m_regions.add(nextId(), name); }
    MemoryFloor &addFloor(MemoryRegion &region, const FloorPlan &plan);
    /** Of whatever is made; never used twice. */
    qint64 nextId() { return ++m_lastId; }

    vks::CDatabase *database() override { return nullptr; }
    IHBXRegions *regions() override { return &m_regions; }
    IHBXElements *elements() override { return &m_elements; }
    IHBXDrawObjs *drawObjects() override { return &m_drawObjs; }
    IHBXCheck *checker() override { return &m_check; }
    void beginBatch(const std::string &, bool) override {} // nothing is drawn here, and nothing undone
    void endBatch(const std::string &) override {}
    void refresh(int) override {}

private:
    qint64 m_lastId = 0;
    MemoryRegions m_regions;
    MemoryElements m_elements{*this};
    MemoryDrawObjs m_drawObjs{*this}; // gone before the elements that they read their values from
    MemoryCheck m_check;
};

/** The host: a model, and the floor that is selected. */
class MemoryHost final : public IHBXService, public IHBXCurState
{
public:
    MemoryModel &memoryModel() { return m_model; }
    void select(IHBXFloor &floor) { m_floor = &floor; }

    IHBXModel *model() override { return &m_model; }
    IHBXCurState *curState() override { return this; }
    qint64 unnamedSetting() override { return 0; }

    IHBXRegion *region() override { return m_floor ? m_floor->region() : nullptr; }
    IHBXFloor *floor() override { return m_floor; }
    int currentLayer(int) override { return 0; }
    int layer() override { return 0; }

private:
    MemoryModel m_model;
    IHBXFloor *m_floor = nullptr;
};

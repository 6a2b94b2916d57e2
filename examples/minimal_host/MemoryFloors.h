#pragma once

#include <platform/host/IHBXFloor.h>
#include <platform/host/IHBXFloors.h>
#include <platform/host/IHBXRegion.h>
#include <platform/host/IHBXRegions.h>

#include <memory>
#include <vector>

class IHBXModel;

/** What is told of a floor when it is made; elevations in m above the building's zero. */
struct FloorPlan
{
    QString name;
    QString code;
    double bottomElev = 0.0;
    double height = 3.0;
    int standardFloorCount = 1;
    bool isFoundation = false;
    QString remark;
};

class MemoryFloor final : public IHBXFloor
{
public:
    MemoryFloor(int id, FloorPlan plan, IHBXRegion &region, IHBXModel &model)
        : m_id(id), m_plan(std::move(plan)), m_region(region), m_model(model)
    {}

    int id() const override { return m_id; }
    QString &code(QString &out) const override { return out = m_plan.code; }
    QString name() const override { return m_plan.name; }
    double bottomElev() const override { return m_plan.bottomElev; }
    double height() const override { return m_plan.height; }
    double topElev() const override { return m_plan.bottomElev + m_plan.height; }
    int standardFloorCount() const override { return m_plan.standardFloorCount; }
    bool flag() const override { return m_plan.isFoundation; }
    void drawObjsOfTypes(QList<IHBXElementDrawObj *> &out, const QSet<qint64> &types, bool on) override;
    IHBXRegion *region() const override { return &m_region; }
    QString remark() const override { return m_plan.remark; }

private:
    int m_id;
    FloorPlan m_plan;
    IHBXRegion &m_region;
    IHBXModel &m_model;
};

/** A region and its floors. */
class MemoryRegion final : public IHBXRegion, public IHBXFloors
{
public:
    MemoryRegion(qint64 id, QString name) : m_id(id), m_name(std::move(name)) {}

    MemoryFloor &addFloor(int id, const FloorPlan &plan, IHBXModel &model);

    qint64 id() const override { return m_id; }
    QString name() const override { return m_name; }
    IHBXFloors *floors() override { return this; }

    IHBXFloor *find(const QString &floorName) override;
    IHBXFloor *findByCode(const QString &code) override;
    int count() const override { return static_cast<int>(m_floors.size()); }
    IHBXFloor *at(int position) override;

private:
    qint64 m_id;
    QString m_name;
    std::vector<std::unique_ptr<MemoryFloor>> m_floors;
};

class MemoryRegions final : public IHBXRegions
{
public:
    MemoryRegion &add(qint64 id, const QString &name);

    IHBXRegion *find(const QString &regionName) override;
    int count() const override { return static_cast<int>(m_regions.size()); }
    IHBXRegion *at(int position) override;

private:
    std::vector<std::unique_ptr<MemoryRegion>> m_regions;
};

#pragma once

#include "platform/embedded/HBXFloorContents.h"
#include "platform/embedded/HBXProjectRecords.h"
#include "platform/host/IHBXFloor.h"

namespace hbx::embedded {

class HBXRegion;

/** A floor, with the index of what stands on it. */
class HBXFloor final : public IHBXFloor
{
public:
    HBXFloor(HBXRegion &region, FloorRecord record);

    int id() const override { return m_record.id; }
    QString &code(QString &out) const override { return out = m_record.code; }
    QString name() const override { return m_record.name; }
    double bottomElev() const override { return m_record.bottomElev; }
    double height() const override { return m_record.height; }
    int standardFloorCount() const override { return m_record.standardFloorCount; }
    double topElev() const override { return m_record.bottomElev + m_record.height; }
    bool flag() const override { return m_record.foundation; }
    void drawObjsOfTypes(QList<IHBXElementDrawObj *> &out, const QSet<qint64> &types, bool on) override;
    IHBXRegion *region() const override;
    QString remark() const override { return m_record.remark; }
    IHBXElementDrawObj *findDrawObj(qint64 id, const QSet<qint64> &types) override;

    const FloorRecord &record() const { return m_record; }
    HBXFloorContents &contents() { return m_contents; }
    /** Of what drawObjsOfTypes gives, that which comes within a tolerance (mm) of a box. */
    QList<IHBXElementDrawObj *> drawObjsMeeting(const vks::CBox2<double> &box, double tolerance,
                                                const QSet<qint64> &types);

private:
    HBXRegion &m_region;
    FloorRecord m_record;
    HBXFloorContents m_contents;
};

} // namespace hbx::embedded

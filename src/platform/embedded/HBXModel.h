#pragma once

#include "platform/embedded/HBXChangeLog.h"
#include "platform/embedded/HBXCheck.h"
#include "platform/embedded/HBXDrawObjs.h"
#include "platform/embedded/HBXElements.h"
#include "platform/embedded/HBXJournal.h"
#include "platform/embedded/HBXRegions.h"
#include "platform/host/IHBXModel.h"

#include <string>
#include <vector>

namespace hbx::embedded {

/** The building: its collections, and what they share: ids, changes, journal. */
class HBXModel final : public IHBXModel
{
public:
    /** @param database  of the project; it and the journal must outlive the model */
    HBXModel(vks::CDatabase &database, HBXJournal &journal);
    ~HBXModel() override;

    vks::CDatabase *database() override { return &m_database; }
    HBXRegions *regions() override { return &m_regions; }
    HBXElements *elements() override { return &m_elements; }
    HBXDrawObjs *drawObjects() override { return &m_drawObjs; }
    HBXCheck *checker() override { return &m_check; }
    void beginBatch(const std::string &key, bool on) override;
    void endBatch(const std::string &key) override;
    /** Nothing is left to do: derived data follows each change at once, or is worked out when asked for. */
    void refresh(int mode) override;

    // For the objects of this folder.
    qint64 newId() { return m_nextId++; }
    qint64 nextId() const { return m_nextId; }
    HBXChangeLog &changes() { return m_changes; }
    HBXJournal &journal() { return m_journal; }
    const std::vector<std::string> &openBatches() const { return m_openBatches; }

    /** Replaces the content by that of a record, which gives its regions and floors away. */
    void load(ProjectRecord &record);
    /** Adds them to a record. */
    void save(ProjectRecord &record) const;

private:
    vks::CDatabase &m_database;
    HBXJournal &m_journal;
    HBXChangeLog m_changes;
    qint64 m_nextId = 1;
    std::vector<std::string> m_openBatches;
    HBXRegions m_regions;
    HBXElements m_elements;
    HBXDrawObjs m_drawObjs;
    HBXCheck m_check;
};

} // namespace hbx::embedded

#pragma once

#include "platform/embedded/HBXProjectRecords.h"
#include "platform/host/IHBXSection.h"
#include "platform/host/IHBXSectionHolder.h"

namespace hbx::embedded {

/** Section of a draw object; it comes with a record and does not change. */
class HBXSection final : public IHBXSection
{
public:
    explicit HBXSection(const SectionRecord &record) : m_record(record) {}

    qint64 number() const override { return m_record.number; }
    int kind() const override { return m_record.kind; }
    const SectionRecord &record() const { return m_record; }

private:
    SectionRecord m_record;
};

/** Holder of that section; an object without one has no holder. */
class HBXSectionHolder final : public IHBXSectionHolder
{
public:
    explicit HBXSectionHolder(const SectionRecord &record) : m_section(record) {}

    IHBXSection *section() override { return &m_section; }
    const SectionRecord &record() const { return m_section.record(); }

private:
    HBXSection m_section;
};

} // namespace hbx::embedded

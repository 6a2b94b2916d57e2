#pragma once

#include <QString>

#include <vector>

namespace hbx::embedded {

/** One thing that the host did or refused. */
struct JournalEntry
{
    enum Kind { kCheckRefused, kObjectRemoved, kElementRemoved, kWriteThrew, kBracketOpened, kBracketClosed };

    Kind kind = kCheckRefused;
    qint64 objectId = 0; ///< element or draw object; 0 for brackets
    QString name;        ///< element's name, or the bracket's key
    QString reason;      ///< why, for people; empty where there is nothing to say
};

/** What the host did since a project was opened, in order. Callers that get no message from the library read here. */
class HBXJournal
{
public:
    void add(JournalEntry entry) { m_entries.push_back(std::move(entry)); }
    const std::vector<JournalEntry> &entries() const { return m_entries; }
    void clear() { m_entries.clear(); }

private:
    std::vector<JournalEntry> m_entries;
};

} // namespace hbx::embedded

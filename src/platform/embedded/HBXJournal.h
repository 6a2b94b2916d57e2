#pragma once

#include <QString>

#include <vector>

namespace hbx::embedded {

/** One thing that the host did or refused. */
struct JournalEntry
{
    /** What happened. */
    enum Kind {
        kCheckRefused,   ///< checkDrawObj refused a draw object
        kObjectRemoved,  ///< with its links and attachments
        kElementRemoved, ///< behind its draw objects, which are told one by one
        kWriteThrew,     ///< HBXModelException at a property or a name
        kBracketOpened,  ///< beginBatch
        kBracketClosed   ///< endBatch of a bracket that was open
    };

    Kind kind = kCheckRefused; ///< tells what the rest means
    qint64 objectId = 0;       ///< element or draw object; 0 for brackets
    QString name;              ///< element's name, or the bracket's key
    QString reason;            ///< why, for people; empty where there is nothing to say
};

/** What the host did since a project was opened, in order. Callers that get no message from the library read here. */
class HBXJournal
{
public:
    /** Notes an entry behind all others. */
    void add(JournalEntry entry) { m_entries.push_back(std::move(entry)); }
    /** Oldest first; grows whenever the host works. */
    const std::vector<JournalEntry> &entries() const { return m_entries; }
    /** Forgets every entry; the building stays as it is. */
    void clear() { m_entries.clear(); }

private:
    std::vector<JournalEntry> m_entries;
};

} // namespace hbx::embedded

#pragma once

#include <QtGlobal>

#include <algorithm>
#include <unordered_map>
#include <vector>

namespace hbx::embedded {

/** A set of ids. Ids mostly come in a row, so 64 neighbours share an entry: a set with an entry for each would be laid out
 *  anew again and again as a building grows. */
class HBXIdSet
{
public:
    void insert(qint64 id) { m_words[wordOf(id)] |= bitOf(id); }
    /** @return whether the set had it */
    bool erase(qint64 id)
    {
        const auto word = m_words.find(wordOf(id));
        if (word == m_words.end() || (word->second & bitOf(id)) == 0)
            return false;
        word->second &= ~bitOf(id);
        if (word->second == 0)
            m_words.erase(word);
        return true;
    }
    bool contains(qint64 id) const
    {
        const auto word = m_words.find(wordOf(id));
        return word != m_words.end() && (word->second & bitOf(id)) != 0;
    }
    std::vector<qint64> ascending() const
    {
        std::vector<qint64> ids;
        for (const auto &[word, bits] : m_words)
            for (quint64 place = 0; place < kIdsOfAWord; ++place)
                if (bits >> place & 1)
                    ids.push_back(static_cast<qint64>(word * kIdsOfAWord + place));
        std::sort(ids.begin(), ids.end());
        return ids;
    }
    void clear() { m_words.clear(); }

private:
    static constexpr quint64 kIdsOfAWord = 64;

    // Of ids below 0, too, which a file may have.
    static quint64 wordOf(qint64 id) { return static_cast<quint64>(id) / kIdsOfAWord; }
    static quint64 bitOf(qint64 id) { return quint64(1) << static_cast<quint64>(id) % kIdsOfAWord; }

    std::unordered_map<quint64, quint64> m_words;
};

} // namespace hbx::embedded

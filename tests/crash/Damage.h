#pragma once

#include <QByteArray>

#include <algorithm>
#include <random>

namespace crashtest {

/** Damages files in the ways in which disks, copies and programs do. The same seed gives the same damages. */
class Damage
{
public:
    /** @param page  size of the pieces that are moved about, bytes */
    Damage(unsigned seed, int page) : m_random(seed), m_page(page) {}

    /** A copy that is damaged in one of the ways. */
    QByteArray done(QByteArray bytes)
    {
        static constexpr void (Damage::*kWays[])(QByteArray &) = {
            &Damage::flipBits, &Damage::flipBits,  &Damage::changeBytes, &Damage::changeBytes, &Damage::changeDigits,
            &Damage::truncate, &Damage::swapPages, &Damage::repeatPage,  &Damage::clearPage,   &Damage::changeHead,
        };
        (this->*kWays[number(static_cast<int>(std::size(kWays)))])(bytes);
        return bytes;
    }

private:
    static constexpr int kHead = 120; ///< bytes: where files say what they are

    /** From 0 to below the limit. */
    int number(int limit) { return std::uniform_int_distribution<int>(0, std::max(limit, 1) - 1)(m_random); }
    /** Where something stands, mostly: half of a database is empty. */
    int place(const QByteArray &bytes)
    {
        int at = number(bytes.size());
        for (int tries = 0; tries < 20 && bytes[at] == 0; ++tries)
            at = number(bytes.size());
        return at;
    }
    void flipBits(QByteArray &bytes)
    {
        for (int flips = number(4); flips >= 0; --flips) {
            const int at = place(bytes);
            bytes[at] = static_cast<char>(bytes[at] ^ (1 << number(8)));
        }
    }
    void changeBytes(QByteArray &bytes)
    {
        const int at = place(bytes);
        for (int i = at; i < std::min(at + 1 + number(16), bytes.size()); ++i)
            bytes[i] = static_cast<char>(number(256));
    }
    /** What no checksum and no grammar tells. */
    void changeDigits(QByteArray &bytes)
    {
        for (int changes = 1 + number(20), tries = 0; changes > 0 && tries < 10000; ++tries) {
            const int at = place(bytes);
            if (bytes[at] < '0' || bytes[at] > '9')
                continue;
            bytes[at] = "0123456789-.eE ,"[number(16)];
            --changes;
        }
    }
    void truncate(QByteArray &bytes) { bytes.truncate(number(bytes.size())); }
    int page(const QByteArray &bytes) { return number(bytes.size() / m_page) * m_page; }
    void swapPages(QByteArray &bytes)
    {
        const int first = page(bytes);
        const int second = page(bytes);
        const QByteArray kept = bytes.mid(first, m_page);
        bytes.replace(first, m_page, bytes.mid(second, m_page));
        bytes.replace(second, m_page, kept);
    }
    void repeatPage(QByteArray &bytes) { bytes.replace(page(bytes), m_page, bytes.mid(page(bytes), m_page)); }
    void clearPage(QByteArray &bytes) { bytes.replace(page(bytes), m_page, QByteArray(m_page, '\0')); }
    void changeHead(QByteArray &bytes)
    {
        for (int changes = number(4); changes >= 0; --changes)
            bytes[number(std::min(kHead, bytes.size()))] = static_cast<char>(number(256));
    }

    std::mt19937 m_random;
    int m_page;
};

} // namespace crashtest

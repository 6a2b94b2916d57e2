#pragma once

#include <QChar>
#include <QString>

#include <numeric>

namespace orvcad {

/** True for what takes about twice the room of a letter: ideographs, their punctuation, full-width forms. */
inline bool isWide(QChar character)
{
    constexpr ushort kFirst = 0x2E80; // all of them stand from here on
    return character.unicode() >= kFirst;
}

/** Columns of a terminal that a text takes: two for each wide character. */
inline int shownWidth(const QString &text)
{
    return std::accumulate(text.begin(), text.end(), 0,
                           [](int sum, QChar character) { return sum + (isWide(character) ? 2 : 1); });
}

} // namespace orvcad

#pragma once

#include <QChar>

namespace orvcad {

/** True for what takes about twice the room of a letter: ideographs, their punctuation, full-width forms. */
inline bool isWide(QChar character)
{
    constexpr ushort kFirst = 0x2E80; // all of them stand from here on
    return character.unicode() >= kFirst;
}

} // namespace orvcad

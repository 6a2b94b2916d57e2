#pragma once

#include "drawing/ORVCADSubDrawingInfo.h"

namespace drawing_test {

/** A part of a drawing with the empty extent. */
inline ORVCADSubDrawingInfo part(const char *path, const char *secondText = "", qint64 number = -1)
{
    ORVCADSubDrawingInfo info;
    info.drawingPath = QString::fromUtf8(path);
    info.secondText = QString::fromUtf8(secondText);
    info.number = number;
    return info;
}

} // namespace drawing_test

#pragma once

#include <QString>

/** A pair of names that a caller keeps of a split drawing: a value that the library hands on and neither fills nor
 *  reads. */
struct SplitMapInfo
{
    QString first;  ///< the caller's own
    QString second; ///< the caller's own
};

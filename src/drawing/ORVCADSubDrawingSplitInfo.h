#pragma once

#include "drawing/ORVCADSubDrawingInfo.h"

#include <QList>
#include <QString>

/** How a caller splits a drawing: a value that the library hands on and neither fills nor reads. */
struct ORVCADSubDrawingSplitInfo
{
    QString drawing;                         ///< the one that is split
    QList<ORVCADSubDrawingInfo> subDrawings; ///< its parts
};

#pragma once

#include "platform/geometry/CCurve2d.h"

#include <QString>
#include <QtGlobal>

#include <utility>
#include <vector>

/** The axes of one direction of a net, in order. */
struct AxisGridHalf
{
    qint32 direction = 0;                                              ///< 0 for U, 1 for V
    QString start;                                                     ///< label of the first axis
    QString end;                                                       ///< label of the last axis
    std::vector<std::pair<QString, vks::CRefPtr<vks::CCurve2d>>> data; ///< label and curve of each axis
};

/** What an axis net consists of. Nothing sets the direction of gridV by itself: who fills it does. */
struct AxisGrid_Sample
{
    AxisGridHalf gridU; ///< direction 0
    AxisGridHalf gridV; ///< direction 1, once it is set
};

#pragma once

#include "platform/geometry/CCurve2d.h"

#include <QUuid>

/** What a piece of a recognised beam is in both families of identify records. A copy shares the curve. */
struct BeamSegmentFields
{
    vks::CRefPtr<vks::CCurve2d> ipLine; ///< axis
    double dOffset = 0.0;               ///< from the axis, mm
    QUuid id;                           ///< of the segment, given by the recognition side
};

#pragma once

#include "column/ColumnBarInfo.h"
#include "platform/geometry/CPolygon.h"
#include "platform/geometry/CVec2.h"

#include <QString>

/** One column element that the host has already. Lengths in millimetres. A copy shares the outline. */
struct ColumnElementInfo
{
    QString name;
    QString parame; ///< text of the section's parameters
    int sectionWidth = 0;
    int sectionHeight = 0;
    int sectionTypeID = 0;
    int elementTypeId = 0;
    vks::CRefPtr<vks::CPolygon> poly; ///< outline of the section
    vks::CVec2<double> insertPt;
    ColumnBarInfo bar;
};

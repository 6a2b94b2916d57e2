#pragma once

#include "column/ColumnBarInfo.h"
#include "platform/geometry/CPolygon.h"
#include "platform/geometry/CVec2.h"

#include <QString>

/** One column element that the host has already. Lengths in millimetres. A copy shares the outline. */
struct ColumnElementInfo
{
    QString name;                     ///< as in the host
    QString parame;                   ///< text of the section's parameters
    int sectionWidth = 0;             ///< mm
    int sectionHeight = 0;            ///< mm
    int sectionTypeID = 0;            ///< kind of section, a number of the host
    int elementTypeId = 0;            ///< of the host
    vks::CRefPtr<vks::CPolygon> poly; ///< outline of the section
    vks::CVec2<double> insertPt;      ///< within the section, mm
    ColumnBarInfo bar;                ///< its bars
};

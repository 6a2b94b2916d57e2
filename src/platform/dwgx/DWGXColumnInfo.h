#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/geometry/CVec2.h"

#include <QString>

namespace dwgx {

/** What the recognition of a drawing knows of the geometry of one column. Lengths in millimetres, of the drawing. */
class ORVCADPLATFORM_EXPORT DWGXColumnInfo
{
public:
    DWGXColumnInfo() = default;
    virtual ~DWGXColumnInfo();
    DWGXColumnInfo(const DWGXColumnInfo &) = default;
    DWGXColumnInfo &operator=(const DWGXColumnInfo &) = default;

    double dSteelWeight = 0.0;   ///< as the recognition tells it
    int ePolyType = 0;           ///< kind of outline, the recognition's own number
    int eColumnType = 0;         ///< kind of column, the recognition's own number
    bool bEdoInfoValid = false;  ///< whether the place (position, angle, mirror) is known
    bool bMirror = false;        ///< whether the section is mirrored
    double dAngle = 0.0;         ///< rad
    QString strParam;            ///< text of a parametric section
    vks::CVec2<double> position; ///< where the column stands
    vks::CVec2<double> insertPt; ///< insertion point within the section
    double dWidth = 0.0;         ///< of a rectangle
    double dHeight = 0.0;        ///< of a rectangle
    double dRadius = 0.0;        ///< of a circle
    int m_type = 0;              ///< kind of section, the recognition's own number; the name is that of its key
};

} // namespace dwgx

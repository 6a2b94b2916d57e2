#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/services/TBarTypeObj.h"

/** The bars in the haunches of a beam span, left and right. */
class ORVCADPLATFORM_EXPORT TBeamHaunchingBarInfo
{
public:
    TBeamHaunchingBarInfo() = default;
    TBeamHaunchingBarInfo(BarTypeObjList left, BarTypeObjList right);
    /** From a text: one entry on the left before the first ";", one on the right behind it. A part that is empty, or not
     *  there, is no entry. */
    explicit TBeamHaunchingBarInfo(const QString &text);

    int LeftCount() const { return static_cast<int>(m_left.size()); }
    int RightCount() const { return static_cast<int>(m_right.size()); }
    /** Empty bars for a position out of range. */
    TBarTypeObj GetLeftBarInfos(int position) const;
    TBarTypeObj GetRightBarInfos(int position) const;

private:
    BarTypeObjList m_left;
    BarTypeObjList m_right;
};

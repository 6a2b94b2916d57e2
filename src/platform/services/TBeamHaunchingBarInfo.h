#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/services/TBarTypeObj.h"

/** The bars in the haunches of a beam span, left and right. */
class ORVCADPLATFORM_EXPORT TBeamHaunchingBarInfo
{
public:
    TBeamHaunchingBarInfo() = default;
    /** From the entries of the two sides, each in its order. */
    TBeamHaunchingBarInfo(BarTypeObjList left, BarTypeObjList right);
    /** From a text: one entry on the left before the first ";", one on the right behind it. A part that is empty, or not
     *  there, is no entry. */
    explicit TBeamHaunchingBarInfo(const QString &text);

    /** Entries on the left. */
    int LeftCount() const { return static_cast<int>(m_left.size()); }
    /** Entries on the right. */
    int RightCount() const { return static_cast<int>(m_right.size()); }
    /** Empty bars for a position out of range. */
    TBarTypeObj GetLeftBarInfos(int position) const;
    /** The same on the right. */
    TBarTypeObj GetRightBarInfos(int position) const;

private:
    BarTypeObjList m_left;
    BarTypeObjList m_right;
};

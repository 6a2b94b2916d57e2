#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/services/TBarTypeObj.h"

class IWLRCustomHoopBars;
class TBeamHaunchingBarInfo;

/** One structural span of a beam chain with its reinforcement. Lengths in mm, elevations in m above the building's zero.
 *  What pointers name belongs to the span; null where there is nothing. The modes are the host's own; callers give 1,
 *  and 0 for the haunch bars. */
class ORVCADPLATFORM_EXPORT IWLRBeamSpan
{
public:
    /** The bars of a span, in the order in which they are listed. */
    enum Bar {
        kTopThroughBar,
        kLeftSupportBar,
        kSpanBar, ///< top bar in the span
        kRightSupportBar,
        kBottomThroughBar,
        kBottomBar,
        kSideBar,
        kSideLabelBar,
        kTieBar,
        kHoopBar,
        kSecBeamAddBar, ///< additional bar at a secondary beam
        kHangBar
    };
    enum { kBarCount = kHangBar + 1, kMeasureCount = 4 };

    virtual ~IWLRBeamSpan() = default;

    /** Along the chain, from 1. */
    virtual int spanIndex() const = 0;
    /** Top of the beam at the ends of the span. */
    virtual double startElev() const = 0;
    /** The same at its end. */
    virtual double endElev() const = 0;
    /** Between the middles of the supports. */
    virtual double spanLength(int mode) const = 0;
    /** A1 to A4 by number: how far the left support reaches out of the span and into it, and the right one into it and out
     *  of it, from its middle. 0 for any other number. */
    virtual int measure(int number, int mode) const = 0;
    /** As the label tells it, such as 300*600. */
    virtual QString section() const = 0;
    /** Of the span from its axis. */
    virtual double axisOffset() const = 0;
    /** The bars of one kind. */
    virtual const TBarTypeObj *bar(Bar which) const = 0;
    /** Limbs of each hoop. */
    virtual int hoopBarLimbCount() const = 0;
    /** Of a secondary beam that rests here. */
    virtual QString secBeamWidth() const = 0;
    /** Anchorage of the hanging bars, such as 20*d. */
    virtual QString hangBarAnchor() const = 0;
    /** Of the zone with dense hoops. */
    virtual QString denseLength() const = 0;
    /** Of each haunch. */
    virtual QString haunchingLength() const = 0;
    /** Of each haunch. */
    virtual QString haunchingHeight() const = 0;
    /** The bars in the haunches. */
    virtual const TBeamHaunchingBarInfo *haunchingBarInfo(int mode) const = 0;
    /** Hoops beside the regular ones. */
    virtual const IWLRCustomHoopBars *customHoopBars() const = 0;
};

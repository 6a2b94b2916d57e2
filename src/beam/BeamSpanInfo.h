#pragma once

#include "ORVCADModelDataExport.h"

#include <QJsonObject>
#include <QString>

/** One structural span of a placed beam, with its reinforcement. Lengths in millimetres. The members are the JSON keys. */
class ORVCADMODELDATA_EXPORT BeamSpanInfo
{
public:
    /** Takes every field from the object. Never fails: a missing or mistyped key gives 0 or the empty text. */
    void fromJson(const QJsonObject &json);
    QJsonObject toJsonObj() const;

    int SpanIndex = 0;
    double StartElev = 0.0;
    double EndElev = 0.0;
    QString SpanA1_A4; ///< the four span measures, separated by commas
    double SpanLength = 0.0;
    QString Section;
    double AxisOffset = 0.0;
    QString TopThroughBar;
    QString LeftSupportBar;
    QString SpanBar; ///< top bar in the span
    QString RightSupportBar;
    QString BottomThroughBar;
    QString BottomBar;
    QString SideBar;
    QString SideLabelBar;
    QString TieBar;
    QString HoopBar;
    int HoopBarLimbCount = 0;
    QString SecBeamWidth;  ///< of a secondary beam carried here
    QString SecBeamAddBar; ///< additional bar at a secondary beam
    QString HangBar;
    QString HangBarAnchor;
    QString DenseLength; ///< of the dense hoop zone
    QString HaunchingLength;
    QString HaunchingHeight;
    QString HaunchingBarInfo; ///< bars on the left, ";" and bars on the right
    QString OtherHoopBars;

private:
    struct Fields; // the one list, in the source
};

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
    /** Every field under its key. */
    QJsonObject toJsonObj() const;

    int SpanIndex = 0;        ///< along the chain, from 1
    double StartElev = 0.0;   ///< top at the start, m
    double EndElev = 0.0;     ///< top at the end, m
    QString SpanA1_A4;        ///< the four span measures, separated by commas
    double SpanLength = 0.0;  ///< mm
    QString Section;          ///< as the label tells it
    double AxisOffset = 0.0;  ///< mm, from the axis
    QString TopThroughBar;    ///< bar text, through at the top
    QString LeftSupportBar;   ///< top bar over the left support
    QString SpanBar;          ///< top bar in the span
    QString RightSupportBar;  ///< top bar over the right support
    QString BottomThroughBar; ///< bar text, through at the bottom
    QString BottomBar;        ///< bottom bar of this span alone
    QString SideBar;          ///< bar text, at the sides
    QString SideLabelBar;     ///< side bars of the label in place
    QString TieBar;           ///< ties between the side bars
    QString HoopBar;          ///< bar text of the hoops
    int HoopBarLimbCount = 0; ///< limbs of each hoop
    QString SecBeamWidth;     ///< of a secondary beam carried here
    QString SecBeamAddBar;    ///< additional bar at a secondary beam
    QString HangBar;          ///< bar text of hanging bars
    QString HangBarAnchor;    ///< their anchorage, such as 20*d
    QString DenseLength;      ///< of the dense hoop zone
    QString HaunchingLength;  ///< of each haunch, mm as text
    QString HaunchingHeight;  ///< of each haunch, mm as text
    QString HaunchingBarInfo; ///< bars on the left, ";" and bars on the right
    QString OtherHoopBars;    ///< further hoops

private:
    struct Fields; // the one list, in the source
};

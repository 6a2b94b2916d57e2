#pragma once

#include "ORVCADModelDataExport.h"

#include <QJsonObject>
#include <QString>

/** One drawn piece of a placed beam: one draw object of its chain. Lengths in millimetres. The members are the JSON keys. */
class ORVCADMODELDATA_EXPORT BeamSegmentInfo
{
public:
    /** Takes every field from the object. Never fails: a missing or mistyped key gives 0 or the empty text. */
    void fromJson(const QJsonObject &json);
    /** Every field under its key. */
    QJsonObject toJsonObj() const;

    int Index = 0;           ///< place in the chain, from 0
    QString WordLine;        ///< axis in the world, docs/formats/geometry-text.md; spelled so, here and in JSON
    double LineWidth = 0.0;  ///< written back as the nearest whole number
    double AxisOffset = 0.0; ///< of this piece from its axis
    QString StartPtTopElev;  ///< as the host keeps it
    QString EndPtTopElev;    ///< as the host keeps it

private:
    struct Fields; // the one list, in the source
};

#pragma once

#include "beam/BaseBeamEntInfo.h"

/** Beam (15) or foundation beam (47) as an element. */
class ORVCADMODELDATA_EXPORT BeamEntInfo : public BaseBeamEntInfo
{
public:
    ~BeamEntInfo() override;
    void fromJson(const QJsonObject &json) override;
    /** Those of all beams and its own, under their keys. */
    QJsonObject toJsonObj() const override;

    QString SpanCount;        ///< may carry cantilevers behind the number: 3A
    QString TopThroughBar;    ///< bar text, through at the top
    QString BottomThroughBar; ///< bar text, through at the bottom
    QString SideBar;          ///< bar text, at the sides
    int Type = 0;             ///< kind of beam, a number of the host

private:
    struct Fields; // the one list, in the source
};

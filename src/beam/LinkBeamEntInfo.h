#pragma once

#include "beam/BaseBeamEntInfo.h"

/** Link beam (17) as an element: a beam between two walls. */
class ORVCADMODELDATA_EXPORT LinkBeamEntInfo : public BaseBeamEntInfo
{
public:
    ~LinkBeamEntInfo() override;
    void fromJson(const QJsonObject &json) override;
    /** Those of all beams and its own, under their keys. */
    QJsonObject toJsonObj() const override;

    QString TopHoribar;    ///< spelled with a small b, here and in JSON
    QString BottomHoriBar; ///< bar text, along the bottom
    QString SideBarAL;     ///< bar text, along the sides

private:
    struct Fields; // the one list, in the source
};

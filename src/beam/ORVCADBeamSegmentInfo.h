#pragma once

#include "ORVCADModelDataExport.h"
#include "beam/BeamSegmentFields.h"

#include <QJsonObject>

/** A piece of a recognised beam. Its curve has the short form of docs/formats/geometry-text.md. */
class ORVCADMODELDATA_EXPORT ORVCADBeamSegmentInfo : public BeamSegmentFields
{
public:
    /** Every field under its key. */
    QJsonObject toJson() const;
    /** Fills the target; null does nothing. A missing or bad value gives 0, the null curve or the null id. */
    static void fromJson(ORVCADBeamSegmentInfo *target, const QJsonObject &json);

private:
    struct Fields; // the one list, in the source
};

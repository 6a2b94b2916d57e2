#pragma once

#include "beam/BeamModelDataInfo.h"

#include <memory>
#include <vector>

/** All beams that are collected for the identify service. A copy shares the records. There is no reader for its JSON. */
class ORVCADMODELDATA_EXPORT ORVCADBeamCollectDataModel
{
public:
    /** Beams with shared records; null ones are left out of JSON. */
    using Beams = std::vector<std::shared_ptr<BeamModelDataInfo>>;

    /** Replaces the beams by those of the list. */
    void setBeamIdentifyInfo(const Beams &beams);
    /** The same records, in their order. */
    Beams getIdentifyInfo() const;

    /** Three arrays, empty ones included: "Beam" (element type 15), "LinkBeam" (17), "FDBeam" (47). A beam of any other
     *  type, and one without an element, is left out. */
    QJsonObject toJsonObj() const;

private:
    Beams m_beams;
};

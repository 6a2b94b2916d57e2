#pragma once

#include "beam/BeamModelDataInfo.h"

#include <memory>
#include <vector>

/** All beams that are collected for the identify service. A copy shares the records. There is no reader for its JSON. */
class ORVCADMODELDATA_EXPORT ORVCADBeamCollectDataModel
{
public:
    using Beams = std::vector<std::shared_ptr<BeamModelDataInfo>>;

    /** Replaces the beams by those of the list. */
    void setBeamIdentifyInfo(const Beams &beams);
    Beams getIdentifyInfo() const;

    /** Three arrays, empty ones included: "Beam" (element type 15), "LinkBeam" (17), "FDBeam" (47). A beam of any other
     *  type, and one without an element, is left out. */
    QJsonObject toJsonObj() const;

private:
    Beams m_beams;
};

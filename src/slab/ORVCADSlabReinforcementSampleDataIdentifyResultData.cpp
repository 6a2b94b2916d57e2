#include "slab/ORVCADSlabReinforcementSampleDataIdentifyResultData.h"

#include <utility>

ORVCADSlabReinforcementSampleDataIdentifyResultData::ORVCADSlabReinforcementSampleDataIdentifyResultData(
    IHBXService *service)
    : ORVCADSampleDataContextInfo(service)
{}

std::vector<qint64> ORVCADSlabReinforcementSampleDataIdentifyResultData::getAllBarRecognizedIDs() const
{
    return m_barRecognizedIDs;
}

void ORVCADSlabReinforcementSampleDataIdentifyResultData::setBarRecognizedIDs(std::vector<qint64> ids)
{
    m_barRecognizedIDs = std::move(ids);
}

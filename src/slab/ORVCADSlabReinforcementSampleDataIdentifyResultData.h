#pragma once

#include "ORVCADModelDataExport.h"
#include "platform/services/ORVCADSampleDataContextInfo.h"

#include <vector>

/** What the recognition of slab bars found for a sample: the ids of the bars, in the order that the caller gives. */
class ORVCADMODELDATA_EXPORT ORVCADSlabReinforcementSampleDataIdentifyResultData : public ORVCADSampleDataContextInfo
{
public:
    /** Floor and region as the base reads them; no ids. Null is allowed. */
    explicit ORVCADSlabReinforcementSampleDataIdentifyResultData(IHBXService *service);

    /** None until they are set. */
    std::vector<qint64> getAllBarRecognizedIDs() const;
    /** Replaces all ids; a list that is moved in is empty afterwards. */
    void setBarRecognizedIDs(std::vector<qint64> ids);

private:
    std::vector<qint64> m_barRecognizedIDs;
};

#pragma once

#include "ORVCADModelDataExport.h"
#include "platform/services/ORVCADSampleDataContextInfo.h"

#include <vector>

/** What slab recognition found for a sample: the ids of slabs and of slab holes, in the order that the caller gives. */
class ORVCADMODELDATA_EXPORT ORVCADBoardSampleDataResultInfo : public ORVCADSampleDataContextInfo
{
public:
    /** Floor and region as the base reads them; no ids. Null is allowed. */
    explicit ORVCADBoardSampleDataResultInfo(IHBXService *service);

    std::vector<int> getSlabRecognizedIDs() const;
    void setSlabRecognizedIDs(const std::vector<int> &ids);
    std::vector<int> getBoardHoleRecognizedIDs() const;
    void setBoardHoleRecognizedIDs(const std::vector<int> &ids);

private:
    std::vector<int> m_slabRecognizedIDs;
    std::vector<int> m_boardHoleRecognizedIDs;
};

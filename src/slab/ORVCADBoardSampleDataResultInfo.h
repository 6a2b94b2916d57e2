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

    /** Of slabs; none until they are set. */
    std::vector<int> getSlabRecognizedIDs() const;
    /** In place of all that were set; nothing looks whether they are of slabs. */
    void setSlabRecognizedIDs(const std::vector<int> &ids);
    /** Of holes; none until they are set. */
    std::vector<int> getBoardHoleRecognizedIDs() const;
    /** In place of all that were set; nothing looks whether they are of holes. */
    void setBoardHoleRecognizedIDs(const std::vector<int> &ids);

private:
    std::vector<int> m_slabRecognizedIDs;
    std::vector<int> m_boardHoleRecognizedIDs;
};

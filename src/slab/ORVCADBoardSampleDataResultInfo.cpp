#include "slab/ORVCADBoardSampleDataResultInfo.h"

ORVCADBoardSampleDataResultInfo::ORVCADBoardSampleDataResultInfo(IHBXService *service)
    : ORVCADSampleDataContextInfo(service)
{}

std::vector<int> ORVCADBoardSampleDataResultInfo::getSlabRecognizedIDs() const { return m_slabRecognizedIDs; }

void ORVCADBoardSampleDataResultInfo::setSlabRecognizedIDs(const std::vector<int> &ids) { m_slabRecognizedIDs = ids; }

std::vector<int> ORVCADBoardSampleDataResultInfo::getBoardHoleRecognizedIDs() const { return m_boardHoleRecognizedIDs; }

void ORVCADBoardSampleDataResultInfo::setBoardHoleRecognizedIDs(const std::vector<int> &ids)
{
    m_boardHoleRecognizedIDs = ids;
}

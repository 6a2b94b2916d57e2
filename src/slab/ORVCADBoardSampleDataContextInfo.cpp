#include "slab/ORVCADBoardSampleDataContextInfo.h"

ORVCADBoardSampleDataContextInfo::ORVCADBoardSampleDataContextInfo(IHBXService *service)
    : ORVCADSampleDataContextInfo(service)
{}

QSet<etCustomSupportEdoType> ORVCADBoardSampleDataContextInfo::getSupportTypes() const { return m_supportTypes; }

void ORVCADBoardSampleDataContextInfo::setSupportTypes(const QSet<etCustomSupportEdoType> &supportTypes)
{
    m_supportTypes = supportTypes;
}

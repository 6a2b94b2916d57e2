#pragma once

#include "ORVCADModelDataExport.h"
#include "platform/services/ORVCADSampleDataContextInfo.h"
#include "platform/services/etCustomSupportEdoType.h"

#include <QSet>

/** What slab recognition was given for a sample: floor and region, and the kinds of supports taken into account. */
class ORVCADMODELDATA_EXPORT ORVCADBoardSampleDataContextInfo : public ORVCADSampleDataContextInfo
{
public:
    /** Floor and region as the base reads them; no kinds of supports. Null is allowed. */
    explicit ORVCADBoardSampleDataContextInfo(IHBXService *service);

    /** None until they are set. */
    QSet<etCustomSupportEdoType> getSupportTypes() const;
    /** In place of all that were set. */
    void setSupportTypes(const QSet<etCustomSupportEdoType> &supportTypes);

private:
    QSet<etCustomSupportEdoType> m_supportTypes;
};

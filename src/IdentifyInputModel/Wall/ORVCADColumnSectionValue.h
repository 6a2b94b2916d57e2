#pragma once

#include "ORVCADModelDataExport.h"
#include "platform/services/HBXSectionIDBuilder.h"

/** The text of a column's section type, as the host shows it. */
class ORVCADMODELDATA_EXPORT ORVCADColumnSectionValue : public HBXSectionIDBuilder
{
public:
    /** Empty for null and for a property without a value. */
    QString sectionText(const std::shared_ptr<IHBXProperty> &property) const;
};

#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/services/CDBTable.h"

namespace vks {

/** The data tables of a model. */
class ORVCADPLATFORM_EXPORT CDatabase
{
public:
    virtual ~CDatabase();

    /** The table of that exact name, null when there is none. It belongs to the database. */
    virtual CDBTable *GetTable(const QString &name) = 0;
};

} // namespace vks

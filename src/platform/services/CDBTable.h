#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/services/CFileAddressList.h"

#include <QString>

namespace vks {

/** A table of a model database: rows with named fields. It belongs to its database. */
class ORVCADPLATFORM_EXPORT CDBTable
{
public:
    virtual ~CDBTable();

    /** Finds the rows that a condition selects, in table order.
     *
     *  A condition has the form `SameString(column,"value")` and selects the rows whose field is exactly that value. It
     *  ends at its last `")`, so a value may hold quotes and brackets; nothing is escaped. A text of another form and an
     *  unknown column select nothing.
     *  @param append  false: replaces the content of the list; true: adds to it
     *  @return whether a row was found */
    virtual bool Query(const QString &condition, CFileAddressList &addresses, bool append) const = 0;

    /** The text of a field. False, and out as it was, for an unknown column and for an address without a row. */
    virtual bool FieldText(CFileAddressList::Address address, const QString &column, QString &out) const = 0;
};

} // namespace vks

#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/services/CDBTable.h"

/** One row of a table, read field by field. Holds no copy: the table must outlive it, and a later change shows. */
class ORVCADPLATFORM_EXPORT HBXDBRecordBase
{
public:
    /** A null table is allowed: every field is then missing. */
    HBXDBRecordBase(const vks::CDBTable *table, vks::CFileAddressList::Address address);
    virtual ~HBXDBRecordBase();

    /** The text of a field; the default when the row or the field does not exist. */
    QString getString(const QString &fieldName, const QString &defaultValue) const;

private:
    const vks::CDBTable *m_table;
    vks::CFileAddressList::Address m_address;
};

/** The record as callers open it. */
class ORVCADPLATFORM_EXPORT HBXDBRecord : public HBXDBRecordBase
{
public:
    using HBXDBRecordBase::HBXDBRecordBase;
};

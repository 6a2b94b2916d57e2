#include "platform/services/HBXDBRecord.h"

HBXDBRecordBase::HBXDBRecordBase(const vks::CDBTable *table, vks::CFileAddressList::Address address)
    : m_table(table), m_address(address)
{}

HBXDBRecordBase::~HBXDBRecordBase() = default;

QString HBXDBRecordBase::getString(const QString &fieldName, const QString &defaultValue) const
{
    QString text;
    return m_table && m_table->FieldText(m_address, fieldName, text) ? text : defaultValue;
}

#include "platform/embedded/HBXProperty.h"

#include "platform/embedded/HBXPropertyValue.h"

namespace hbx::embedded {

HBXProperty::HBXProperty(HBXProperties &set, const PropertyEntry &entry) : m_set(set), m_entry(entry) {}

bool HBXProperty::hasValue() const { return !isNoValue(m_set.valueOf(m_entry)); }

int HBXProperty::intValue() const { return m_set.intValue(m_entry); }

void HBXProperty::revert()
{
    if (m_isWritten)
        m_set.restore(m_entry, m_before);
    m_isWritten = false;
}

void HBXProperty::setInt(int value, bool) { write(value); }

void HBXProperty::setString(const QString &value, bool) { write(value); }

void HBXProperty::write(const PropertyValue &value)
{
    const PropertyValue *own = m_set.ownValue(m_entry);
    const std::optional<PropertyValue> before = own ? std::optional(*own) : std::nullopt;
    m_isWritten = false; // a write that throws leaves nothing to take back
    m_set.write(m_entry, value);
    m_before = before;
    m_isWritten = true;
}

} // namespace hbx::embedded

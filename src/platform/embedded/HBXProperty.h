#pragma once

#include "platform/embedded/HBXProperties.h"
#include "platform/host/IHBXProperty.h"

namespace hbx::embedded {

/** One property of a set, which it must not outlive. */
class HBXProperty final : public IHBXProperty
{
public:
    HBXProperty(HBXProperties &set, const PropertyEntry &entry);

    bool hasValue() const override;
    int intValue() const override;
    void revert() override;
    void setInt(int value, bool flag) override;
    void setString(const QString &value, bool flag) override;

private:
    void write(const PropertyValue &value);

    HBXProperties &m_set;
    const PropertyEntry &m_entry;
    bool m_isWritten = false;
    std::optional<PropertyValue> m_before; ///< own value before the last write
};

} // namespace hbx::embedded

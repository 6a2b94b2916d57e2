#include "encoding/FlatRecord.h"

#include <algorithm>

namespace encoding {

namespace {

/** As ==, which is a call for each pair of texts of one length. */
bool isSame(QStringView text, QLatin1String key)
{
    const auto isSameCharacter = [](QChar a, char b) { return a == QLatin1Char(b); };
    return text.size() == key.size() && std::equal(text.begin(), text.end(), key.begin(), isSameCharacter);
}

} // namespace

void cutLastSeparator(QString &record)
{
    if (record.endsWith(kItemEnd))
        record.chop(1);
}

void FlatRecordText::add(QStringView key, QStringView value)
{
    static_assert(!QTypeInfo<char16_t>::isComplex);
    m_text.append(key.utf16(), static_cast<int>(key.size()));
    if (!value.isEmpty()) {
        m_text.append(kValueStart);
        m_text.append(value.utf16(), static_cast<int>(value.size()));
    }
    m_text.append(kItemEnd);
}

QString FlatRecordText::text() const
{
    const bool hasEnd = !m_text.isEmpty() && m_text.last() == kItemEnd;
    return QStringView(m_text.constData(), m_text.size() - (hasEnd ? 1 : 0)).toString();
}

FlatItems::FlatItems(QStringView record)
{
    forEachItem(record, [this](QStringView key, QStringView value) { m_items.append({key, value}); });
}

QStringView FlatItems::value(QLatin1String key) const
{
    for (int i = m_items.size() - 1; i >= 0; --i)
        if (isSame(m_items[i].key, key))
            return m_items[i].value;
    return {};
}

} // namespace encoding

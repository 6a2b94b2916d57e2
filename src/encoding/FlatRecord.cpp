#include "encoding/FlatRecord.h"

#include <algorithm>

namespace encoding {

FlatItem splitItem(QStringView item)
{
    const auto colon = item.indexOf(kValueStart);
    if (colon < 0)
        return {item, {}};
    const QStringView rest = item.mid(colon + 1);
    const auto second = rest.indexOf(kValueStart);
    return {item.left(colon), second < 0 ? rest : rest.left(second)}; // meant: a third piece is lost
}

void appendItem(QString &record, QStringView key, QStringView value)
{
    record.append(key.data(), static_cast<int>(key.size()));
    if (!value.isEmpty()) {
        record.append(kValueStart);
        record.append(value.data(), static_cast<int>(value.size()));
    }
    record.append(kItemEnd);
}

void cutLastSeparator(QString &record)
{
    if (record.endsWith(kItemEnd))
        record.chop(1);
}

FlatItems::FlatItems(QStringView record)
{
    m_items.reserve(static_cast<std::size_t>(std::count(record.begin(), record.end(), kItemEnd)) + 1);
    forEachItem(record, [this](QStringView key, QStringView value) { m_items.push_back({key, value}); });
}

QStringView FlatItems::value(QLatin1String key) const
{
    const auto item =
        std::find_if(m_items.rbegin(), m_items.rend(), [key](const FlatItem &one) { return one.key == key; });
    return item == m_items.rend() ? QStringView() : item->value;
}

} // namespace encoding

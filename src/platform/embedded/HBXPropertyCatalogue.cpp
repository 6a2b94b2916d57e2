#include "platform/embedded/HBXPropertyCatalogue.h"

#include "platform/embedded/HBXPropertyRows.h"

#include <algorithm>
#include <iterator>

namespace hbx::embedded {
namespace {

PropertyEntry entryOf(const rows::PropertyRow &row)
{
    PropertyEntry entry;
    entry.name = QString::fromStdWString(row.name);
    if (row.alias)
        entry.alias = QString::fromStdWString(*row.alias);
    entry.kind = row.kind;
    entry.owner = row.owner;
    entry.role = row.role;
    if (row.defaultText)
        entry.defaultText = QString::fromUtf8(row.defaultText);
    return entry;
}

std::vector<PropertyEntry> entriesOf(const rows::TypeFamilies &type)
{
    std::vector<PropertyEntry> entries;
    for (const rows::PropertyFamily &family : type.families)
        std::transform(family.rows, family.rows + family.count, std::back_inserter(entries), entryOf);
    return entries;
}

char32_t codeUnit(QChar c) { return c.unicode(); }
char32_t codeUnit(wchar_t c) { return static_cast<char32_t>(c); }

/** Order of code units, for texts of different widths: names are compared without making a copy of either. */
template <typename View> bool comesBefore(const QString &name, View other)
{
    return std::lexicographical_compare(name.begin(), name.end(), other.begin(), other.end(),
                                        [](auto a, auto b) { return codeUnit(a) < codeUnit(b); });
}

template <typename View> bool isSame(const QString &name, View other)
{
    return std::equal(name.begin(), name.end(), other.begin(), other.end(),
                      [](auto a, auto b) { return codeUnit(a) == codeUnit(b); });
}

} // namespace

TypeProperties::TypeProperties(std::vector<PropertyEntry> entries) : m_entries(std::move(entries))
{
    const auto isOfElement = [](const PropertyEntry &entry) { return entry.owner == PropertyOwner::Element; };
    const auto own = std::stable_partition(m_entries.begin(), m_entries.end(), isOfElement);
    m_elementCount = static_cast<int>(own - m_entries.begin());
    int index = 0;
    for (PropertyEntry &entry : m_entries) {
        entry.index = index++;
        m_indexByName.emplace_back(entry.name, entry.index);
        if (!entry.alias.isEmpty())
            m_indexByName.emplace_back(entry.alias, entry.index);
    }
    std::sort(m_indexByName.begin(), m_indexByName.end(),
              [](const auto &a, const auto &b) { return comesBefore(a.first, QStringView(b.first)); });
}

template <typename View> const PropertyEntry *TypeProperties::lookUp(View name, bool forDrawObject) const
{
    const auto place = std::lower_bound(m_indexByName.begin(), m_indexByName.end(), name,
                                        [](const auto &entry, View other) { return comesBefore(entry.first, other); });
    if (place == m_indexByName.end() || !isSame(place->first, name))
        return nullptr;
    const bool isThere = forDrawObject || place->second < m_elementCount;
    return isThere ? &m_entries[static_cast<std::size_t>(place->second)] : nullptr;
}

const PropertyEntry *TypeProperties::find(QStringView name, bool forDrawObject) const
{
    return lookUp(name, forDrawObject);
}

const PropertyEntry *TypeProperties::find(std::wstring_view name, bool forDrawObject) const
{
    return lookUp(name, forDrawObject);
}

HBXPropertyCatalogue::HBXPropertyCatalogue()
{
    for (const rows::TypeFamilies &type : rows::kTypeFamilies)
        m_types.emplace(type.type, TypeProperties(entriesOf(type)));
}

const HBXPropertyCatalogue &HBXPropertyCatalogue::instance()
{
    static const HBXPropertyCatalogue catalogue;
    return catalogue;
}

std::vector<qint64> HBXPropertyCatalogue::types() const
{
    std::vector<qint64> types;
    for (const rows::TypeFamilies &type : rows::kTypeFamilies)
        types.push_back(type.type);
    return types;
}

const TypeProperties *HBXPropertyCatalogue::properties(qint64 type) const
{
    const auto found = m_types.find(type);
    return found == m_types.end() ? nullptr : &found->second;
}

const std::vector<PropertyEntry> &HBXPropertyCatalogue::entries(qint64 type) const
{
    static const std::vector<PropertyEntry> none;
    const TypeProperties *known = properties(type);
    return known ? known->entries() : none;
}

const PropertyEntry *HBXPropertyCatalogue::find(qint64 type, QStringView name, bool forDrawObject) const
{
    const TypeProperties *known = properties(type);
    return known ? known->find(name, forDrawObject) : nullptr;
}

const PropertyEntry *HBXPropertyCatalogue::find(qint64 type, std::wstring_view name, bool forDrawObject) const
{
    const TypeProperties *known = properties(type);
    return known ? known->find(name, forDrawObject) : nullptr;
}

} // namespace hbx::embedded

#include "platform/embedded/DatabasePropertyReader.h"

#include "platform/dwgx/Reason.h"
#include "platform/embedded/HBXElevationText.h"
#include "platform/embedded/HBXPropertyValue.h"
#include "platform/embedded/StoredGeometry.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

namespace hbx::embedded {
namespace {

constexpr int kName = 2;
constexpr int kValue = 3;
/** Longer names than any of the catalogue. */
constexpr std::size_t kLongestName = 64;
/** A building has few different ones; with many, looking through those kept would cost more than it saves. */
constexpr std::size_t kKeptElevations = 16;

using Read = std::optional<PropertyValue>;

Read readInteger(const SqliteStatement &row)
{
    const qint64 found = row.integer(kValue);
    const bool fits = found >= std::numeric_limits<int>::min() && found <= std::numeric_limits<int>::max();
    return fits && row.type(kValue) == SQLITE_INTEGER ? Read(static_cast<int>(found)) : std::nullopt;
}

Read readDouble(const SqliteStatement &row)
{
    const double found = row.number(kValue);
    return row.type(kValue) == SQLITE_FLOAT && std::isfinite(found) ? Read(found) : std::nullopt;
}

Read readText(const SqliteStatement &row)
{
    return row.type(kValue) == SQLITE_TEXT ? Read(row.text(kValue)) : std::nullopt;
}

Read readPoint(const SqliteStatement &row)
{
    const auto point = row.type(kValue) == SQLITE_TEXT ? storedPoint(row.bytes(kValue)) : std::nullopt;
    return point ? Read(*point) : std::nullopt;
}

template <typename Geometry> Read readGeometry(const SqliteStatement &row)
{
    const bool isText = row.type(kValue) == SQLITE_TEXT;
    const auto geometry = isText ? storedGeometry<Geometry>(row.bytes(kValue)) : nullptr;
    return geometry && isSound(*geometry) ? Read(geometry) : std::nullopt;
}

using ReadValue = Read (*)(const SqliteStatement &row);

/** In the order of PropertyKind. */
constexpr std::array<ReadValue, 7> kReaders{readInteger,
                                            readDouble,
                                            readText,
                                            readText, // and then checked
                                            readPoint,
                                            readGeometry<vks::CCurve2d>,
                                            readGeometry<vks::CPolygon>};

/** Names are plain ASCII; whatever else stands there is found nowhere. */
const PropertyEntry *lookUp(std::string_view name, const TypeProperties &type, bool forDrawObject)
{
    if (name.size() > kLongestName)
        return nullptr;
    std::array<QChar, kLongestName> wide;
    std::transform(name.begin(), name.end(), wide.begin(), [](char letter) { return QLatin1Char(letter); });
    return type.find(QStringView(wide.data(), static_cast<qsizetype>(name.size())), forDrawObject);
}

/** The second half of a pair by its first; null when there is none. */
template <typename Value>
const Value *find(const std::vector<std::pair<std::string, Value>> &known, std::string_view wanted)
{
    const auto found =
        std::find_if(known.begin(), known.end(), [wanted](const auto &each) { return each.first == wanted; });
    return found == known.end() ? nullptr : &found->second;
}

} // namespace

void DatabasePropertyReader::read(const DatabaseRows &rows, const TypeProperties &type, PropertyRecords &properties)
{
    const SqliteStatement &row = rows.row();
    const PropertyEntry *entry = entryOf(row.bytes(kName), type);
    if (!entry)
        rows.refuse(kName, dwgx::Reason::tr("is no property of the object: \"%1\"").arg(row.text(kName)));
    Read value = valueOf(row, *entry);
    if (!value)
        rows.refuse(kValue, dwgx::Reason::tr("is no %1").arg(kindName(entry->kind)));
    const bool standsTwice = std::any_of(properties.begin(), properties.end(),
                                         [entry](const auto &each) { return each.first == entry->name; });
    if (standsTwice)
        rows.refuse(kName, dwgx::Reason::tr("stands twice: \"%1\"").arg(entry->name));
    properties.emplace_back(entry->name, std::move(*value));
}

const PropertyEntry *DatabasePropertyReader::entryOf(std::string_view name, const TypeProperties &type)
{
    Names &names = m_names[&type];
    if (const PropertyEntry *const *known = find(names, name))
        return *known;
    const PropertyEntry *entry = lookUp(name, type, m_forDrawObject);
    if (entry)
        names.emplace_back(name, entry);
    return entry;
}

std::optional<PropertyValue> DatabasePropertyReader::valueOf(const SqliteStatement &row, const PropertyEntry &entry)
{
    if (row.isNull(kValue))
        return std::monostate();
    return entry.kind == PropertyKind::Elevation ? elevationOf(row)
                                                 : kReaders[static_cast<std::size_t>(entry.kind)](row);
}

std::optional<PropertyValue> DatabasePropertyReader::elevationOf(const SqliteStatement &row)
{
    if (row.type(kValue) != SQLITE_TEXT)
        return std::nullopt;
    const std::string_view utf8 = row.bytes(kValue);
    if (const QString *known = find(m_elevations, utf8))
        return *known;
    const QString text = row.text(kValue);
    if (!HBXElevationText::parse(text))
        return std::nullopt;
    if (m_elevations.size() < kKeptElevations)
        m_elevations.emplace_back(utf8, text);
    return text;
}

} // namespace hbx::embedded

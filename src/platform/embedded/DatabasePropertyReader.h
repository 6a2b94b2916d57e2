#pragma once

#include "platform/embedded/DatabaseRows.h"
#include "platform/embedded/HBXProjectRecords.h"
#include "platform/embedded/HBXPropertyCatalogue.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace hbx::embedded {

/** Reads the rows of a property table, whose columns are owner, position, name and value. Names and elevations repeat
 *  from object to object, so each is looked up and checked once. */
class ORVCADPLATFORM_EXPORT DatabasePropertyReader
{
public:
    /** @param forDrawObject  whether the table holds values of draw objects */
    explicit DatabasePropertyReader(bool forDrawObject) : m_forDrawObject(forDrawObject) {}

    /** Adds the current row to the properties of an object. Throws DatabaseRefusal for a property that the type lacks, for
     *  one that stands twice and for a value of another kind. */
    void read(const DatabaseRows &rows, const TypeProperties &type, PropertyRecords &properties);

private:
    using Names = std::vector<std::pair<std::string, const PropertyEntry *>>;

    const PropertyEntry *entryOf(std::string_view name, const TypeProperties &type);
    std::optional<PropertyValue> valueOf(const SqliteStatement &row, const PropertyEntry &entry);
    std::optional<PropertyValue> elevationOf(const SqliteStatement &row);

    bool m_forDrawObject;
    std::unordered_map<const TypeProperties *, Names> m_names;
    std::vector<std::pair<std::string, QString>> m_elevations;
};

} // namespace hbx::embedded

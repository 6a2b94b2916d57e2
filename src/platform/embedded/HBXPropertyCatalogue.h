#pragma once

#include "ORVCADPlatformExport.h"

#include <QString>
#include <QStringView>

#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

/** Which properties the elements and draw objects of each type have: names, kinds and defaults, in one table
 *  (HBXPropertyRows.h). Nothing here holds values. */
namespace hbx::embedded {

/** What a property holds. Lengths are millimetres; an elevation is a text that is worked out against a floor. */
enum class PropertyKind { Integer, Double, Text, Elevation, Point, Curve, Polygon };

/** Whose property it is. A draw object has all properties of its element and those of its own. */
enum class PropertyOwner { Element, DrawObject };

/** What else the host does with a property. */
enum class PropertyRole {
    Plain,              ///< nothing
    Shape,              ///< it decides the object's shape, which follows each write
    DrawObjIds,         ///< it names draw objects by id, for which an exchange file has keys
    DrawObjIdInBrackets ///< a text that ends with one such id in brackets
};

struct PropertyEntry
{
    QString name;
    QString alias; ///< second name of the same value, empty: none
    PropertyKind kind = PropertyKind::Text;
    PropertyOwner owner = PropertyOwner::Element;
    PropertyRole role = PropertyRole::Plain;
    std::optional<QString> defaultText; ///< value of an object that was given none; absent: it has no value then
    int index = 0;                      ///< place among the properties of its type, counted from 0

    bool namesDrawObjs() const { return role == PropertyRole::DrawObjIds || role == PropertyRole::DrawObjIdInBrackets; }
};

/** The properties of one type. Those of the element come first, so that an element needs elementCount() places for its
 *  values and a draw object entries().size(); an entry's index is its place in both. */
class ORVCADPLATFORM_EXPORT TypeProperties
{
public:
    explicit TypeProperties(std::vector<PropertyEntry> entries);

    const std::vector<PropertyEntry> &entries() const { return m_entries; }
    int elementCount() const { return m_elementCount; }
    /** The entry of a name or second name, null for any other, and for a draw object's own name unless forDrawObject.
     *  Case counts. */
    const PropertyEntry *find(QStringView name, bool forDrawObject) const;
    const PropertyEntry *find(std::wstring_view name, bool forDrawObject) const;

private:
    template <typename View> const PropertyEntry *lookUp(View name, bool forDrawObject) const;

    std::vector<PropertyEntry> m_entries;
    std::vector<std::pair<QString, int>> m_indexByName; ///< sorted; second names too
    int m_elementCount = 0;
};

/** The one catalogue of the process: made at its first use, never changed, and so free to read from anywhere. Entries
 *  live as long as the process. */
class ORVCADPLATFORM_EXPORT HBXPropertyCatalogue
{
public:
    static const HBXPropertyCatalogue &instance();

    bool isKnownType(qint64 type) const { return properties(type) != nullptr; }
    /** All type numbers, ascending. */
    std::vector<qint64> types() const;
    /** Null for an unknown type. An object keeps the pointer, so that reading a property looks up its name alone. */
    const TypeProperties *properties(qint64 type) const;
    /** Empty for an unknown type. */
    const std::vector<PropertyEntry> &entries(qint64 type) const;
    /** Null for an unknown type, else as TypeProperties::find. */
    const PropertyEntry *find(qint64 type, QStringView name, bool forDrawObject) const;
    const PropertyEntry *find(qint64 type, std::wstring_view name, bool forDrawObject) const;

private:
    HBXPropertyCatalogue();

    std::unordered_map<qint64, TypeProperties> m_types;
};

} // namespace hbx::embedded

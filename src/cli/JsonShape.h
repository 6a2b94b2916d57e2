#pragma once

#include "cli/JsonFault.h"

#include <QJsonValue>
#include <QLatin1String>
#include <QString>

#include <cstddef>
#include <optional>
#include <vector>

namespace orvcad {

/** What a value of a document has to be: constants that form a tree, which is gone through in the order of its members. */
struct JsonShape
{
    enum class Kind {
        Text,
        TextOrPassedOver, ///< anything; what is no text counts as missing
        Whole,            ///< a number without a fraction
        Whole32,          ///< one from -2147483647 to 2147483647
        Number,           ///< any but the lowest, which stands for no number
        NumberOrNull,     ///< null where the number was not finite
        Object,
        Map, ///< an object with keys of any name
        List,
    };
    enum class Missing { Refused, Taken };
    struct Member
    {
        QLatin1String key;
        const JsonShape *shape;
        Missing missing = Missing::Refused;
    };

    Kind kind;
    const Member *members = nullptr; ///< of an object
    std::size_t memberCount = 0;
    const JsonShape *element = nullptr; ///< of each entry of a map or list
    int length = -1;                    ///< of a list; any if below 0
    bool closed = false;                ///< an object that may have no other members
    bool mayBeEmpty = false;            ///< an object without any members and a null in place of a list are taken, too

    /** The member of that key; null for another key. */
    const Member *member(const QString &key) const;
};

template <std::size_t Count> constexpr JsonShape objectOf(const JsonShape::Member (&members)[Count])
{
    return {JsonShape::Kind::Object, members, Count};
}
constexpr JsonShape mapOf(const JsonShape &element) { return {JsonShape::Kind::Map, nullptr, 0, &element}; }
constexpr JsonShape listOf(const JsonShape &element, int length = -1)
{
    return {JsonShape::Kind::List, nullptr, 0, &element, length};
}
constexpr JsonShape closed(JsonShape shape)
{
    shape.closed = true;
    return shape;
}
constexpr JsonShape orEmpty(JsonShape shape)
{
    shape.mayBeEmpty = true;
    return shape;
}

/** The first value that is not what it has to be, in the order of the shape; nothing for a sound document. Goes no deeper
 *  than the shape, however deep the document is. */
std::optional<JsonFault> firstFault(const QJsonValue &value, const JsonShape &shape);

/** Members of a sound document that the shape does not know, wherever it allows them: nobody reads them. */
std::vector<JsonFault> unknownMembers(const QJsonValue &value, const JsonShape &shape);

} // namespace orvcad

#pragma once

#include "ORVCADModelDataExport.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QLatin1String>

#include <array>
#include <cstddef>

namespace encoding {

/** The members of an object for a reader that seeks the same keys in the same order in one object after the other: it
 *  gives what QJsonObject gives. QJsonObject compares several of its keys for each one sought, which takes longer than
 *  all else that reading a record does; objects written alike have their members in the same places, so that one look
 *  where a key was the last time finds it.
 *
 *  Refers to the object and to the places, which outlive it; the object does not change meanwhile. */
class ORVCADMODELDATA_EXPORT ObjectMembers
{
public:
    /** Where each of the keys sought was found in the last object. Any places are good ones: each is looked at first and
     *  never trusted. */
    template <std::size_t count> using Places = std::array<int, count>;

    /** @param places  of the keys in the order in which they will be sought; renewed as they are */
    template <std::size_t count>
    ObjectMembers(const QJsonObject &object, Places<count> &places)
        : m_object(object), m_size(object.size()), m_next(places.data()), m_end(places.data() + count)
    {}

    /** Undefined for a key that the object lacks. */
    QJsonValue value(QLatin1String key) const;
    /** Also true where the value is null. Counts as one look, as value() does. */
    bool contains(QLatin1String key) const;

private:
    /** The number of members for a key that the object lacks. */
    int placeOf(QLatin1String key) const;

    const QJsonObject &m_object;
    int m_size;          // which QJsonObject works out anew each time
    mutable int *m_next; ///< where the key that is sought next was found
    int *m_end;
};

} // namespace encoding

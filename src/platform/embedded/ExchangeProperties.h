#pragma once

#include "platform/embedded/ExchangeObject.h"
#include "platform/embedded/ExchangeReferenceText.h"
#include "platform/embedded/HBXProjectRecords.h"
#include "platform/embedded/HBXPropertyCatalogue.h"

#include <vector>

namespace hbx::embedded {

/** A value that refers to draw objects by keys, which are only known once the whole file is read. */
struct KeyUse
{
    int property = 0;                     ///< place among the object's properties
    const PropertyEntry *entry = nullptr; ///< an integer is one key, for which an id stands in the project; else a text
    QString place;                        ///< in the file
};

/** The properties object of the exchange form, held against the catalogue. Throws dwgx::JsonRefusal.
 *  @param forDrawObject  whether the names of draw objects are allowed besides those of elements
 *  @param keyUses        receives the values that name draw objects; those hold keys so far */
ORVCADPLATFORM_EXPORT PropertyRecords propertiesFromJson(const QJsonValue &value, const JsonPlace &place,
                                                         const TypeProperties &type, bool forDrawObject,
                                                         std::vector<KeyUse> &keyUses);
/** Puts ids in the place of keys. Throws dwgx::JsonRefusal for a key that map does not know. */
ORVCADPLATFORM_EXPORT void resolveKeys(PropertyRecords &properties, const std::vector<KeyUse> &keyUses,
                                       const ReferenceMap &map);

/** @param keyOfId  key of a draw object by the decimal text of its id; a reference that it does not know is left out */
ORVCADPLATFORM_EXPORT QJsonObject propertiesToJson(const PropertyRecords &properties, const TypeProperties *type,
                                                   const ReferenceMap &keyOfId);

} // namespace hbx::embedded

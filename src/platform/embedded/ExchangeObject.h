#pragma once

#include "platform/dwgx/StrictJson.h"

#include <limits>

namespace hbx::embedded {

using dwgx::JsonPlace;

/** An object of the exchange form: all its members are known, and those asked for with a start value may be absent.
 *  Everything here throws dwgx::JsonRefusal with place and reason. */
class ORVCADPLATFORM_EXPORT ExchangeObject : public dwgx::StrictObject
{
public:
    using StrictObject::StrictObject;

    JsonPlace placeOf(QLatin1String key) const { return {place(), key}; }

    /** A text that is not empty. */
    QString name(QLatin1String key) const;
    QString textOr(QLatin1String key, const QString &absent) const;
    double numberOr(QLatin1String key, double absent) const;
    bool flagOr(QLatin1String key, bool absent) const;
    /** An integer of 32 bits that is not below a limit. */
    int integer32(QLatin1String key, int low = std::numeric_limits<int>::min()) const;
    int integer32Or(QLatin1String key, int absent) const { return has(key) ? integer32(key) : absent; }
    /** A whole number that a double holds exactly. */
    qint64 wide(QLatin1String key) const;
    qint64 wideOr(QLatin1String key, qint64 absent) const { return has(key) ? wide(key) : absent; }

    /** Calls visit(value, place, index) for each entry of an array; an absent one has none. */
    template <typename Visit> void each(QLatin1String key, Visit visit) const
    {
        if (!has(key))
            return;
        const QJsonArray entries = array(key);
        const JsonPlace arrayPlace = placeOf(key);
        for (int i = 0; i < entries.size(); ++i)
            visit(entries.at(i), JsonPlace(arrayPlace, i), i);
    }
};

} // namespace hbx::embedded

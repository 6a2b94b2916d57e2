#include "platform/embedded/ExchangeObject.h"

#include "platform/dwgx/Reason.h"

namespace hbx::embedded {
namespace {

constexpr qint64 kExactInDouble = Q_INT64_C(1) << 53;

} // namespace

QString ExchangeObject::name(QLatin1String key) const
{
    QString found = text(key);
    if (found.isEmpty())
        placeOf(key).refuse(dwgx::Reason::tr("is empty"));
    return found;
}

QString ExchangeObject::textOr(QLatin1String key, const QString &absent) const { return has(key) ? text(key) : absent; }

double ExchangeObject::numberOr(QLatin1String key, double absent) const { return has(key) ? number(key) : absent; }

bool ExchangeObject::flagOr(QLatin1String key, bool absent) const
{
    if (!has(key))
        return absent;
    const QJsonValue found = value(key);
    if (!found.isBool())
        placeOf(key).refuse(dwgx::Reason::tr("is neither true nor false"));
    return found.toBool();
}

int ExchangeObject::integer32(QLatin1String key, int low) const
{
    return static_cast<int>(integer(key, low, std::numeric_limits<int>::max()));
}

qint64 ExchangeObject::wide(QLatin1String key) const { return integer(key, -kExactInDouble, kExactInDouble); }

} // namespace hbx::embedded

#include "cli/MemberKinds.h"

#include "encoding/GeometryTextReader.h"
#include "platform/geometry/KernelTolerance.h"

namespace orvcad {

namespace {

QString wordFor(QJsonValue::Type kind)
{
    if (kind == QJsonValue::Double)
        return QStringLiteral("a number");
    return kind == QJsonValue::Bool ? QStringLiteral("true or false") : QStringLiteral("text");
}

} // namespace

bool isWhole(const QJsonValue &value)
{
    // Two defaults that differ: only a number that fits gives the same for both.
    return value.isDouble() && value.toInt(0) == value.toInt(1);
}

QString wrongKey(const QJsonObject &member, const QJsonObject &pattern, const QStringList &whole,
                 const QStringList &required)
{
    for (const QString &key : required)
        if (!member.contains(key))
            return QStringLiteral("%1 is missing").arg(key);
    for (auto known = pattern.begin(); known != pattern.end(); ++known) {
        const auto value = member.find(known.key());
        if (value == member.end())
            continue;
        if (value->type() != known->type())
            return QStringLiteral("%1 is not %2").arg(known.key(), wordFor(known->type()));
        if (whole.contains(known.key()) && !isWhole(*value))
            return QStringLiteral("%1 is not a whole number of 32 bits").arg(known.key());
    }
    return {};
}

QString whyNotAxis(QLatin1String key, const QString &text)
{
    GeometryTextReader::Curve axis;
    if (text.isEmpty())
        return {};
    if (!GeometryTextReader::reconstructCurve(text, axis))
        return QStringLiteral("%1 is no curve").arg(key);
    return axis->Length() > vks::g_DistEpsilon ? QString() : QStringLiteral("%1 has no length").arg(key);
}

} // namespace orvcad

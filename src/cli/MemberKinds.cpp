#include "cli/MemberKinds.h"

#include "cli/ExpectedValue.h"
#include "cli/Message.h"
#include "encoding/GeometryFields.h"
#include "encoding/GeometryTextReader.h"
#include "platform/embedded/ExchangeGeometry.h"
#include "platform/geometry/KernelTolerance.h"

namespace orvcad {

namespace {

Expected kindOf(const QJsonValue &pattern)
{
    if (pattern.isDouble())
        return Expected::Number;
    return pattern.isBool() ? Expected::Truth : Expected::Text;
}

} // namespace

QString wrongKey(const QJsonObject &member, const QJsonObject &pattern, const QStringList &whole,
                 const QStringList &required)
{
    const auto wrong = [](const QString &key, Expected kind) {
        return Message::tr("%1 is not %2").arg(key, wordFor(kind));
    };
    for (const QString &key : required)
        if (!member.contains(key))
            return Message::tr("%1 is missing").arg(key);
    for (auto known = pattern.begin(); known != pattern.end(); ++known) {
        const auto value = member.find(known.key());
        if (value == member.end())
            continue;
        if (value->type() != known->type())
            return wrong(known.key(), kindOf(*known));
        if (whole.contains(known.key()) && !fits(*value, Expected::Integer))
            return wrong(known.key(), Expected::Integer);
    }
    return {};
}

QString whyNotAxis(QLatin1String key, const QString &text)
{
    GeometryTextReader::Curve axis;
    if (text.isEmpty())
        return {};
    if (!GeometryTextReader::reconstructCurve(text, axis))
        return Message::tr("%1 is no curve").arg(key);
    return axis->Length() > vks::g_DistEpsilon ? QString() : Message::tr("%1 has no length").arg(key);
}

QString whyNotOutline(QLatin1String key, const QString &text)
{
    if (!encoding::KernelText::polygon(text))
        return Message::tr("%1 is no outline").arg(key);
    try {
        hbx::embedded::polygonFromJson(text, dwgx::JsonPlace());
        return {};
    } catch (const dwgx::JsonRefusal &refusal) {
        return QStringLiteral("%1 %2").arg(key, refusal.reason);
    }
}

} // namespace orvcad

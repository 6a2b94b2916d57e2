#include "platform/embedded/ExchangeSpan.h"

#include "platform/dwgx/Reason.h"
#include "platform/embedded/HBXSpanKeys.h"

#include <algorithm>
#include <iterator>

namespace hbx::embedded {
namespace {

enum class SpanValue { Integer, Number, Text };

struct SpanKey
{
    QLatin1String key;
    SpanValue kind;
};

constexpr SpanKey kSpanKeys[] = {
    {spankey::spanIndex, SpanValue::Integer},    {spankey::startElev, SpanValue::Number},
    {spankey::endElev, SpanValue::Number},       {spankey::measures, SpanValue::Text},
    {spankey::spanLength, SpanValue::Number},    {spankey::section, SpanValue::Text},
    {spankey::axisOffset, SpanValue::Number},    {spankey::topThroughBar, SpanValue::Text},
    {spankey::leftSupportBar, SpanValue::Text},  {spankey::spanBar, SpanValue::Text},
    {spankey::rightSupportBar, SpanValue::Text}, {spankey::bottomThroughBar, SpanValue::Text},
    {spankey::bottomBar, SpanValue::Text},       {spankey::sideBar, SpanValue::Text},
    {spankey::sideLabelBar, SpanValue::Text},    {spankey::tieBar, SpanValue::Text},
    {spankey::hoopBar, SpanValue::Text},         {spankey::hoopBarLimbCount, SpanValue::Integer},
    {spankey::secBeamWidth, SpanValue::Text},    {spankey::secBeamAddBar, SpanValue::Text},
    {spankey::hangBar, SpanValue::Text},         {spankey::hangBarAnchor, SpanValue::Text},
    {spankey::denseLength, SpanValue::Text},     {spankey::haunchingLength, SpanValue::Text},
    {spankey::haunchingHeight, SpanValue::Text}, {spankey::haunchingBarInfo, SpanValue::Text},
    {spankey::otherHoopBars, SpanValue::Text},
};

const char *wrongKind(SpanValue kind, const QJsonValue &value)
{
    const int number = value.toInt();
    switch (kind) {
    case SpanValue::Integer:
        return value.isDouble() && value.toDouble() == number
                   ? nullptr
                   : QT_TRANSLATE_NOOP("host", "is not an integer of 32 bits");
    case SpanValue::Number:
        return value.isDouble() ? nullptr : QT_TRANSLATE_NOOP("host", "is not a number");
    case SpanValue::Text:
        return value.isString() ? nullptr : QT_TRANSLATE_NOOP("host", "is not a text");
    }
    return nullptr;
}

void checkMember(const QString &key, const QJsonValue &value, const JsonPlace &place)
{
    const auto *known =
        std::find_if(std::begin(kSpanKeys), std::end(kSpanKeys), [&](const SpanKey &each) { return key == each.key; });
    if (known == std::end(kSpanKeys))
        place.refuse(dwgx::Reason::tr("has the unknown member \"%1\"").arg(key));
    if (const char *reason = wrongKind(known->kind, value))
        JsonPlace(place, known->key).refuse(dwgx::Reason::tr(reason));
}

} // namespace

QJsonObject spanFromJson(const QJsonValue &value, const JsonPlace &place)
{
    if (!value.isObject())
        place.refuse(dwgx::Reason::tr("is not an object"));
    QJsonObject span = value.toObject();
    for (auto member = span.constBegin(); member != span.constEnd(); ++member)
        checkMember(member.key(), member.value(), place);
    return span;
}

} // namespace hbx::embedded

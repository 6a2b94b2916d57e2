#include "platform/embedded/ExchangeSpan.h"

#include <algorithm>
#include <iterator>

namespace hbx::embedded {
namespace {

enum class SpanValue { Integer, Number, Text };

struct SpanKey
{
    const char *key;
    SpanValue kind;
};

constexpr SpanKey kSpanKeys[] = {
    {"SpanIndex", SpanValue::Integer},    {"StartElev", SpanValue::Number},
    {"EndElev", SpanValue::Number},       {"SpanA1_A4", SpanValue::Text},
    {"SpanLength", SpanValue::Number},    {"Section", SpanValue::Text},
    {"AxisOffset", SpanValue::Number},    {"TopThroughBar", SpanValue::Text},
    {"LeftSupportBar", SpanValue::Text},  {"SpanBar", SpanValue::Text},
    {"RightSupportBar", SpanValue::Text}, {"BottomThroughBar", SpanValue::Text},
    {"BottomBar", SpanValue::Text},       {"SideBar", SpanValue::Text},
    {"SideLabelBar", SpanValue::Text},    {"TieBar", SpanValue::Text},
    {"HoopBar", SpanValue::Text},         {"HoopBarLimbCount", SpanValue::Integer},
    {"SecBeamWidth", SpanValue::Text},    {"SecBeamAddBar", SpanValue::Text},
    {"HangBar", SpanValue::Text},         {"HangBarAnchor", SpanValue::Text},
    {"DenseLength", SpanValue::Text},     {"HaunchingLength", SpanValue::Text},
    {"HaunchingHeight", SpanValue::Text}, {"HaunchingBarInfo", SpanValue::Text},
    {"OtherHoopBars", SpanValue::Text},
};

const char *wrongKind(SpanValue kind, const QJsonValue &value)
{
    const int number = value.toInt();
    switch (kind) {
    case SpanValue::Integer:
        return value.isDouble() && value.toDouble() == number ? nullptr : "is not an integer of 32 bits";
    case SpanValue::Number:
        return value.isDouble() ? nullptr : "is not a number";
    case SpanValue::Text:
        return value.isString() ? nullptr : "is not a text";
    }
    return nullptr;
}

void checkMember(const QString &key, const QJsonValue &value, const JsonPlace &place)
{
    const auto *known = std::find_if(std::begin(kSpanKeys), std::end(kSpanKeys),
                                     [&](const SpanKey &each) { return key == QLatin1String(each.key); });
    if (known == std::end(kSpanKeys))
        place.refuse(QStringLiteral("has the unknown member \"%1\"").arg(key));
    if (const char *reason = wrongKind(known->kind, value))
        JsonPlace(place, QLatin1String(known->key)).refuse(QLatin1String(reason));
}

} // namespace

QJsonObject spanFromJson(const QJsonValue &value, const JsonPlace &place)
{
    if (!value.isObject())
        place.refuse(QStringLiteral("is not an object"));
    QJsonObject span = value.toObject();
    for (auto member = span.constBegin(); member != span.constEnd(); ++member)
        checkMember(member.key(), member.value(), place);
    return span;
}

} // namespace hbx::embedded

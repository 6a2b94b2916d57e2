#include "cli/SchemaRules.h"

#include "cli/GeometryFormats.h"
#include "cli/Message.h"
#include "cli/NearestName.h"
#include "cli/ValueWords.h"

#include <algorithm>
#include <cmath>

namespace orvcad {

namespace {

using Index = JsonTree::Index;
using Kind = JsonTree::Kind;
using Rule = CheckFinding::Rule;
using Broken = std::optional<BrokenRule>;
using Count = std::optional<int>;

QString textOf(const JsonTree::Node &node)
{
    return QString::fromUtf8(node.text.data(), static_cast<int>(node.text.size()));
}

bool isAllowed(const JsonTree &document, Index value, const std::vector<QJsonValue> &allowed)
{
    const JsonTree::Node &node = document.node(value);
    return std::any_of(allowed.begin(), allowed.end(), [&](const QJsonValue &one) {
        if (one.isString())
            return node.kind == Kind::Text && one.toString() == textOf(node);
        if (one.isDouble())
            return node.kind == Kind::Number && one.toDouble() == document.number(value);
        return one.isBool() && node.kind == Kind::Truth && one.toBool() == (node.text == "true");
    });
}

QString nearestAllowed(const JsonTree::Node &node, const std::vector<QJsonValue> &allowed)
{
    QStringList names;
    for (const QJsonValue &one : allowed)
        if (one.isString())
            names.append(one.toString());
    return node.kind == Kind::Text ? nearestName(textOf(node), names) : QString();
}

Broken brokenByValue(const JsonTree &document, Index value, const JsonSchema &schema, InWords words)
{
    if (schema.allowed.empty() || isAllowed(document, value, schema.allowed))
        return {};
    if (words == InWords::No)
        return BrokenRule{Rule::Value, {}, {}, {}};
    return BrokenRule{Rule::Value, Message::tr("is %1").arg(wordsFor(document, value)), wordsForValues(schema.allowed),
                      nearestAllowed(document.node(value), schema.allowed)};
}

QString wordsForRange(const JsonSchema &schema)
{
    const auto text = [](double limit) { return QString::number(limit, 'g', 17); };
    if (schema.exclusiveMinimum)
        return Message::tr("a number above %1").arg(text(*schema.exclusiveMinimum));
    if (schema.minimum && schema.maximum)
        return Message::tr("a number from %1 to %2").arg(text(*schema.minimum), text(*schema.maximum));
    return schema.minimum ? Message::tr("a number from %1 up").arg(text(*schema.minimum))
                          : Message::tr("a number up to %1").arg(text(schema.maximum.value_or(0)));
}

Broken brokenByNumber(const JsonTree &document, Index value, const JsonSchema &schema)
{
    const double number = document.number(value);
    const bool isBelow =
        (schema.minimum && number < *schema.minimum) || (schema.exclusiveMinimum && number <= *schema.exclusiveMinimum);
    if (!isBelow && !(schema.maximum && number > *schema.maximum))
        return {};
    return BrokenRule{Rule::Range, Message::tr("is %1").arg(shortText(document, value)), wordsForRange(schema), {}};
}

Broken brokenByText(const JsonTree &document, Index value, const JsonSchema &schema, InWords words)
{
    if (!schema.minLength && !schema.pattern && schema.format.isEmpty())
        return {};
    const QString text = textOf(document.node(value));
    if (schema.minLength && text.size() < *schema.minLength)
        return BrokenRule{Rule::Size, Message::tr("is an empty text"), Message::tr("one that is not"), {}};
    // An expression that gives up on a text of great length has said nothing.
    const QRegularExpressionMatch match = schema.pattern ? schema.pattern->match(text) : QRegularExpressionMatch();
    const bool isOfPattern = !schema.pattern || match.hasMatch() || !match.isValid();
    const QString why = words == InWords::Yes ? whyNotFormat(schema.format, text) : QString();
    if (isOfPattern && why.isEmpty())
        return {};
    const QString shown = wordsFor(document, value);
    if (why.isEmpty())
        return BrokenRule{Rule::Pattern, Message::tr("is %1").arg(shown), Message::tr("another form"), {}};
    return BrokenRule{
        isOfPattern ? Rule::Geometry : Rule::Pattern, Message::tr("is %1, which %2").arg(shown, why), {}, {}};
}

Broken brokenByCount(int count, Count least, Count most, const char *things)
{
    if ((!least || count >= *least) && (!most || count <= *most))
        return {};
    const QString expected = least && most && *least == *most ? QString::number(*least)
                             : least && count < *least        ? Message::tr("at least %1").arg(*least)
                                                              : Message::tr("at most %1").arg(most.value_or(0));
    return BrokenRule{Rule::Size, Message::tr("has %1 %2").arg(count).arg(Message::tr(things)), expected, {}};
}

} // namespace

Broken brokenRule(const JsonTree &document, Index value, const JsonSchema &schema, InWords words)
{
    if (Broken broken = brokenByValue(document, value, schema, words))
        return broken;
    const JsonTree::Node &node = document.node(value);
    switch (node.kind) {
    case Kind::Number:
        return brokenByNumber(document, value, schema);
    case Kind::Text:
        return brokenByText(document, value, schema, words);
    case Kind::List:
        return brokenByCount(node.count, schema.minItems, schema.maxItems, QT_TRANSLATE_NOOP("orvcad", "entries"));
    case Kind::Object:
        return brokenByCount(node.count, schema.minProperties, schema.maxProperties,
                             QT_TRANSLATE_NOOP("orvcad", "keys"));
    case Kind::Null:
    case Kind::Truth:
        break;
    }
    return {};
}

bool isOfType(const JsonTree &document, Index value, unsigned types)
{
    switch (document.node(value).kind) {
    case Kind::Null:
        return types & JsonSchema::Null;
    case Kind::Truth:
        return types & JsonSchema::Truth;
    case Kind::Text:
        return types & JsonSchema::Text;
    case Kind::List:
        return types & JsonSchema::List;
    case Kind::Object:
        return types & JsonSchema::Object;
    case Kind::Number:
        break;
    }
    const double number = document.number(value);
    return (types & JsonSchema::Number) || ((types & JsonSchema::Integer) && std::floor(number) == number);
}

} // namespace orvcad

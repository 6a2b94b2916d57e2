#include "cli/ValueWords.h"

#include "cli/Message.h"

#include <QStringList>

namespace orvcad {

namespace {

using Kind = JsonTree::Kind;

constexpr int kMostLetters = 60;
constexpr std::size_t kMostValues = 12;

struct TypeWord
{
    unsigned type;
    const char *word;
};
constexpr TypeWord kTypeWords[] = {
    {JsonSchema::Text, QT_TRANSLATE_NOOP("orvcad", "a text")},
    {JsonSchema::Integer, QT_TRANSLATE_NOOP("orvcad", "a whole number")},
    {JsonSchema::Number, QT_TRANSLATE_NOOP("orvcad", "a number")},
    {JsonSchema::Truth, QT_TRANSLATE_NOOP("orvcad", "true or false")},
    {JsonSchema::List, QT_TRANSLATE_NOOP("orvcad", "a list")},
    {JsonSchema::Object, QT_TRANSLATE_NOOP("orvcad", "an object")},
    {JsonSchema::Null, "null"}, // is itself in every language
};

QString listed(QStringList words)
{
    if (words.size() < 2)
        return words.join(QString());
    const QString last = words.takeLast();
    return Message::tr("%1 or %2").arg(words.join(QStringLiteral(", ")), last);
}

QString wordFor(const QJsonValue &value)
{
    return value.isString() ? QLatin1Char('"') + value.toString() + QLatin1Char('"') : value.toVariant().toString();
}

} // namespace

QString shortText(const JsonTree &document, JsonTree::Index value)
{
    const JsonTree::Node &node = document.node(value);
    if (node.kind == Kind::List || node.kind == Kind::Object)
        return {};
    // Four bytes are the most that a character has.
    const auto length = static_cast<int>(std::min<std::size_t>(node.text.size(), 4 * kMostLetters + 4));
    const QString text = QString::fromUtf8(node.text.data(), length);
    return text.size() > kMostLetters ? text.left(kMostLetters) + QChar(0x2026) : text;
}

QString wordsFor(const JsonTree &document, JsonTree::Index value)
{
    QString text = shortText(document, value);
    switch (document.node(value).kind) {
    case Kind::Text:
        return text.isEmpty() ? Message::tr("an empty text") : Message::tr("the text \"%1\"").arg(text);
    case Kind::Number:
        return Message::tr("the number %1").arg(text);
    case Kind::List:
        return Message::tr("a list");
    case Kind::Object:
        return Message::tr("an object");
    case Kind::Truth:
    case Kind::Null:
        break;
    }
    return text;
}

QString wordsForTypes(unsigned types)
{
    QStringList words;
    for (const TypeWord &one : kTypeWords)
        if (types & one.type)
            words.append(Message::tr(one.word));
    return listed(words);
}

QString wordsForValues(const std::vector<QJsonValue> &values)
{
    QStringList words;
    for (const QJsonValue &value : values)
        if (words.size() < static_cast<int>(kMostValues))
            words.append(wordFor(value));
    return values.size() > kMostValues ? words.join(QStringLiteral(", ")) + QStringLiteral(", \u2026") : listed(words);
}

} // namespace orvcad

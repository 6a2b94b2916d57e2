#include "cli/ExpectedValue.h"

#include "cli/Message.h"

#include <QVariant>

#include <cmath>

namespace orvcad {

namespace {

bool isInteger(const QJsonValue &value)
{
    // Two defaults that differ: only a number that fits gives the same for both.
    return value.isDouble() && value.toInt(0) == value.toInt(1);
}

bool isWholeNumberOf64Bits(const QJsonValue &value)
{
    constexpr double firstBeyond = 9223372036854775808.0; // 2 to the 63rd
    if (value.toVariant().userType() == QMetaType::LongLong)
        return true;
    return std::fabs(value.toDouble()) < firstBeyond && std::trunc(value.toDouble()) == value.toDouble();
}

bool isId(const QJsonValue &value)
{
    bool isNumberText = false;
    if (value.isString())
        value.toString().toLongLong(&isNumberText);
    return isNumberText || (value.isDouble() && isWholeNumberOf64Bits(value));
}

} // namespace

bool fits(const QJsonValue &value, Expected kind)
{
    switch (kind) {
    case Expected::Text:
        return value.isString();
    case Expected::Integer:
        return isInteger(value);
    case Expected::Number:
        return value.isDouble();
    case Expected::Truth:
        return value.isBool();
    case Expected::Id:
        return isId(value);
    }
    return false;
}

QString wordFor(Expected kind)
{
    constexpr const char *words[] = {
        QT_TRANSLATE_NOOP("orvcad", "text"), QT_TRANSLATE_NOOP("orvcad", "a whole number of 32 bits"),
        QT_TRANSLATE_NOOP("orvcad", "a number"), QT_TRANSLATE_NOOP("orvcad", "true or false"),
        QT_TRANSLATE_NOOP("orvcad", "a whole number of 64 bits")};
    return Message::tr(words[static_cast<int>(kind)]);
}

} // namespace orvcad

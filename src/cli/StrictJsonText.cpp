#include "cli/StrictJsonText.h"

#include "cli/Message.h"
#include "platform/dwgx/StrictJson.h"

#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <cmath>
#include <set>
#include <string>
#include <vector>

namespace orvcad {

namespace {

constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";

/** 2^53: below it every whole number is a double. */
constexpr double kWholeToHere = 9007199254740992.0;

/** What the reader says of a text, listed for its translation. */
[[maybe_unused]] constexpr const char *kFaultsOfReader[] = {
    QT_TRANSLATE_NOOP("orvcad", "The document is empty."),
    QT_TRANSLATE_NOOP("orvcad", "The document root must not be followed by other values."),
    QT_TRANSLATE_NOOP("orvcad", "Invalid value."),
    QT_TRANSLATE_NOOP("orvcad", "Missing a name for object member."),
    QT_TRANSLATE_NOOP("orvcad", "Missing a colon after a name of object member."),
    QT_TRANSLATE_NOOP("orvcad", "Missing a comma or '}' after an object member."),
    QT_TRANSLATE_NOOP("orvcad", "Missing a comma or ']' after an array element."),
    QT_TRANSLATE_NOOP("orvcad", "Incorrect hex digit after \\u escape in string."),
    QT_TRANSLATE_NOOP("orvcad", "The surrogate pair in string is invalid."),
    QT_TRANSLATE_NOOP("orvcad", "Invalid escape character in string."),
    QT_TRANSLATE_NOOP("orvcad", "Missing a closing quotation mark in string."),
    QT_TRANSLATE_NOOP("orvcad", "Invalid encoding in string."),
    QT_TRANSLATE_NOOP("orvcad", "Miss fraction part in number."),
    QT_TRANSLATE_NOOP("orvcad", "Miss exponent in number."),
};

bool isWhole(const std::string &number) { return number.find_first_of(".eE") == std::string::npos; }

/** Whether a double has the digits of a whole number beyond 2^53. */
bool survives(const std::string &number, double value)
{
    return std::fabs(value) < kWholeToHere || QByteArray::number(value, 'f', 0) == QByteArray::fromStdString(number);
}

/** What the reader meets, one call after the other; the first false ends it. */
class Look : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Look>
{
public:
    explicit Look(LargeNumbers large) : m_large(large) {}

    bool Default() { return true; }

    bool RawNumber(const char *text, rapidjson::SizeType length, bool /*copied*/)
    {
        const QString lost = whyNumberIsLost({text, length}, m_large);
        return lost.isEmpty() || refuse(lost);
    }

    bool StartObject()
    {
        m_names.emplace_back();
        return true;
    }

    bool Key(const char *text, rapidjson::SizeType length, bool /*copied*/)
    {
        const std::string name(text, length);
        return m_names.back().insert(name).second ||
               refuse(Message::tr("\"%1\" stands twice in one object").arg(QString::fromStdString(name)));
    }

    bool EndObject(rapidjson::SizeType /*count*/)
    {
        m_names.pop_back();
        return true;
    }

    const QString &reason() const { return m_reason; }

private:
    bool refuse(const QString &reason)
    {
        m_reason = reason;
        return false;
    }

    const LargeNumbers m_large;
    std::vector<std::set<std::string>> m_names; // of the objects that are open
    QString m_reason;
};

} // namespace

QString whyNumberIsLost(const std::string &number, LargeNumbers large)
{
    const double value = QByteArray::fromStdString(number).toDouble();
    if (!std::isfinite(value))
        return Message::tr("the number %1 is too large").arg(QString::fromStdString(number));
    if (large == LargeNumbers::Taken || !isWhole(number) || survives(number, value))
        return {};
    return Message::tr("the number %1 would be read as %2")
        .arg(QString::fromStdString(number), QString::number(value, 'f', 0));
}

std::optional<JsonFault> firstTextFault(const QByteArray &text, LargeNumbers large)
{
    constexpr unsigned flags =
        rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag | rapidjson::kParseNumbersAsStringsFlag;
    const int start = text.startsWith(kByteOrderMark) ? static_cast<int>(sizeof kByteOrderMark) - 1 : 0;
    rapidjson::MemoryStream stream(text.constData() + start, static_cast<std::size_t>(text.size() - start));
    rapidjson::Reader reader;
    Look look(large);
    const rapidjson::ParseResult result = reader.Parse<flags>(stream, look);
    if (!result.IsError())
        return std::nullopt;
    const bool isOurs = result.Code() == rapidjson::kParseErrorTermination;
    const QString reason =
        isOurs ? look.reason()
               : Message::tr("not JSON: %1").arg(Message::tr(rapidjson::GetParseError_En(result.Code())));
    return JsonFault{dwgx::lineAndColumn(text, start + static_cast<int>(result.Offset())), reason};
}

} // namespace orvcad

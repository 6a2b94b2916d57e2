#include "cli/FloorWords.h"

#include "cli/Command.h"
#include "cli/Message.h"
#include "drawing/DWGXFloorWordFuns.h"

#include <QJsonArray>

#include <algorithm>

namespace orvcad {

namespace {

constexpr int kHighestNumber = 999; // in both directions

bool isNumber(const QString &text)
{
    const bool signedText = text.startsWith('-') || text.startsWith('+');
    const QString digits = text.mid(signedText ? 1 : 0);
    return !digits.isEmpty() &&
           std::all_of(digits.begin(), digits.end(), [](QChar one) { return one >= '0' && one <= '9'; });
}

/** The floor that one of whose written forms is the word; 0 if there is none. */
int numberOf(const QString &word)
{
    for (int number = -kHighestNumber; number <= kHighestNumber; ++number)
        if (DWGXFloorWordFuns::toFloorNames(number).contains(word))
            return number;
    return 0;
}

int checkedNumber(const QString &text)
{
    const int number = text.toInt(); // 0 for one that does not fit
    if (DWGXFloorWordFuns::toFloorName(number).isEmpty())
        throw CommandFailure(kWrongUsage,
                             Message::tr("FLOOR: no floor has the number %1; floors go from 1 to %2 and from -1 to -%2")
                                 .arg(text)
                                 .arg(kHighestNumber));
    return number;
}

} // namespace

FloorWords floorWords(const QString &numberOrWord)
{
    FloorWords words;
    words.asked = numberOrWord;
    words.number = isNumber(numberOrWord) ? checkedNumber(numberOrWord) : numberOf(numberOrWord);
    words.name = DWGXFloorWordFuns::toFloorName(words.number);
    words.names = DWGXFloorWordFuns::toFloorNames(words.number);
    words.otherWords = DWGXFloorWordFuns::toFloorNames(numberOrWord);
    return words;
}

QString FloorWords::text() const
{
    if (number != 0)
        return Message::tr("Floor %1: %2\n%3").arg(number).arg(name, names.join('\n'));
    if (!otherWords.isEmpty())
        return Message::tr("Top floor %1\n%2").arg(asked, otherWords.join('\n'));
    return Message::tr("No floor is written \"%1\"").arg(asked);
}

QJsonObject FloorWords::toJson() const
{
    return {{"asked", asked},
            {"number", number == 0 ? QJsonValue(QJsonValue::Null) : QJsonValue(number)},
            {"name", number == 0 ? QJsonValue(QJsonValue::Null) : QJsonValue(name)},
            {"names", QJsonArray::fromStringList(names)},
            {"otherWords", QJsonArray::fromStringList(otherWords)}};
}

} // namespace orvcad

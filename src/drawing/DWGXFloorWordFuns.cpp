#include "drawing/DWGXFloorWordFuns.h"

#include <cstddef>
#include <cstdlib>

namespace {

constexpr int kHighestNumber = 999; // in both directions

constexpr char16_t kDigits[] = u"零一二三四五六七八九";
constexpr char16_t kTen = u'十';
constexpr char16_t kHundred = u'百';

using Text = const char16_t *;

/** One way of writing a floor's number: what stands before and behind it. */
struct Form
{
    Text before;
    Text behind;
};

constexpr Form kFormsAbove[] = {{u"", u""},     {u"", u"层"},   {u"第", u""},
                                {u"地上", u""}, {u"第", u"层"}, {u"地上", u"层"}};
constexpr Form kFormsBelow[] = {{u"第负", u""},   {u"负", u""},   {u"地下", u""},
                                {u"第负", u"层"}, {u"负", u"层"}, {u"地下", u"层"}};
constexpr Form kStandardForm = {u"第", u"层"};
constexpr Form kDecimalForms[] = {{u"", u"F"}, {u"", u"层"}, kStandardForm};

/** A word for a top floor and how else it is written. */
struct OtherWord
{
    Text word;
    Text other;
};

constexpr OtherWord kTopFloorWords[] = {
    {u"屋面", u"屋面层"}, {u"屋面层", u"屋面"}, {u"阁楼层", u"阁楼"}, {u"阁楼", u"阁楼层"}};

bool isFloorNumber(int number) { return number != 0 && number >= -kHighestNumber && number <= kHighestNumber; }

QString written(const Form &form, const QString &number)
{
    return QString::fromUtf16(form.before) + number + QString::fromUtf16(form.behind);
}

template <std::size_t Count> void appendForms(const Form (&forms)[Count], const QString &number, QStringList &names)
{
    for (const Form &form : forms)
        names.append(written(form, number));
}

/** The part of a numeral below a hundred behind a hundred: 零五, 一十, 二十一; nothing for 0. */
QString behindHundreds(int tens, int units)
{
    QString text;
    if (tens > 0)
        text.append(QChar(kDigits[tens])).append(QChar(kTen));
    else if (units > 0)
        text.append(QChar(kDigits[0]));
    if (units > 0)
        text.append(QChar(kDigits[units]));
    return text;
}

/** The Chinese numeral of 1 to 999. */
QString numeral(int number)
{
    const int hundreds = number / 100;
    const int tens = number / 10 % 10;
    const int units = number % 10;
    if (hundreds > 0)
        return QString(QChar(kDigits[hundreds])) + QChar(kHundred) + behindHundreds(tens, units);
    if (tens == 0)
        return QString(QChar(kDigits[units]));
    return behindHundreds(tens, units).mid(tens == 1 ? 1 : 0); // 十二, not 一十二, where no hundred stands before
}

} // namespace

QString DWGXFloorWordFuns::toFloorName(int number)
{
    return isFloorNumber(number) ? written(kStandardForm, QString::number(number)) : QString();
}

QStringList DWGXFloorWordFuns::toFloorNames(int number)
{
    QStringList names;
    if (!isFloorNumber(number))
        return names;
    const QString chinese = numeral(std::abs(number));
    if (number > 0)
        appendForms(kFormsAbove, chinese, names);
    else
        appendForms(kFormsBelow, chinese, names);
    appendForms(kDecimalForms, QString::number(number), names);
    return names;
}

QStringList DWGXFloorWordFuns::toFloorNames(const QString &word)
{
    QStringList names;
    for (const OtherWord &row : kTopFloorWords)
        if (word == QString::fromUtf16(row.word))
            names.append(QString::fromUtf16(row.other));
    return names;
}

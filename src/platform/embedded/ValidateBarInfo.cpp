#include "platform/services/ValidateBarInfo.h"

#include <QStringView>

#include <algorithm>

namespace {

bool isDigit(QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); }

/** Takes a bar text apart from its start; each step tells whether it found what it looks for. */
class BarTextReader
{
public:
    explicit BarTextReader(QStringView text) : m_rest(text) {}

    bool isAtEnd() const { return m_rest.isEmpty(); }
    bool skip(char wanted)
    {
        return skipIf([wanted](QChar c) { return c == QLatin1Char(wanted); });
    }
    bool skipGrade()
    {
        return skipIf([](QChar c) { return c.toUpper() >= QLatin1Char('A') && c.toUpper() <= QLatin1Char('G'); });
    }
    /** Digits, one of which is not zero. */
    bool skipNumber()
    {
        const QStringView digits = takeDigits();
        return std::any_of(digits.begin(), digits.end(), [](QChar c) { return c != QLatin1Char('0'); });
    }
    bool skipDiameter() { return skipNumber() && (!skip('.') || !takeDigits().isEmpty()); }
    bool isAtDigit() const { return !m_rest.isEmpty() && isDigit(m_rest.front()); }

private:
    template <typename Wanted> bool skipIf(Wanted isWanted)
    {
        if (m_rest.isEmpty() || !isWanted(m_rest.front()))
            return false;
        m_rest = m_rest.mid(1);
        return true;
    }
    QStringView takeDigits()
    {
        const auto *end = std::find_if_not(m_rest.begin(), m_rest.end(), isDigit);
        const QStringView digits = m_rest.left(end - m_rest.begin());
        m_rest = m_rest.mid(digits.size());
        return digits;
    }

    QStringView m_rest;
};

bool skipGroup(BarTextReader &reader)
{
    const bool isCounted = !reader.isAtDigit() || reader.skipNumber();
    return isCounted && reader.skipGrade() && reader.skipDiameter() && (!reader.skip('@') || reader.skipNumber()) &&
           (!reader.skip('/') || reader.skipNumber());
}

} // namespace

bool ValidateBarInfo(TBarInfoType, const QString &text)
{
    BarTextReader reader(text);
    do {
        if (!skipGroup(reader))
            return false;
    } while (reader.skip('+'));
    return reader.isAtEnd();
}

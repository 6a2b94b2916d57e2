#pragma once

#include "encoding/NumberText.h"

#include <QString>

#include <string>

/** How the text of a value becomes a property of the host. */
enum class PropType { Text = 0, Integer = 1, Double = 2 };

/** A value on its way into a property of the host. Numbers travel as text, doubles with six significant digits: meant, so
 *  a double under an integer property arrives only when its text is that of a whole number, and is 0 there otherwise. */
struct PropertyText
{
    const std::wstring &name; ///< of the property; lives longer
    PropType type;            ///< how the host is given the value
    bool flag;                ///< the host's own
    QString value;            ///< empty: nothing is written

    /** As it is. */
    static QString textOf(const QString &value) { return value; }
    /** Decimal. */
    static QString textOf(int value) { return QString::number(value); }
    /** Six significant digits. */
    static QString textOf(double value)
    {
        QString text;
        encoding::appendNumber(text, value);
        return text;
    }
};

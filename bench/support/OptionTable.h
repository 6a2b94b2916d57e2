#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <map>

namespace bench {

/** The options of a measuring program, by name: flags, and what takes a value and says whether it is understood. */
struct OptionTable
{
    std::map<QString, bool *> flags;
    std::map<QString, std::function<bool(const QString &value)>> values;
};

/** @return whether all arguments were understood; those before the first that was not are taken */
inline bool takeOptions(const QStringList &arguments, const OptionTable &table)
{
    for (int i = 0; i < arguments.size(); ++i) {
        const auto flag = table.flags.find(arguments[i]);
        const auto value = table.values.find(arguments[i]);
        if (flag != table.flags.end())
            *flag->second = true;
        else if (value == table.values.end() || ++i == arguments.size() || !value->second(arguments[i]))
            return false;
    }
    return true;
}

/** Takes a text as it is. */
inline auto textInto(QString &target)
{
    return [&target](const QString &value) {
        target = value;
        return true;
    };
}

/** Takes a number from 0 on. */
template <typename Number> auto numberInto(Number &target)
{
    return [&target](const QString &value) {
        bool isNumber = false;
        target = static_cast<Number>(value.toUInt(&isNumber));
        return isNumber;
    };
}

} // namespace bench

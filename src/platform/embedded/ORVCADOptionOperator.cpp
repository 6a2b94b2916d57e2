#include "platform/services/ORVCADOptionOperator.h"

#include "platform/services/HBXOptionNames.h"
#include "platform/services/OptionGroupReader.h"

namespace {

/** Comma, semicolon and enumeration comma, narrow and wide. */
bool isSeparator(QChar character) { return QStringLiteral(",;\uFF64\uFF0C\uFF1B\u3001").contains(character); }

} // namespace

void ORVCADOptionOperator::getOption(const QString &group, QMap<QString, QString> &options) const
{
    insertOptionGroup(m_model, group, options);
}

QStringList ORVCADOptionOperator::asStringArray(const QString &name) const
{
    QStringList parts{QString()};
    const QString value = readOptionGroup(m_model, ptnBeamSetting).value(name);
    for (const QChar character : value) {
        if (isSeparator(character))
            parts.append(QString());
        else
            parts.last().append(character);
    }
    for (QString &part : parts)
        part = part.trimmed();
    return parts;
}

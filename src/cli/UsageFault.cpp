#include "cli/UsageFault.h"

#include "cli/Message.h"

#include <CLI/CLI.hpp>

#include <QRegularExpression>

namespace orvcad {

namespace {

/** What may be said of these arguments, with places for names and values; the name of an argument stands in the first. Of
 *  two that fit, the one that stands first is meant. */
constexpr const char *kSentences[] = {
    QT_TRANSLATE_NOOP("orvcad", "A subcommand is required"),
    QT_TRANSLATE_NOOP("orvcad", "%1 is required"),
    QT_TRANSLATE_NOOP("orvcad", "%1 excludes %2"),
    QT_TRANSLATE_NOOP("orvcad", "%1: %2 not in {%3}"),
    QT_TRANSLATE_NOOP("orvcad", "%1: Value %2 not in range %3 to %4"),
    QT_TRANSLATE_NOOP("orvcad", "%1: %2 required %3 missing"),
    QT_TRANSLATE_NOOP("orvcad", "%1: At Most %2 required but received %3"),
    QT_TRANSLATE_NOOP("orvcad", "Could not convert: %1 = %2"),
};

/** Fits the sentences of that form, and takes what stands in its places. */
QRegularExpression expressionOf(const char *sentence)
{
    // "[KIND] FILE" is a name, too; "--floor behind the second project" is none.
    const QString name = QStringLiteral("((?:\\[\\S+\\] )?\\S+)");
    QString pattern = QRegularExpression::escape(QLatin1String(sentence));
    pattern.replace(QLatin1String("\\%1"), name);
    pattern.replace(QRegularExpression(QStringLiteral("\\\\%\\d")), QStringLiteral("(.*)"));
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern),
                              QRegularExpression::DotMatchesEverythingOption);
}

/** The same in the language of the user. */
QString translated(QString text)
{
    for (const char *sentence : kSentences) {
        const QRegularExpression expression = expressionOf(sentence);
        if (expression.match(text).hasMatch())
            return text.replace(expression, Message::tr(sentence).replace(u'%', u'\\'));
    }
    return text;
}

} // namespace

UsageFault::UsageFault(const CLI::App &app, const CLI::ParseError &error)
{
    const std::vector<std::string> notTaken = app.remaining(true);
    m_message = notTaken.empty()
                    ? translated(QString::fromUtf8(error.what()))
                    : Message::tr("\"%1\" is not understood here").arg(QString::fromStdString(notTaken.front()));
}

} // namespace orvcad

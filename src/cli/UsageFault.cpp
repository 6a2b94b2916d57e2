#include "cli/UsageFault.h"

#include "cli/Message.h"
#include "cli/NearestName.h"

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

/** What might stand in the place of a word that nothing took: the options there, or the verbs. */
QStringList namesFor(const QString &word, const CLI::App &program)
{
    const CLI::App *verb = &program;
    while (!verb->get_subcommands().empty())
        verb = verb->get_subcommands().front();
    QStringList names;
    if (!word.startsWith(u'-')) {
        for (const CLI::App *below : verb->get_subcommands([](const CLI::App *) { return true; }))
            if (!below->get_group().empty()) // shown in the help
                names.append(QString::fromStdString(below->get_name()));
        return names;
    }
    for (; verb; verb = verb->get_parent())
        for (const CLI::Option *option : verb->get_options())
            for (const std::string &name : option->get_lnames())
                names.append(QStringLiteral("--") + QString::fromStdString(name));
    return names;
}

QString notUnderstood(const std::string &argument, const CLI::App &program)
{
    const QString word = QString::fromStdString(argument);
    const QString meant = nearestName(word.section(u'=', 0, 0), namesFor(word, program));
    return meant.isEmpty() ? Message::tr("\"%1\" is not understood here").arg(word)
                           : Message::tr("\"%1\" is not understood here; \"%2\" may be meant").arg(word, meant);
}

} // namespace

UsageFault::UsageFault(const CLI::App &app, const CLI::ParseError &error)
{
    const std::vector<std::string> notTaken = app.remaining(true);
    m_message = notTaken.empty() ? translated(QString::fromUtf8(error.what())) : notUnderstood(notTaken.front(), app);
}

} // namespace orvcad

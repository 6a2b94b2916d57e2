#include "cli/Terminal.h"

#include "cli/Message.h"

#include <QRegularExpression>

#include <unistd.h>

namespace orvcad {

namespace {

/** A line, of which the words before its place are painted, and the code of their colour. */
struct Paint
{
    const char *line;
    const char *code;
};
constexpr Paint kPaints[] = {{"orvcad: %1", "31"}, // is so in every language
                             {QT_TRANSLATE_NOOP("orvcad", "left out: %1"), "33"},
                             {QT_TRANSLATE_NOOP("orvcad", "not carried: %1"), "33"}};

} // namespace

bool isTerminal(int stream)
{
    const QByteArray type = qgetenv("TERM");
    return isatty(stream) == 1 && !type.isEmpty() && type != "dumb";
}

bool showsColours(int stream) { return isTerminal(stream) && qEnvironmentVariableIsEmpty("NO_COLOR"); }

QString painted(const QString &text, int stream)
{
    if (!showsColours(stream))
        return text;
    QString colourful = text;
    for (const Paint &paint : kPaints) {
        const QString words = Message::tr(paint.line).section(QStringLiteral("%1"), 0, 0).trimmed();
        const QRegularExpression begin(QStringLiteral("^( *)(%1)").arg(QRegularExpression::escape(words)),
                                       QRegularExpression::MultilineOption);
        colourful.replace(begin, QStringLiteral("\\1\033[%1m\\2\033[0m").arg(QLatin1String(paint.code)));
    }
    return colourful;
}

} // namespace orvcad

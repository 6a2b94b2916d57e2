#include "cli/Terminal.h"

#include <QRegularExpression>

#include <unistd.h>

namespace orvcad {

namespace {

/** What stands at the beginning of a line, and the code of its colour. */
struct Paint
{
    const char *words;
    const char *code;
};
constexpr Paint kPaints[] = {{"orvcad:", "31"}, {"left out:", "33"}, {"not carried:", "33"}};

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
        const QRegularExpression words(QStringLiteral("^( *)(%1)").arg(QLatin1String(paint.words)),
                                       QRegularExpression::MultilineOption);
        colourful.replace(words, QStringLiteral("\\1\033[%1m\\2\033[0m").arg(QLatin1String(paint.code)));
    }
    return colourful;
}

} // namespace orvcad

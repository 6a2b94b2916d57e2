#include "cli/PlanPicture.h"

#include "cli/Command.h"
#include "cli/Message.h"

#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

namespace orvcad {

namespace {

const QString kPainter = QStringLiteral("rsvg-convert");
constexpr int kForever = -1;

[[noreturn]] void fail(const QString &reason) { throw CommandFailure(kBadInput, kPainter, {}, reason); }

} // namespace

QByteArray pngOf(const QByteArray &svg, int width)
{
    const QString program = QStandardPaths::findExecutable(kPainter);
    if (program.isEmpty())
        fail(Message::tr("is not there, and it makes PNG pictures (package librsvg2-bin)"));
    QProcess painter;
    painter.start(program, {QStringLiteral("--format=png"), QStringLiteral("--width=%1").arg(width),
                            QStringLiteral("--keep-aspect-ratio"), QStringLiteral("--background-color=white")});
    painter.write(svg);
    painter.closeWriteChannel();
    painter.waitForFinished(kForever);
    if (painter.error() == QProcess::FailedToStart || painter.exitStatus() != QProcess::NormalExit ||
        painter.exitCode() != 0)
        fail(Message::tr("has failed: %1")
                 .arg(QString::fromLocal8Bit(painter.readAllStandardError() + ' ' + painter.errorString().toLocal8Bit())
                          .trimmed()));
    return painter.readAllStandardOutput();
}

} // namespace orvcad

#include "cli/Progress.h"

#include "cli/Terminal.h"

#include <cstdio>
#include <utility>

#include <unistd.h>

namespace orvcad {

namespace {

constexpr qint64 kBeforeFirst = 1000; // ms
constexpr qint64 kBetween = 100;      // ms
constexpr int kWidth = 30;            // of the bar

bool s_isHidden = false;

void write(const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
    std::fflush(stderr);
}

} // namespace

Progress::Progress(QString what, int total) : m_what(std::move(what)), m_total(total) { m_timer.start(); }

Progress::~Progress()
{
    if (m_isDrawn)
        write("\r\033[K");
}

void Progress::hide() { s_isHidden = true; }

QString Progress::bar(const QString &what, int done, int total)
{
    const int full = total > 0 ? static_cast<int>(qint64(kWidth) * done / total) : 0;
    return QStringLiteral("[%1] %2/%3 %4").arg(QString(full, '#').leftJustified(kWidth)).arg(done).arg(total).arg(what);
}

void Progress::step()
{
    ++m_done;
    const qint64 now = m_timer.elapsed();
    if (now < kBeforeFirst || now - m_drawnAt < kBetween)
        return;
    m_drawnAt = now;
    if (!s_isHidden && isTerminal(STDERR_FILENO))
        draw();
}

void Progress::draw()
{
    m_isDrawn = true;
    write('\r' + bar(m_what, m_done, m_total).toUtf8() + "\033[K");
}

} // namespace orvcad

#include "cli/Command.h"

#include <QStringList>

namespace orvcad {

namespace {
QString joined(const QString &file, const QString &place, const QString &reason)
{
    QStringList parts{file, place, reason};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(": "));
}

/** A document may have keys and texts of any length, which its reader then tells. */
QString cut(const QString &text)
{
    constexpr int kMostLetters = 2000;
    return text.size() > kMostLetters ? text.left(kMostLetters) + QChar(0x2026) : text;
}
} // namespace

CommandFailure::CommandFailure(ExitCode code, const QString &file, const QString &place, const QString &reason)
    : std::runtime_error(joined(file, cut(place), cut(reason)).toStdString()), m_code(code), m_file(file),
      m_place(cut(place)), m_reason(cut(reason))
{}

QJsonObject CommandFailure::toJson() const
{
    QJsonObject error{{"message", message()}};
    if (!m_file.isEmpty())
        error["file"] = m_file;
    if (!m_place.isEmpty())
        error["place"] = m_place;
    if (!m_reason.isEmpty())
        error["reason"] = m_reason;
    return {{"error", error}, {"exitCode", m_code}};
}

} // namespace orvcad

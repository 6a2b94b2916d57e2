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
} // namespace

CommandFailure::CommandFailure(ExitCode code, const QString &file, const QString &place, const QString &reason)
    : std::runtime_error(joined(file, place, reason).toStdString()), m_code(code), m_file(file), m_place(place),
      m_reason(reason)
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

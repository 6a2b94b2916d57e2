#include "cli/Comparison.h"

#include "cli/Message.h"

#include <QJsonArray>

namespace orvcad {

QJsonObject Comparison::toJson() const
{
    return {{"compared", compared}, {"deviations", QJsonArray::fromStringList(deviations)}};
}

QString Comparison::textOf(const QString &finding) const
{
    const QStringList lines{Message::tr("Compared with the original: %1").arg(finding)};
    return (lines + deviations).join(QStringLiteral("\n  "));
}

} // namespace orvcad

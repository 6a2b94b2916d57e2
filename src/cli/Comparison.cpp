#include "cli/Comparison.h"

#include <QJsonArray>

namespace orvcad {

QJsonObject Comparison::toJson() const
{
    return {{"compared", compared}, {"deviations", QJsonArray::fromStringList(deviations)}};
}

QString Comparison::textOf(const QString &finding) const
{
    const QStringList lines{QStringLiteral("Compared with the original: ") + finding};
    return (lines + deviations).join(QStringLiteral("\n  "));
}

} // namespace orvcad

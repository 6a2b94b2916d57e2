#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace orvcad {

/** How a part of one building differs from the same part of another one. */
struct Comparison
{
    int compared = 0;       ///< members of the first building
    QStringList deviations; ///< a line for each

    bool isSame() const { return deviations.isEmpty(); }
    /** "compared" and "deviations". */
    QJsonObject toJson() const;

protected:
    /** What was found, in words, and the deviations below it. */
    QString textOf(const QString &finding) const;
};

} // namespace orvcad

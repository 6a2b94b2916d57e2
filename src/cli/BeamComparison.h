#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace hbx::embedded {
class HBXProject;
}

namespace orvcad {

/** How the beams of a floor differ between two projects. */
struct BeamComparison
{
    int compared = 0;       ///< segments of the first project
    QStringList deviations; ///< beams whose part of the payload is another one

    bool isSame() const { return deviations.isEmpty(); }
    QString text() const;
    QJsonObject toJson() const;
};

/** The floor is named as --floor names it, in the only region of both projects. */
BeamComparison compareBeams(hbx::embedded::HBXProject &expected, hbx::embedded::HBXProject &found,
                            const QString &floor);

} // namespace orvcad

#pragma once

#include "cli/WallKind.h"
#include "platform/embedded/HBXProject.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace orvcad {

/** How the walls of a kind differ between two projects, to the six digits of their text form. */
struct WallComparison
{
    QString kind;
    int compared = 0;       ///< pieces of the first project
    QStringList deviations; ///< elements whose part of the reply is another one, but for ids

    bool isSame() const { return deviations.isEmpty(); }
    QString text() const;
    QJsonObject toJson() const;
};

/** The floor is named as --floor names it, in the only region of both projects; all floors where it is empty. */
WallComparison compareWalls(hbx::embedded::HBXProject &expected, hbx::embedded::HBXProject &found, const WallKind &kind,
                            const QString &floor);

} // namespace orvcad

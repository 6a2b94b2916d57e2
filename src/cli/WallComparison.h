#pragma once

#include "cli/Comparison.h"

namespace hbx::embedded {
class HBXProject;
}

namespace orvcad {

struct WallKind;

/** How the walls of a kind differ between two projects, to the six digits of their text form: elements whose part of the
 *  reply is another one, but for ids. Their pieces are what is counted. */
struct WallComparison : Comparison
{
    QString kind;  ///< word of the kind
    QString walls; ///< "brick walls", as people call them

    QString text() const;
    /** "kind", too. */
    QJsonObject toJson() const;
};

/** The floor is named as --floor names it, in the only region of both projects; all floors where it is empty. */
WallComparison compareWalls(const hbx::embedded::HBXProject &expected, const hbx::embedded::HBXProject &found,
                            const WallKind &kind, const QString &floor);

} // namespace orvcad

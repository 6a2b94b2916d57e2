#pragma once

#include "cli/Comparison.h"

namespace hbx::embedded {
class HBXProject;
}

namespace orvcad {

/** How the beams of a floor differ between two projects: beams whose part of the payload is another one. Their segments are
 *  what is counted. */
struct BeamComparison : Comparison
{
    QString text() const;
};

/** The floor is named as --floor names it, in the only region of both projects. */
BeamComparison compareBeams(hbx::embedded::HBXProject &expected, hbx::embedded::HBXProject &found,
                            const QString &floor);

} // namespace orvcad

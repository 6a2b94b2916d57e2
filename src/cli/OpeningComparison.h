#pragma once

#include "cli/Comparison.h"

namespace hbx::embedded {
class HBXProject;
}

namespace orvcad {

/** How the doors and windows of two projects differ: placed openings that stand in another wall, or are missing. */
struct OpeningComparison : Comparison
{
    bool sameDocument = false; ///< the reply documents are the same array but for ids

    bool isSame() const { return sameDocument && Comparison::isSame(); }
    QString text() const;
    /** "sameDocument", too. */
    QJsonObject toJson() const;
};

OpeningComparison compareOpenings(const hbx::embedded::HBXProject &expected, const hbx::embedded::HBXProject &found);

} // namespace orvcad

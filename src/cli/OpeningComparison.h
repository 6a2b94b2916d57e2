#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace hbx::embedded {
class HBXProject;
}

namespace orvcad {

/** How the doors and windows of two projects differ. */
struct OpeningComparison
{
    int compared = 0;          ///< placed openings of the first project
    bool sameDocument = false; ///< the reply documents are the same array but for ids
    QStringList deviations;    ///< openings that stand in another wall, or are missing

    bool isSame() const { return sameDocument && deviations.isEmpty(); }
    QString text() const;
    QJsonObject toJson() const;
};

OpeningComparison compareOpenings(const hbx::embedded::HBXProject &expected, const hbx::embedded::HBXProject &found);

} // namespace orvcad

#pragma once

#include "cli/TourStep.h"
#include "cli/WallComparison.h"
#include "cli/Walls.h"

#include <QJsonObject>
#include <QString>

namespace hbx::embedded {
class HBXProject;
}

namespace orvcad {

/** The part of the tour in which the walls of a building go out as a reply and into a copy that has lost them. */
class WallTour
{
public:
    struct Stop
    {
        const char *kind; ///< word of --kind
        QString floor;    ///< as --floor names it
        QString original; ///< file names in the directory of the tour
        QString restored;
        QString reply;
    };

    WallTour(QString directory, Stop stop);

    /** Writes the reply of the project's walls into its file. */
    TourStep write(hbx::embedded::HBXProject &project);
    /** Removes the walls.
     *  @return what to say of it */
    QString strip(hbx::embedded::HBXProject &project) const;
    /** Writes the reply into the project and saves it. */
    TourStep apply(hbx::embedded::HBXProject &project);
    /** Compares the saved projects.
     *  @return what to say of it */
    QString compare();

    /** Whether no wall was left out or came back otherwise. */
    bool isSame() const { return m_outcome.leftOut.empty() && m_comparison.isSame(); }
    QJsonObject toJson() const;

private:
    QString path(const QString &name) const;

    QString m_directory;
    Stop m_stop;
    const WallKind &m_kind;
    WallOutcome m_outcome;
    WallComparison m_comparison;
};

} // namespace orvcad

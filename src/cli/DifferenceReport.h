#pragma once

#include "cli/ProjectDifference.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

namespace orvcad {

/** How a difference is told to people and to machines. */
class DifferenceReport
{
public:
    /** The difference must outlive the report. */
    explicit DifferenceReport(const ProjectDifference &difference) : m_difference(difference) {}

    /** "The same: 118 placed objects compared", or how many floors, elements and objects differ. */
    QString headline() const;
    /** A line for each thing that differs, below its region, floor and element; empty for equal projects. */
    QString listing() const;
    /** As docs/cli.md tells it. */
    QJsonObject json() const;

    /** "added", "gone", "changed" or "same". */
    static QString wordFor(ProjectDifference::State state);
    /** {"place", "before", "after"} of each; a value that there was not is left out. */
    static QJsonArray changesToJson(const ProjectDifference::Changes &changes);

private:
    const ProjectDifference &m_difference;
};

} // namespace orvcad

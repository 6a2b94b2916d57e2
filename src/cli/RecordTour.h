#pragma once

#include "cli/TourStep.h"

#include <QString>

#include <utility>

namespace orvcad {

/** The part of the tour that reads records of a building's drawings, examples that the program carries. */
class RecordTour
{
public:
    explicit RecordTour(QString directory) : m_directory(std::move(directory)) {}

    /** Puts the drawing set of the hall into the directory and tells what it holds. */
    TourStep showDrawings() const;
    /** The same for the columns found on a drawing of it, which are written again, too. */
    TourStep checkColumns();

    /** Whether nothing was found in the columns, and they survived being written again. */
    bool isSame() const { return m_isSame; }

private:
    QString placed(const QString &name) const;

    QString m_directory;
    bool m_isSame = true;
};

} // namespace orvcad

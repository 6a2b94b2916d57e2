#pragma once

#include <QString>
#include <QStringList>

#include <memory>

class IHBXRegion;
class ORVCADFloors;

namespace orvcad {

/** A floors document with what its reader passed over. */
struct FloorsDocument
{
    std::unique_ptr<ORVCADFloors> floors;
    QStringList leftOut; ///< place and reason of each floor that was skipped, and of each value that is read as another
};

/** The floors of a region of the host, with its name as the area's, in the host's order. */
std::unique_ptr<ORVCADFloors> floorsOfRegion(IHBXRegion &region);
/** Throws CommandFailure with file, place and reason for a file that is no floors document. */
FloorsDocument readFloorsDocument(const QString &path);

} // namespace orvcad

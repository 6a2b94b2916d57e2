#pragma once

#include "platform/embedded/DatabaseRows.h"
#include "platform/embedded/HBXProjectRecords.h"
#include "platform/embedded/HBXPropertyCatalogue.h"

#include <string>

namespace hbx::embedded {

/** Reads the current row of a property table, whose columns are owner, position, name and value, into the properties of
 *  an object. Throws DatabaseRefusal for a property that the type lacks and for a value of another kind. */
void readPropertyRow(const DatabaseRows &rows, const TypeProperties &type, bool forDrawObject,
                     PropertyRecords &properties);

/** Text of a point as it stands in the file. */
std::string pointText(const vks::CVec2<double> &point);

} // namespace hbx::embedded

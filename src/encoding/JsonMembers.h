#pragma once

#include "ORVCADModelDataExport.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <utility>
#include <vector>

namespace encoding {

/** A member of an object: key and value. */
using JsonMember = std::pair<QString, QJsonValue>;

/** An object of many members in any order; of several with one key the last one counts. QJsonObject keeps its members
 *  sorted, so that inserting one before others costs as much as there are behind it. */
ORVCADMODELDATA_EXPORT QJsonObject objectOf(std::vector<JsonMember> members);

} // namespace encoding

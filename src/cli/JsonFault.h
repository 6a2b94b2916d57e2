#pragma once

#include <QJsonArray>
#include <QString>

#include <vector>

namespace orvcad {

/** What is wrong in a document, and where. */
struct JsonFault
{
    QString place; ///< key path, such as FloorSDCData[2].Region.ID; empty for the document itself
    QString reason;
};

/** Array of "place" and "reason", as summaries hold faults. */
QJsonArray faultsToJson(const std::vector<JsonFault> &faults);

} // namespace orvcad

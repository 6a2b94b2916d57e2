#pragma once

#include <QJsonArray>
#include <QString>
#include <QStringList>

#include <cstddef>
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
/** A line for each, with place and reason behind what they are about: a file, a kind of fault. */
QStringList faultLines(const QString &about, const std::vector<JsonFault> &faults);

/** Whether a document is the same when it is written again, in words.
 *  @param differences  places at which it is not */
QString writtenAgainText(std::size_t differences);

} // namespace orvcad

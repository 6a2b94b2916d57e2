#pragma once

#include "cli/JsonShape.h"

#include <QJsonObject>
#include <QString>

namespace orvcad {

/** The form of the drawing-set file, docs/formats/drawing-set.md: all eight stages, those that have not run empty or
 *  null. Members of records that the format does not know are passed over. */
std::optional<JsonFault> drawingSetFault(const QJsonObject &set);
/** Members of a sound file that are passed over, with their places. */
std::vector<JsonFault> unreadInDrawingSet(const QJsonObject &set);
/** Throws CommandFailure with file, place and reason for a file that is no drawing-set file. */
QJsonObject readDrawingSet(const QString &path);

} // namespace orvcad

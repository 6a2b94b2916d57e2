#pragma once

#include "cli/CheckFinding.h"

#include <QByteArray>

#include <vector>

namespace orvcad {

/** A finding of a reader, which tells places as messages do. */
CheckFinding findingOfReader(const JsonTree &document, CheckFinding::Weight weight, const QString &place,
                             const QString &reason);

// What the readers of formats say of documents that are sound by their schema: what no schema can tell.

/** Names that stand twice, references that lead nowhere: the first refusal of a building file. */
std::vector<CheckFinding> readBuilding(const JsonTree &document, const QByteArray &text);
/** Names and ids that stand twice: the first refusal of a drawing. */
std::vector<CheckFinding> readDrawingText(const JsonTree &document, const QByteArray &text);
/** Values of a column document that its reader takes as others, or leaves out. */
std::vector<CheckFinding> readColumns(const JsonTree &document, const QByteArray &text);

} // namespace orvcad

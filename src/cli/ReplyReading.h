#pragma once

#include "cli/CheckFinding.h"
#include "cli/FaultyValues.h"

#include <QByteArray>

#include <vector>

namespace orvcad {

// What the verbs that apply replies would leave out of them, as far as that does not depend on the project: members that
// stand twice or in the wrong order, values that their records do not take. The regions, the floors and the elements that a
// reply names and does not make are taken for granted.

std::vector<CheckFinding> readOpenings(const JsonTree &document, const QByteArray &text, const FaultyValues &faults);
/** Of both kinds. */
std::vector<CheckFinding> readWalls(const JsonTree &document, const QByteArray &text, const FaultyValues &faults);
/** Of a model document, alone or in an IO document. */
std::vector<CheckFinding> readSlabs(const JsonTree &document, const QByteArray &text, const FaultyValues &faults);
std::vector<CheckFinding> readBeams(const JsonTree &document, const QByteArray &text, const FaultyValues &faults);
std::vector<CheckFinding> readSeats(const JsonTree &document, const QByteArray &text, const FaultyValues &faults);

} // namespace orvcad

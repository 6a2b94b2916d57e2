#pragma once

#include "cli/JsonSchema.h"
#include "cli/JsonTree.h"

namespace orvcad {

/** A value as messages name it: its kind and, where it is short, the value: "the text \"3,3\"", "the number 5", "a list". */
QString wordsFor(const JsonTree &document, JsonTree::Index value);
/** The value itself, cut where it is long; empty for lists and objects. */
QString shortText(const JsonTree &document, JsonTree::Index value);
/** Types that a schema allows: "a text or null". */
QString wordsForTypes(unsigned types);
/** Values that a schema allows: "\"face\", \"line\" or \"grid\"". */
QString wordsForValues(const std::vector<QJsonValue> &values);

} // namespace orvcad

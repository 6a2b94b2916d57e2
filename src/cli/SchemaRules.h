#pragma once

#include "cli/CheckFinding.h"
#include "cli/JsonSchema.h"

#include <optional>

namespace orvcad {

/** A rule of a schema that a value breaks, in words that stand behind its place. */
struct BrokenRule
{
    CheckFinding::Rule rule;
    QString is;
    QString expected; ///< empty where the words in front say all
    QString meant;    ///< nearest legal value; empty without one
};

enum class InWords { No, Yes };

/** The first rule of a schema that a value breaks by itself: what it may be, its range, its length, the form of its text,
 *  the number of its entries. Its type is not looked at, nor what stands in it.
 *  @param words  without them geometry is not read, and nothing is told but the rule */
std::optional<BrokenRule> brokenRule(const JsonTree &document, JsonTree::Index value, const JsonSchema &schema,
                                     InWords words);

/** Whether a value is of one of the types; a number without a fraction is an integer, however it is written. */
bool isOfType(const JsonTree &document, JsonTree::Index value, unsigned types);

} // namespace orvcad

#pragma once

#include "cli/CheckFinding.h"
#include "cli/JsonSchema.h"

#include <vector>

namespace orvcad {

struct SchemaFindings
{
    std::vector<CheckFinding> findings;
    std::vector<DefaultedKey> defaulted;
};

/** What is wrong in a document by its schema, each fault told once:
 *    - a key that is misspelt is told where it stands, not once more as missing,
 *    - of several forms that a value may have, the one that it is nearest to counts,
 *    - a case that the other keys of an object contradict ("kind") is told at its key alone,
 *    - a value of another type is told, and nothing that follows from it.
 *  Further there are keys that nothing reads, where the schema allows them, and keys that are missing and have a default.
 *  The cost rises with the length of the document; how deep it nests does not matter, since schemas do not. */
SchemaFindings schemaFindings(const JsonTree &document, const JsonSchema &schema);

} // namespace orvcad

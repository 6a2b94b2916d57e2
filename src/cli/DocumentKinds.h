#pragma once

#include "cli/CheckFinding.h"
#include "cli/FaultyValues.h"
#include "cli/JsonSchema.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

namespace orvcad {

/** A kind of document that is checked. */
struct DocumentKind
{
    /** What the reader of the format says of a document that is sound by its schema. */
    using Reading = std::vector<CheckFinding> (*)(const JsonTree &document, const QByteArray &text);
    /** What it says of the members that are, whatever the others look like. The text has each member once. */
    using MemberReading = std::vector<CheckFinding> (*)(const JsonTree &document, const QByteArray &text,
                                                        const FaultyValues &faults);

    const char *name;  ///< of its schema, too: "beams" is beams.schema.json
    const char *title; ///< for people: "beams for recognition"
    Reading reading = nullptr;
    MemberReading memberReading = nullptr; ///< of a format whose reader leaves single members out

    const JsonSchema &schema() const;
};

const std::vector<DocumentKind> &documentKinds();
/** Null for a name that none has. */
const DocumentKind *documentKind(const QString &name);
QStringList documentKindNames();

/** The kind that a document is by its keys, of a list by those of its first entry, or is nearest to; null where none has
 *  any of them. */
const DocumentKind *kindOfDocument(const JsonTree &document);

} // namespace orvcad

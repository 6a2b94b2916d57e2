#pragma once

#include <QString>

namespace orvcad {

/** Why a text is not what a schema's "format" names, in words that stand behind its place; empty when it is, or when the
 *  format is not known here:
 *    - "curve", "outline": the short form, docs/formats/geometry-text.md
 *    - "wkt-curve", "wkt-outline": well-known text
 *  A text that is empty has no geometry, which no format minds. */
QString whyNotFormat(const QString &format, const QString &text);

} // namespace orvcad

#pragma once

#include "cli/Command.h"

#include <QByteArray>

namespace orvcad {

struct Arguments;

/** Ends a command that makes a document: writes it where --output says, and completes the summary by "output". */
Summary writeDocument(const Arguments &arguments, const QByteArray &document, Summary summary);
/** The same for a JSON document, indented. */
Summary writeDocument(const Arguments &arguments, const QJsonObject &document, Summary summary);

} // namespace orvcad

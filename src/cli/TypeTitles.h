#pragma once

#include <QString>

namespace orvcad {

/** English title of an element type, for documents and pictures: "brick wall"; "type" for an unknown one. */
QString typeTitle(qint64 type);
/** The same in the language of the user, for messages. */
QString shownTypeTitle(qint64 type);

} // namespace orvcad

#pragma once

#include <QJsonValue>
#include <QString>

namespace orvcad {

/** A value of a document as people are told it, on one line and cut where it is long: 120, "C30", [0,1]; "nothing" for one
 *  that was not there. */
QString shownValue(const QJsonValue &value);

} // namespace orvcad

#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QMap>
#include <QString>

namespace orvcad {

/** A text as HTML shows it, in an element or in an attribute between double quotes. */
QByteArray htmlText(const QString &text);
/** A document as it may stand in a script element: nothing in it ends that element. */
QByteArray scriptJson(const QJsonObject &json);
/** What a Content-Security-Policy calls a script or style sheet that stands in the page: 'sha256-…'. */
QByteArray contentHash(const QByteArray &content);

/** A template with each {{name}} replaced; what takes a place is not looked at again. A name without a value is a mistake
 *  of the program and is left as it stands. */
QByteArray filled(const QByteArray &page, const QMap<QByteArray, QByteArray> &values);

} // namespace orvcad

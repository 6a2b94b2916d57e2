#pragma once

#include <QString>

namespace orvcad {

/** A number and its thing: "1 door", "2 doors".
 *  @param singular  a word that takes an s in English, in the language of the user */
QString counted(int number, const QString &singular);
/** The same in English, for documents and pictures. */
QString countedInEnglish(int number, const QString &singular);

} // namespace orvcad

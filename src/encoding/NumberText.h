#pragma once

#include "ORVCADModelDataExport.h"

#include <QString>
#include <QStringView>

/** Numbers in text, as QString writes and reads them, in a fraction of the time. */
namespace encoding {

/** Longest text that writeNumber gives: "-1.23457e+308". */
constexpr int kLongestNumberText = 13;

/** Writes a number with six significant digits, as QString::arg(value, 0, 'g', -1, ' ') does: ties are rounded away
 *  from zero, trailing zeros left out, an exponent has two digits at least and stands from 1e+06 and up to 1e-05;
 *  -0.0 gives "0", and what is not finite "inf", "-inf" and "nan". The decimal point is a period in every locale.
 *  @param out  place for kLongestNumberText characters; no zero byte is added
 *  @return where the text ends */
ORVCADMODELDATA_EXPORT char *writeNumber(char *out, double value);

/** Appends what writeNumber gives. */
ORVCADMODELDATA_EXPORT void appendNumber(QString &text, double value);

/** Reads a number as QString::toDouble does, with the same result and the same verdict for every text: white space
 *  around and a leading plus pass; hexadecimal, group separators, trailing characters and overflow do not.
 *  @param ok  set to whether the text is a number; null is allowed */
ORVCADMODELDATA_EXPORT double readNumber(QStringView text, bool *ok);

/** Appends an integer in plain base 10. */
ORVCADMODELDATA_EXPORT void appendInteger(QString &text, qint64 value);

/** Reads an integer of base 10 as QString::toInt and QString::toLongLong do; 0 for what is none or does not fit. White
 *  space around and a leading plus pass. */
ORVCADMODELDATA_EXPORT int readInt(QStringView text);
/** The same for 64 bits. */
ORVCADMODELDATA_EXPORT qint64 readLongLong(QStringView text);

} // namespace encoding

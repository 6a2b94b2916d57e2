#pragma once

#include "ORVCADModelDataExport.h"

#include <QByteArray>
#include <QString>
#include <QStringView>

/** What is done to XML before QDomDocument gets it: its parser expands entities without limit and crashes on deeply
 *  nested elements. */
namespace encoding {

/** Elements within one another that are let through; the root element is the first. */
constexpr int kMostXmlLevels = 256;

/** False for a document type declaration (whatever begins with "<!" and is neither comment nor CDATA section) and for
 *  more than kMostXmlLevels levels. Says nothing else of the text: malformed text is for the parser to refuse. */
ORVCADMODELDATA_EXPORT bool isSafeXml(QStringView text);

/** The text that QDomDocument::setContent makes of bytes: by byte order mark, else by the encoding that they declare,
 *  else UTF-8. */
ORVCADMODELDATA_EXPORT QString decodedXml(const QByteArray &bytes);

} // namespace encoding

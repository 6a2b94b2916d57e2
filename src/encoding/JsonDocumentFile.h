#pragma once

#include "ORVCADModelDataExport.h"

#include <QJsonDocument>
#include <QString>
#include <QVector>

/** Reads a JSON file. False, with the document as it was, when the file is missing, cannot be opened or is empty;
 *  false, with a null document, when it is no JSON. */
ORVCADMODELDATA_EXPORT bool loadJsonDocumentFromFile(const QString &path, QJsonDocument &document);

/** Writes a document, indented. When the file cannot be opened, the result is false and the log gets the warning
 *  "Couldn't open save file."; whether the bytes arrive is not looked at. */
ORVCADMODELDATA_EXPORT bool saveJsonDocumentToFile(const QString &path, const QJsonDocument &document);

/** Ids of the drawing objects of a layer, from a layer file: an object that holds, under the part of the file's path
 *  between its last "_" and ".json", an array of layers with "LayerName" and "EdoIDList", a list of objects with
 *  "EdoID". A layer name that is not in the file gives the ids of the last layer. An id that is no 32-bit integer is
 *  -1.
 *  @param message  set on failure: what is wrong, or the parser's own text
 *  @param ids      replaced on success, else left alone
 *  @return 0 on success, -1 on failure */
ORVCADMODELDATA_EXPORT int readLayerEdoIds(const QString &path, const QString &layerName, QString &message,
                                           QVector<int> &ids);

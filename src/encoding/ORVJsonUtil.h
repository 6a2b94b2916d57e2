#pragma once

#include "ORVCADModelDataExport.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

/** Moves a JSON object between a file, a text and memory. Failure is a false result, without a reason. */
class ORVCADMODELDATA_EXPORT ORVJsonUtil
{
public:
    /** Reads a file. False when it cannot be opened or is no JSON, and the object stays as it was then. A file whose
     *  top level is an array gives an empty object and true. */
    static bool loadFromFile(QJsonObject &object, const QString &path);
    /** The same from a text. */
    static bool loadFromJsonString(QJsonObject &object, const QString &text);
    /** Writes the object, indented, in place of whatever the file held. False only when the file cannot be opened:
     *  whether the bytes arrive is not looked at. */
    static bool saveToFile(const QJsonObject &object, const QString &path);

    /** Walks down the path from the top object and gives the text under the key where the walk ends; empty when there
     *  is no such key, its value is no text, or the JSON is bad. A path that breaks is no failure: the walk stops
     *  there, and the key is looked up in the last object that it reached. A path element whose value is no object
     *  leads into an empty one. */
    static QString parseJsonByPath(const QString &json, const QStringList &path, const QString &key);
};

#pragma once

#include "ORVCADModelDataExport.h"

#include <QJsonObject>
#include <QString>

/** Where the classification of one drawing's layers of one element type lies. */
class ORVCADMODELDATA_EXPORT ORVCADLayerClassifyItem
{
public:
    /** @param elementType  number of the host's element type */
    ORVCADLayerClassifyItem(const QString &drawingName, int elementType);

    /** Of the drawing whose layers are classified. */
    const QString &getDrawingName() const { return m_drawingName; }
    /** Number of the host's element type. */
    int getElementType() const { return m_elementType; }
    /** Path of the JSON file that holds the classification. */
    const QString &getClassifiedJsonFilePath() const { return m_classifiedJsonFilePath; }
    /** Nothing looks whether there is such a file. */
    void setClassifiedJsonFilePath(const QString &path) { m_classifiedJsonFilePath = path; }

    /** Drawing name, number of the type, path. */
    QJsonObject toJson() const;
    /** A new item, which belongs to the caller; null when a key is missing. A value of another type reads as 0 or
     *  empty. */
    static ORVCADLayerClassifyItem *fromJson(const QJsonObject &json);

private:
    struct Fields; // the one list, in the source

    QString m_drawingName;
    int m_elementType;
    QString m_classifiedJsonFilePath;
};

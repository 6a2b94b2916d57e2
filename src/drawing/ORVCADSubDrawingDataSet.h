#pragma once

#include "ORVCADModelDataExport.h"
#include "drawing/ORVCADSubDrawingInfo.h"

#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QMultiHash>
#include <QString>
#include <QStringList>

/** The parts into which drawings were split, by parent drawing. Copying copies.
 *  Parents are in no order; of one parent, the part added last comes first. Format: docs/formats/drawing-set.md. */
class ORVCADMODELDATA_EXPORT ORVCADSubDrawingDataSet
{
public:
    /** Parts of all parents together. */
    int getCount() const { return m_count; }
    /** Folder in which the parts' files stand. */
    const QString &getSavePath() const { return m_savePath; }
    /** Nothing looks whether there is such a folder. */
    void setSavePath(const QString &path) { m_savePath = path; }

    /** Adds a part, unless the parent has one that is the same in all but extent.
     *  @param parent  path of the parent drawing's file */
    void addSubDrawing(const QString &parent, const ORVCADSubDrawingInfo &info);

    /** The parts of all parents, parent by parent. */
    QList<ORVCADSubDrawingInfo> getAllSubDrawingInfos() const;
    /** Their drawing paths: complete ones, despite the name. */
    QStringList getAllSubDrawingNames() const;
    /** Path of the first of all parts whose file has that name without folder and last ending; empty if there is none
     *  and for an empty name. Only the first search after a part was added looks through all parts. */
    QString getSubDrawingCompletePath(const QString &name) const;

    /** Save path, and per parent its name and those of its parts, without folder and last ending. */
    QJsonObject toJson() const;

private:
    const QHash<QString, QString> &pathsByName() const;

    int m_count = 0;
    QString m_savePath;
    QMultiHash<QString, ORVCADSubDrawingInfo> m_subDrawings;
    mutable QHash<QString, QString> m_pathsByName; ///< made when one is sought; empty while the parts change
};

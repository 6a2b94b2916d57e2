#pragma once

#include "ORVCADModelDataExport.h"
#include "column/ORVCADIdentifyColumnResultData.h"

#include <QJsonObject>
#include <QString>

#include <memory>
#include <vector>

/** What the column service replies for one drawing on one floor. Schema: schemas/columns.schema.json.
 *  A copy shares the records. */
class ORVCADMODELDATA_EXPORT ORVCADAIIdentifyColumnResultModel
{
public:
    /** A null record and one without a column info are left out. */
    QJsonObject toJson() const;
    /** Fills the target; this object plays no part, and null does nothing. Never fails: a missing or mistyped
     *  text is empty. Each entry of "resultData" becomes a new record behind those that are there. */
    void fromJson(ORVCADAIIdentifyColumnResultModel *target, const QJsonObject &json) const;

    QString drawing;                                                         ///< name of the drawing
    QString floorCode;                                                       ///< of the floor that the drawing shows
    std::vector<std::shared_ptr<ORVCADIdentifyColumnResultData>> resultData; ///< recognised columns
};

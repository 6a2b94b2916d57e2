#pragma once

#include "ORVCADModelDataExport.h"
#include "column/ORVCADAxisLine.h"
#include "column/ORVCADIdentifyColumnOptions.h"

#include <QJsonObject>
#include <QString>

#include <memory>
#include <vector>

/** The order to check columns. Schema: schemas/columns.schema.json. A copy shares the axis lines. */
class ORVCADMODELDATA_EXPORT ORVCADColumnCloudCheckInputModel
{
public:
    /** Every field under its key. */
    QJsonObject toJson() const;
    /** Fills the target; this object plays no part, and null does nothing. Never fails: what is missing or
     *  mistyped is 0, false or empty, a bad curve null. Axis lines are added to those that are there. */
    void fromJson(ORVCADColumnCloudCheckInputModel *target, const QJsonObject &json) const;

    ORVCADIdentifyColumnOptions columnOptions;                 ///< marks and limits
    QString strCurFloorCode;                                   ///< of the floor that is checked
    std::vector<std::shared_ptr<ORVCADAxisLine>> axisLineList; ///< null ones are not written
};

#pragma once

#include "ORVCADModelDataExport.h"

#include <QJsonObject>
#include <QList>
#include <QString>

/** Words for one floor. */
struct ColumnFloorWordSet
{
    QString strFloorName; ///< the floor
    QString sUpElev;      ///< its top
    QString sDownElev;    ///< its bottom
};

/** Words for the elevations that a column may start or end at. */
struct ColumnElevWordSet
{
    QString sBaseTopElev;  ///< top of the foundation
    QString sBaseBtmElev;  ///< bottom of the foundation
    QString sCurBtmElev;   ///< bottom of the floor at hand
    QString sCurTopElev;   ///< top of the floor at hand
    QString sHighestElev;  ///< top of the building
    QString sFirstBtmElev; ///< bottom of the first floor
    QString sFirstTopElev; ///< top of the first floor
    QString sUpTopElev;    ///< top of the floor above
    QString sDownBtmElev;  ///< bottom of the floor below
};

/** Words for the elevations in a detail drawing of a column. */
struct ColumnDetailElev
{
    QString sUpestElev;   ///< uppermost in the detail
    QString sDownestElev; ///< lowest in the detail
    QString sCurUpElev;   ///< top of the part at hand
    QString sCurDownElev; ///< bottom of the part at hand
};

/** The words by which the column service understands elevation phrases in column tables. They are data for the service
 *  and only carried here. Schema: schemas/columns.schema.json. The spelling of the name is meant. */
class ORVCADMODELDATA_EXPORT ORVCADAIColumnSemnticParsingPar
{
public:
    /** Every field under its key. */
    QJsonObject toJson() const;
    /** Fills the target; this object plays no part, and null does nothing. Never fails: a missing or mistyped
     *  text is empty. The floors are added to those that are there already. */
    void fromJson(ORVCADAIColumnSemnticParsingPar *target, const QJsonObject &json) const;

    QList<ColumnFloorWordSet> floorWordSetPar; ///< floor by floor
    ColumnElevWordSet columnElevWordSetPar;    ///< of column tables
    ColumnDetailElev columnDetailElevPar;      ///< of details
};

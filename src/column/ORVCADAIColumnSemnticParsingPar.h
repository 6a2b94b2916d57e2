#pragma once

#include "ORVCADModelDataExport.h"

#include <QJsonObject>
#include <QList>
#include <QString>

/** Words for one floor. */
struct ColumnFloorWordSet
{
    QString strFloorName;
    QString sUpElev;
    QString sDownElev;
};

/** Words for the elevations that a column may start or end at. */
struct ColumnElevWordSet
{
    QString sBaseTopElev;
    QString sBaseBtmElev;
    QString sCurBtmElev;
    QString sCurTopElev;
    QString sHighestElev;
    QString sFirstBtmElev;
    QString sFirstTopElev;
    QString sUpTopElev;
    QString sDownBtmElev;
};

/** Words for the elevations in a detail drawing of a column. */
struct ColumnDetailElev
{
    QString sUpestElev;
    QString sDownestElev;
    QString sCurUpElev;
    QString sCurDownElev;
};

/** The words by which the column service understands elevation phrases in column tables. They are data for the service
 *  and only carried here. Schema: schemas/columns.schema.json. The spelling of the name is meant. */
class ORVCADMODELDATA_EXPORT ORVCADAIColumnSemnticParsingPar
{
public:
    QJsonObject toJson() const;
    /** Fills the target; this object plays no part, and null does nothing. Never fails: a missing or mistyped
     *  text is empty. The floors are added to those that are there already. */
    void fromJson(ORVCADAIColumnSemnticParsingPar *target, const QJsonObject &json) const;

    QList<ColumnFloorWordSet> floorWordSetPar;
    ColumnElevWordSet columnElevWordSetPar;
    ColumnDetailElev columnDetailElevPar;
};

#pragma once

#include "ORVCADModelDataExport.h"

#include <QString>
#include <QStringList>

/** The marks by which the names of columns are told in a drawing, and two settings of the identify service. Part of the
 *  column inputs, whose JSON holds it as "columnOptions". */
class ORVCADMODELDATA_EXPORT ORVCADIdentifyColumnOptions
{
public:
    /** The six marks, longest first, so that a name is held against the most specific mark first. Empty marks stand at the
     *  end; the order of marks of one length is not told. */
    QStringList getColumnCodes() const;

    // Code marks, one per kind of column; the keys are named the same.
    QString KJZMark;                          ///< frame column
    QString AZMark;                           ///< embedded column of a wall
    QString DZMark;                           ///< end column of a wall
    QString KZZMark;                          ///< frame-supporting column
    QString ZHZMark;                          ///< transfer column
    QString GZZMark;                          ///< tie column
    bool bSideBarAverageDistribution = false; ///< side bars are spread evenly
    int MaxSearchExtent = 0;                  ///< search limit of the identify service
};

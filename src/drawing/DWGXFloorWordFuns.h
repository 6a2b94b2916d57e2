#pragma once

#include "ORVCADModelDataExport.h"

#include <QString>
#include <QStringList>

/** How drawings write the names of floors, so that a title can be matched against a floor. Floors are counted up from 1
 *  and down from -1; there is no floor 0, and none beyond 999 or -999. */
class ORVCADMODELDATA_EXPORT DWGXFloorWordFuns
{
public:
    /** The standard name: 第3层 for 3, 第-1层 for -1. Empty for a number that no floor has. */
    static QString toFloorName(int number);
    /** All nine ways in which a floor's number is written, in a fixed order: six with the Chinese numeral, then three with
     *  the decimal number and its sign. 5 gives 五, 五层, 第五, 地上五, 第五层, 地上五层, 5F, 5层, 第5层; -2 gives 第负二,
     *  负二, 地下二, 第负二层, 负二层, 地下二层, -2F, -2层, 第-2层. Empty for a number that no floor has. */
    static QStringList toFloorNames(int number);
    /** The other way in which the name of a top floor is written (屋面 and 屋面层, 阁楼 and 阁楼层), without the word
     *  itself. Empty for any other word. */
    static QStringList toFloorNames(const QString &word);
};

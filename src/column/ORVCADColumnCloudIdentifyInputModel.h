#pragma once

#include "ORVCADModelDataExport.h"
#include "column/ColumnElementInfo.h"
#include "column/ORVCADAIColumnSemnticParsingPar.h"
#include "column/ORVCADAxisLine.h"
#include "column/ORVCADColumnHoopBarSettingPar.h"
#include "column/ORVCADIdentifyColumnOptions.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

/** The order to recognise columns in a drawing. Its JSON has numbers as numbers and geometry as text.
 *  Schema: schemas/columns.schema.json. A copy shares axis lines and elements, null ones are not written. */
class ORVCADMODELDATA_EXPORT ORVCADColumnCloudIdentifyInputModel
{
public:
    /** Every field under its key. */
    QJsonObject toJson() const;
    /** Fills the target; this object plays no part, and null does nothing. Never fails: what is missing or
     *  mistyped is 0, false or empty, a bad curve or polygon null and a bad point (0, 0). Every array is added to what the
     *  target holds, those of the two parameter blocks included. */
    void fromJson(ORVCADColumnCloudIdentifyInputModel *target, const QJsonObject &json) const;

    int eType = 0;                                             ///< the service's own number of what is to be done
    ORVCADIdentifyColumnOptions columnOptions;                 ///< marks and limits
    QStringList columnCodes;                                   ///< marks, longest first
    std::vector<QString> borderLayerNames;                     ///< layers of outlines
    std::vector<QString> labelLayerNames;                      ///< layers of labels
    std::vector<std::shared_ptr<ORVCADAxisLine>> axisLineList; ///< null ones are not written
    std::vector<std::shared_ptr<ColumnElementInfo>> elements;  ///< columns that the floor has already
    ORVCADAIColumnSemnticParsingPar oSemnTicParsePar;          ///< words of elevations
    ORVCADColumnHoopBarSettingPar oHoopBarSettingPar;          ///< hoop pictures and limb patterns
};

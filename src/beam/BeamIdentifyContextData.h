#pragma once

#include "beam/FloorInfo.h"

#include <QMap>

#include <memory>

/** Floor and options that the identify service gets beside the drawing. A copy shares the floor. */
class ORVCADMODELDATA_EXPORT BeamIdentifyContextData
{
public:
    /** "FloorInfo" with the floor's values, an empty object without a floor; "CADOptions" with one text per option. */
    QJsonObject toJson() const;

    std::shared_ptr<FloorInfo> floorInfo = std::make_shared<FloorInfo>(); ///< null: no floor
    QMap<QString, QString> cadOptions;                                    ///< name to value

private:
    struct FloorFields; // the one list, in the source
};

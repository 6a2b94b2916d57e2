#include "column/ORVCADColumnCloudIdentifyInputModel.h"

#include "column/ColumnInputFields.h"

using namespace column;

QJsonObject ORVCADColumnCloudIdentifyInputModel::toJson() const
{
    QJsonObject json;
    encoding::writeFields(*this, IdentifyInputFields::table, json);
    return json;
}

void ORVCADColumnCloudIdentifyInputModel::fromJson(ORVCADColumnCloudIdentifyInputModel *target,
                                                   const QJsonObject &json) const
{
    if (target)
        encoding::readFields(json, IdentifyInputFields::table, *target);
}

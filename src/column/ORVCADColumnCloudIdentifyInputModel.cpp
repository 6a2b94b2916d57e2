#include "column/ORVCADColumnCloudIdentifyInputModel.h"

#include "column/ColumnInputFields.h"

using namespace column;

QJsonObject ORVCADColumnCloudIdentifyInputModel::toJson() const
{
    return encoding::writtenFields(*this, IdentifyInputFields::table);
}

void ORVCADColumnCloudIdentifyInputModel::fromJson(ORVCADColumnCloudIdentifyInputModel *target,
                                                   const QJsonObject &json) const
{
    encoding::readFieldsInto(target, IdentifyInputFields::table, json);
}

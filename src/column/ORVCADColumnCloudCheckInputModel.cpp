#include "column/ORVCADColumnCloudCheckInputModel.h"

#include "column/ColumnInputFields.h"

using namespace column;

QJsonObject ORVCADColumnCloudCheckInputModel::toJson() const
{
    return encoding::writtenFields(*this, CheckInputFields::table);
}

void ORVCADColumnCloudCheckInputModel::fromJson(ORVCADColumnCloudCheckInputModel *target, const QJsonObject &json) const
{
    encoding::readFieldsInto(target, CheckInputFields::table, json);
}

#include "column/ORVCADColumnCloudCheckInputModel.h"

#include "column/ColumnInputFields.h"

using namespace column;

QJsonObject ORVCADColumnCloudCheckInputModel::toJson() const
{
    QJsonObject json;
    encoding::writeFields(*this, CheckInputFields::table, json);
    return json;
}

void ORVCADColumnCloudCheckInputModel::fromJson(ORVCADColumnCloudCheckInputModel *target, const QJsonObject &json) const
{
    if (target)
        encoding::readFields(json, CheckInputFields::table, *target);
}

#include "column/ORVCADAIIdentifyColumnResultModel.h"

#include "column/ColumnResultFields.h"

using namespace column;

QJsonObject ORVCADAIIdentifyColumnResultModel::toJson() const
{
    QJsonObject json;
    encoding::writeFields(*this, ResultModelFields::table, json);
    return json;
}

void ORVCADAIIdentifyColumnResultModel::fromJson(ORVCADAIIdentifyColumnResultModel *target,
                                                 const QJsonObject &json) const
{
    if (target)
        encoding::readFields(json, ResultModelFields::table, *target);
}

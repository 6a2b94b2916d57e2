#include "column/ORVCADAIIdentifyColumnResultModel.h"

#include "column/ColumnResultFields.h"

using namespace column;

QJsonObject ORVCADAIIdentifyColumnResultModel::toJson() const
{
    return encoding::writtenFields(*this, ResultModelFields::table);
}

void ORVCADAIIdentifyColumnResultModel::fromJson(ORVCADAIIdentifyColumnResultModel *target,
                                                 const QJsonObject &json) const
{
    encoding::readFieldsInto(target, ResultModelFields::table, json);
}

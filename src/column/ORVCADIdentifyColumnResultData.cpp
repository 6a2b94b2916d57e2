#include "column/ORVCADIdentifyColumnResultData.h"

#include "column/ColumnResultFields.h"

using namespace column;

ORVCADIdentifyColumnResultData::~ORVCADIdentifyColumnResultData() { delete columnInfo; }

QJsonObject ORVCADIdentifyColumnResultData::toJson() const
{
    QJsonObject json;
    if (columnInfo)
        encoding::writeFields(*this, ResultFields::table, json);
    return json;
}

void ORVCADIdentifyColumnResultData::fromJson(ORVCADIdentifyColumnResultData *target, const QJsonObject &json) const
{
    if (target)
        encoding::readFields(json, ResultFields::table, *target);
}

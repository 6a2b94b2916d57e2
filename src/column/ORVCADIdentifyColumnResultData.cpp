#include "column/ORVCADIdentifyColumnResultData.h"

#include "column/ColumnResultFields.h"

using namespace column;

ORVCADIdentifyColumnResultData::~ORVCADIdentifyColumnResultData() { delete columnInfo; }

QJsonObject ORVCADIdentifyColumnResultData::toJson() const
{
    return columnInfo ? encoding::writtenFields(*this, ResultFields::table) : QJsonObject();
}

void ORVCADIdentifyColumnResultData::fromJson(ORVCADIdentifyColumnResultData *target, const QJsonObject &json) const
{
    encoding::readFieldsInto(target, ResultFields::table, json);
}

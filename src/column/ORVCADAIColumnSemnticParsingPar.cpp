#include "column/ORVCADAIColumnSemnticParsingPar.h"

#include "column/ColumnInputFields.h"

using namespace column;

QJsonObject ORVCADAIColumnSemnticParsingPar::toJson() const
{
    return encoding::writtenFields(*this, SemanticFields::table);
}

void ORVCADAIColumnSemnticParsingPar::fromJson(ORVCADAIColumnSemnticParsingPar *target, const QJsonObject &json) const
{
    encoding::readFieldsInto(target, SemanticFields::table, json);
}

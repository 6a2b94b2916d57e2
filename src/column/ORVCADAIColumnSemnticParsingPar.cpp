#include "column/ORVCADAIColumnSemnticParsingPar.h"

#include "column/ColumnInputFields.h"

using namespace column;

QJsonObject ORVCADAIColumnSemnticParsingPar::toJson() const
{
    QJsonObject json;
    encoding::writeFields(*this, SemanticFields::table, json);
    return json;
}

void ORVCADAIColumnSemnticParsingPar::fromJson(ORVCADAIColumnSemnticParsingPar *target, const QJsonObject &json) const
{
    if (target)
        encoding::readFields(json, SemanticFields::table, *target);
}

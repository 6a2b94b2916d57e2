#include "platform/services/OptionGroupReader.h"

#include "platform/host/IHBXModel.h"
#include "platform/services/CDatabase.h"
#include "platform/services/HBXDBRecord.h"
#include "platform/services/HBXOptionNames.h"
#include "platform/services/ORVCADCommonUtils.h"

namespace {

vks::CDBTable *optionTable(IHBXModel *model)
{
    vks::CDatabase *database = model ? model->database() : nullptr;
    return database ? database->GetTable(ORVCADCommonUtils::getCADIdentifyOptionTableName()) : nullptr;
}

} // namespace

QMap<QString, QString> readOptionGroup(IHBXModel *model, const QString &group)
{
    QMap<QString, QString> options;
    insertOptionGroup(model, group, options);
    return options;
}

void insertOptionGroup(IHBXModel *model, const QString &group, QMap<QString, QString> &options)
{
    const vks::CDBTable *table = optionTable(model);
    if (!table)
        return;
    vks::CFileAddressList addresses;
    table->Query(QStringLiteral("SameString(%1,\"%2\")").arg(pfnCADIdentifyOptionGroup, group), addresses, false);
    for (const auto address : addresses) {
        const HBXDBRecord record(table, address);
        const QString value = record.getString(pfnCADIdentifyOptionValue, QString());
        const QString name = record.getString(pfnCADIdentifyOptionName, QString());
        if (!options.contains(name)) // the first row of a name counts
            options.insert(name, value);
    }
}

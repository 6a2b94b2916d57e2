#include "doorwindow/ORVCADWindoorDataInputModel.h"

#include "doorwindow/DoorWindowKeys.h"
#include "platform/host/IHBXService.h"
#include "platform/services/HBXOptionNames.h"
#include "platform/services/OptionGroupReader.h"

#include <QJsonArray>

void ORVCADWindoorDataInputModel::parseIdentifyOption(IHBXService *service)
{
    if (service)
        insertOptionGroup(service->model(), ptnWallHolesSetting, identifyOptions);
}

void ORVCADWindoorDataInputModel::saveToJason(QJsonObject *json) const
{
    if (!json)
        return;
    QJsonArray options;
    for (auto option = identifyOptions.cbegin(); option != identifyOptions.cend(); ++option)
        options.append(QJsonObject{{option.key(), option.value()}});
    json->insert(doorwindow::key::identifyOptions, options);
}

ORVCADWindoorDataInputModel *createWindowCloudIdentifyPar(IHBXService * /*service*/)
{
    return new ORVCADWindoorDataInputModel;
}

void freeWindowCloudIdentifyPar(ORVCADWindoorDataInputModel *model) { delete model; }

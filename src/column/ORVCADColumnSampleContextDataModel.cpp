#include "column/ORVCADColumnSampleContextDataModel.h"

#include "platform/host/IHBXCurState.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXService.h"
#include "platform/services/HBXOptionNames.h"
#include "platform/services/OptionGroupReader.h"

#include <utility>

ORVCADColumnSampleContextDataModel::ORVCADColumnSampleContextDataModel(IHBXService *service)
{
    IHBXCurState *state = service ? service->curState() : nullptr;
    if (!state)
        return;
    if (const IHBXFloor *floor = state->floor()) {
        m_floorID = floor->id();
        m_floorName = floor->name();
    }
    if (const IHBXRegion *region = state->region()) {
        m_regionID = region->id();
        m_regionName = region->name();
    }
}

void ORVCADColumnSampleContextDataModel::setCADOption(QMap<QString, QString> options)
{
    m_cadOption = std::move(options);
}

QMap<QString, QString> ORVCADColumnSampleContextDataModel::parseColumnIdentifyOption(IHBXService *service) const
{
    return readOptionGroup(service ? service->model() : nullptr, ptnColumnSetting);
}
